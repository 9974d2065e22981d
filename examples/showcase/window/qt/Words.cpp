#include "examples/showcase/window/qt/Words.h"

#include <QCoreApplication>

#include "tessaly/hosts/qt/Text.h"

namespace showcase {

using tessaly::qt::toQString;

// It leaves the application by itself.
Words::Words() { QCoreApplication::installTranslator(this); }

QString Words::translate(const char* context, const char* source, const char* /*remark*/,
                         int /*count*/) const {
  if (QLatin1String(context) != QLatin1String("QPlatformTheme")) return {};
  const QLatin1String word(source);
  if (word == QLatin1String("OK")) return toQString(words_.ok);
  if (word == QLatin1String("Cancel")) return toQString(words_.cancel);
  if (word == QLatin1String("&Yes")) return toQString(words_.yes);
  if (word == QLatin1String("&No")) return toQString(words_.no);
  return {};
}

}  // namespace showcase
