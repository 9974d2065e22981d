#include "examples/showcase/window/qt/Words.h"

#include <QCoreApplication>

#include "tessaly/hosts/qt/Text.h"

namespace showcase {

using tessaly::qt::toQString;

// It leaves the application by itself.
Words::Words() { QCoreApplication::installTranslator(this); }

// Desktops have themes of their own, whose words differ in the letters that are keys.
QString Words::translate(const char* context, const char* source, const char* /*remark*/,
                         int /*count*/) const {
  if (!QLatin1String(context).endsWith(QLatin1String("Theme"))) return {};
  const QString word = QString::fromLatin1(source).remove(u'&');
  const auto said = [](const tessaly::String& text) { return text.empty() ? QString() : toQString(text); };
  if (word == QLatin1String("OK")) return said(words_.ok);
  if (word == QLatin1String("Cancel")) return said(words_.cancel);
  if (word == QLatin1String("Yes")) return said(words_.yes);
  if (word == QLatin1String("No")) return said(words_.no);
  return {};
}

}  // namespace showcase
