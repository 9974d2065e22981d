#include <algorithm>
#include <iterator>

#include "examples/showcase/window/Dialogs.h"
#include "examples/showcase/window/Names.h"
#include "examples/showcase/window/Numbers.h"
#include "examples/support/Print.h"

namespace showcase {

using tessaly::Long;
using tessaly::String;

namespace {

constexpr Long kLeastPoints = 6;
constexpr Long kMostPoints = 72;

/// The dialog and what it is about.
class SettingsForm {
 public:
  SettingsForm(const Desk& desk, Preferences& preferences)
      : desk_(desk), preferences_(preferences), numbers_(languages(desk.resources())) {
    numbers_.insert(numbers_.begin(), 0);
    addFields();
    show(preferences, writesTrace());
  }

  bool run() {
    dialog_.buttons = {{Dialog::kOk, text(OK)}, {Dialog::kOther, text(RestoreDefaults)}};
    return desk_.run(dialog_, u"settings", [this](Long button) { return accepts(button); }) == Dialog::kOk;
  }

 private:
  enum Place { Language, Numbers, Font, Size, Trace };

  String text(Text slot) const { return desk_.resources().res(slot); }
  Field& field(Place place) { return dialog_.fields[place]; }

  void addFields() {
    dialog_.title = text(SettingsTitle);
    dialog_.fields = {
        {.kind = Field::Kind::Choice, .label = text(LanguageOfProgram), .choices = languageNames()},
        {.kind = Field::Kind::Check, .label = text(ShowStringNumbers)},
        {.kind = Field::Kind::Text, .label = text(GridFont)},
        {.kind = Field::Kind::Text, .label = text(FontSize)},
        {.kind = Field::Kind::Check, .label = text(WriteATrace)}};
  }

  std::vector<String> languageNames() const {
    std::vector<String> names = {text(AsTheSystem)};
    for (std::size_t i = 1; i < numbers_.size(); ++i) {
      names.push_back(languageName(desk_.resources(), static_cast<Long>(i) - 1));
    }
    return names;
  }

  void show(const Preferences& preferences, bool isTraced) {
    const auto place = std::find(numbers_.begin(), numbers_.end(), preferences.language);
    const auto& resources = desk_.resources();
    const Long size = preferences.gridFontSize > 0 ? preferences.gridFontSize : resources.gridFontSize();
    field(Language).number =
        place == numbers_.end() ? 0 : static_cast<Long>(std::distance(numbers_.begin(), place));
    field(Numbers).number = preferences.showsStringNumbers ? 1 : 0;
    field(Font).text = preferences.gridFont.empty() ? resources.gridFontName() : preferences.gridFont;
    field(Size).text = size > 0 ? examples::textOf(size) : String();
    field(Trace).number = isTraced ? 1 : 0;
  }

  bool accepts(Long button) {
    if (button == Dialog::kOther) show({}, writesTrace());
    return button == Dialog::kOk && hasSize() && takeTrace() && take();
  }

  bool hasSize() {
    const String& size = field(Size).text;
    const auto points = numberOf(size);
    if (size.empty() || (points && *points >= kLeastPoints && *points <= kMostPoints)) return true;
    if (points) {
      desk_.show(Desk::kWarning, {NumberFromTo, kLeastPoints, kMostPoints});
    } else {
      desk_.show(Desk::kWarning, {NotANumber, size});
    }
    return false;
  }

  /// The machine's settings are seldom the user's to change.
  bool takeTrace() {
    const bool isOn = field(Trace).number != 0;
    if (isOn == writesTrace()) return true;
    if (setWritesTrace(isOn)) {
      desk_.show(Desk::kTell, {ChangeAtNextStart});
      return true;
    }
    desk_.show(Desk::kWarning, {NoPermission, u"HKEY_LOCAL_MACHINE\\" + String(kMachineKey)});
    field(Trace).number = isOn ? 0 : 1;
    return false;
  }

  /// What the language brings is no choice of the user's, and so not kept.
  bool take() {
    const auto& resources = desk_.resources();
    const Long size = numberOf(field(Size).text).value_or(0);
    preferences_.language = numbers_[static_cast<std::size_t>(std::max(field(Language).number, 0))];
    preferences_.showsStringNumbers = field(Numbers).number != 0;
    preferences_.gridFont = field(Font).text == resources.gridFontName() ? String() : field(Font).text;
    preferences_.gridFontSize = size == resources.gridFontSize() ? 0 : size;
    return true;
  }

  const Desk& desk_;
  Preferences& preferences_;
  std::vector<Long> numbers_;
  Dialog dialog_;
};

}  // namespace

bool editPreferences(const Desk& desk, Preferences& preferences) {
  return SettingsForm(desk, preferences).run();
}

}  // namespace showcase
