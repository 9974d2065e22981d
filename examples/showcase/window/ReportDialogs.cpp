#include "examples/showcase/window/Dialogs.h"
#include "examples/showcase/window/Names.h"
#include "examples/showcase/window/Numbers.h"

namespace showcase {

using tessaly::Long;
using tessaly::String;

namespace {

constexpr Long kMostCopies = 99;

Field textField(const tessaly::CResources& resources, Text label, std::u16string_view text) {
  return {.kind = Field::Kind::Text, .label = resources.res(label), .text = String(text)};
}

/// A dialog of one line to write, which is not to be empty.
std::optional<String> askForLine(const Desk& desk, const String& title, Field line,
                                 std::u16string_view page) {
  Dialog dialog{.title = title, .fields = {std::move(line)}};
  dialog.buttons = {{Dialog::kOk, desk.resources().res(OK)}};
  const String& text = dialog.fields[0].text;
  if (desk.run(dialog, page, [&](Long) { return !text.empty(); }) != Dialog::kOk) return std::nullopt;
  return text;
}

/// Whether a text is a number within bounds; what is wrong with it is told.
bool isNumber(const Desk& desk, const String& text, Long least, Long most) {
  const auto number = numberOf(text);
  if (!number) {
    desk.show(Desk::kWarning, {NotANumber, text});
  } else if (*number < least || *number > most) {
    desk.show(Desk::kWarning, {NumberFromTo, least, most});
  } else {
    return true;
  }
  return false;
}

bool isAddress(const String& text) {
  const std::size_t at = text.find(u'@');
  return at != String::npos && at > 0 && at + 1 < text.size() && text.find(u'@', at + 1) == String::npos &&
         text.find(u' ') == String::npos;
}

}  // namespace

std::optional<String> chooseReport(const Desk& desk, const std::vector<String>& names) {
  const auto& resources = desk.resources();
  Dialog dialog{
      .title = resources.res(OpenReport),
      .fields = {{.kind = Field::Kind::List, .label = resources.res(ReportFiles), .choices = names}}};
  dialog.buttons = {{Dialog::kOk, resources.res(Open)}};
  const Long& chosen = dialog.fields[0].number;
  const auto accepts = [&](Long) { return chosen >= 0 && chosen < static_cast<Long>(names.size()); };
  if (desk.run(dialog, u"open", accepts) != Dialog::kOk) return std::nullopt;
  return names[static_cast<std::size_t>(chosen)];
}

std::optional<String> nameReport(const Desk& desk, std::u16string_view name) {
  const auto& resources = desk.resources();
  return askForLine(desk, resources.res(SaveReportAs), textField(resources, NameHeading, name), u"open");
}

std::optional<String> askForText(const Desk& desk, Text title, std::u16string_view text) {
  const auto& resources = desk.resources();
  return askForLine(desk, nameOf(resources.res(title)), textField(resources, TextToFind, text), u"grid");
}

std::optional<Long> askForRow(const Desk& desk, Long rows) {
  const auto& resources = desk.resources();
  Dialog dialog{.title = nameOf(resources.res(GoToRowNumber)),
                .fields = {textField(resources, NumberHeading, u"1")}};
  dialog.buttons = {{Dialog::kOk, resources.res(OK)}};
  const String& text = dialog.fields[0].text;
  const auto accepts = [&](Long) { return isNumber(desk, text, 1, rows); };
  if (desk.run(dialog, u"grid", accepts) != Dialog::kOk) return std::nullopt;
  return numberOf(text);
}

std::optional<PrintOrder> askHowToPrint(const Desk& desk) {
  const auto& resources = desk.resources();
  Dialog dialog{
      .title = nameOf(resources.res(PrintFile)),
      .fields = {textField(resources, NumberOfCopies, u"1"),
                 {.kind = Field::Kind::Choice,
                  .choices = {nameOf(resources.res(AllPages)), nameOf(resources.res(CurrentPage))}}}};
  dialog.buttons = {{Dialog::kOk, resources.res(OK)}};
  const auto& fields = dialog.fields;
  const auto accepts = [&](Long) { return isNumber(desk, fields[0].text, 1, kMostCopies); };
  if (desk.run(dialog, u"open", accepts) != Dialog::kOk) return std::nullopt;
  return PrintOrder{*numberOf(fields[0].text), fields[1].number == 0};
}

std::optional<String> writeMail(const Desk& desk, std::u16string_view subject) {
  const auto& resources = desk.resources();
  Dialog dialog{.title = resources.res(SendReportByMail),
                .fields = {textField(resources, MailTo, u"sales@example.com"),
                           textField(resources, MailSubject, subject),
                           {.kind = Field::Kind::Paragraph, .label = resources.res(MailMessage)},
                           {.kind = Field::Kind::Check, .label = resources.res(AttachReport), .number = 1}}};
  dialog.buttons = {{Dialog::kOk, resources.res(Send)}};
  const String& address = dialog.fields[0].text;
  const auto accepts = [&](Long) {
    if (isAddress(address)) return true;
    desk.show(Desk::kWarning, {AddressNotValid, address});
    return false;
  };
  if (desk.run(dialog, u"mail", accepts) != Dialog::kOk) return std::nullopt;
  return address;
}

}  // namespace showcase
