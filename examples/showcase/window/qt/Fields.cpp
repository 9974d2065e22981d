#include "examples/showcase/window/qt/Fields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include "tessaly/hosts/qt/Text.h"
#include "tessaly/hosts/qt/UrlLink.h"

namespace showcase {

using tessaly::qt::fromQString;
using tessaly::qt::toQString;

namespace {

constexpr int kWidth = 320;
constexpr int kListHeight = 150;
constexpr double kHeadingSize = 1.5;

QStringList choicesOf(const Field& field) {
  QStringList choices;
  for (const auto& choice : field.choices) choices << toQString(choice);
  return choices;
}

QWidget* makeWords(const Field& field) {
  auto* const words = new QLabel;
  words->setTextFormat(Qt::PlainText);
  if (field.kind == Field::Kind::Heading) {
    QFont font = words->font();
    font.setPointSizeF(font.pointSizeF() * kHeadingSize);
    font.setBold(true);
    words->setFont(font);
  }
  words->setWordWrap(true);
  words->setMinimumWidth(kWidth);
  return words;
}

QWidget* makeChoice(const Field& field) {
  auto* const choice = new QComboBox;
  choice->addItems(choicesOf(field));
  return choice;
}

QWidget* makeList(const Field& field) {
  auto* const list = new QListWidget;
  list->addItems(choicesOf(field));
  list->setMinimumSize(kWidth, kListHeight);
  return list;
}

QWidget* makeLine() {
  auto* const line = new QLineEdit;
  line->setMinimumWidth(kWidth);
  return line;
}

/// As large as its text.
QWidget* makeLink(const Field& field) {
  auto* const link = new tessaly::qt::UrlLink;
  link->setFocusPolicy(Qt::TabFocus);
  link->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  field.onLink(link->control());
  return link;
}

}  // namespace

QWidget* makeWidget(const Field& field) {
  switch (field.kind) {
    case Field::Kind::Words:
    case Field::Kind::Heading:
      return makeWords(field);
    case Field::Kind::Choice:
      return makeChoice(field);
    case Field::Kind::List:
      return makeList(field);
    case Field::Kind::Check:
      return new QCheckBox(toQString(field.label));
    case Field::Kind::Text:
      return makeLine();
    case Field::Kind::Paragraph:
      return new QPlainTextEdit;
    case Field::Kind::Link:
      break;
  }
  return makeLink(field);
}

bool hasLabelBefore(const Field& field) {
  return field.kind == Field::Kind::Choice || field.kind == Field::Kind::List ||
         field.kind == Field::Kind::Text || field.kind == Field::Kind::Paragraph;
}

void show(const Field& field, QWidget& widget) {
  const QString text = toQString(field.text);
  if (auto* const words = qobject_cast<QLabel*>(&widget)) words->setText(text);
  if (auto* const choice = qobject_cast<QComboBox*>(&widget)) choice->setCurrentIndex(field.number);
  if (auto* const list = qobject_cast<QListWidget*>(&widget)) list->setCurrentRow(field.number);
  if (auto* const check = qobject_cast<QCheckBox*>(&widget)) check->setChecked(field.number != 0);
  if (auto* const line = qobject_cast<QLineEdit*>(&widget)) line->setText(text);
  if (auto* const lines = qobject_cast<QPlainTextEdit*>(&widget)) lines->setPlainText(text);
}

void read(Field& field, const QWidget& widget) {
  if (const auto* const choice = qobject_cast<const QComboBox*>(&widget)) {
    field.number = choice->currentIndex();
  } else if (const auto* const list = qobject_cast<const QListWidget*>(&widget)) {
    field.number = list->currentRow();
  } else if (const auto* const check = qobject_cast<const QCheckBox*>(&widget)) {
    field.number = check->isChecked() ? 1 : 0;
  } else if (const auto* const line = qobject_cast<const QLineEdit*>(&widget)) {
    field.text = fromQString(line->text());
  } else if (const auto* const lines = qobject_cast<const QPlainTextEdit*>(&widget)) {
    field.text = fromQString(lines->toPlainText());
  }
}

}  // namespace showcase
