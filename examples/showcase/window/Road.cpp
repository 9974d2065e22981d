#include "examples/showcase/window/Road.h"

#include "examples/support/Print.h"
#include "tessaly/base/Text.h"
#include "tessaly/dialogs/CHelp.h"

namespace showcase {
namespace {

using examples::textOf;
using tessaly::Long;
using tessaly::String;

constexpr Long kTurnedPages = 4;
constexpr Long kAmount = 3;

/// The places of fields that a user writes in, or clicks.
constexpr std::size_t kFirstField = 0;
constexpr std::size_t kFontSizeField = 3;
constexpr std::size_t kLinkField = 3;
constexpr std::int16_t kF1 = 112;

/// His preferences come back however the road ends.
class KeptPreferences {
 public:
  explicit KeptPreferences(tessaly::CResources& resources)
      : resources_(resources), kept_(loadPreferences()) {}
  KeptPreferences(const KeptPreferences&) = delete;
  KeptPreferences& operator=(const KeptPreferences&) = delete;
  ~KeptPreferences() { storePreferences(kept_, resources_); }

 private:
  tessaly::CResources& resources_;
  Preferences kept_;
};

class Walk {
 public:
  Walk(Window& window, Reports& reports, tessaly::CResources& resources, const Unseen& unseen, const Say& say)
      : window_(window),
        reports_(reports),
        resources_(resources),
        unseen_(unseen),
        say_(say),
        kept_(resources) {}

  RoadPictures go() {
    useToolBar();
    sortAndFind();
    changeLanguage();
    fillForm();
    answerBox();
    clickLink();
    askForHelp();
    pictures_.window = window_.picture();
    return pictures_;
  }

 private:
  void choose(Command command) { window_.choose(static_cast<Long>(command)); }

  /// Writes into a dialog's first field and presses its first button.
  void writeInNext(std::u16string_view text) {
    window_.visitNextDialog([text = String(text)](DialogUser& user) {
      user.write(kFirstField, text);
      user.press(Dialog::kOk);
    });
  }

  void useToolBar() {
    for (const Tool tool : {Tool::Larger, Tool::Smaller}) window_.press(reports_.button(tool));
    writeInNext(u"sales@example.com");
    window_.press(reports_.button(Tool::Mail));
    say_(u"mail", lastBox() + u" (pretended)");
    writeInNext(u"bonus");
    window_.press(reports_.button(Tool::Filter));
    say_(u"filter",
         resources_.resWithArg(RowsSelectedOf, reports_.report().seenCount(), reports_.report().rowCount()));
    choose(Command::RemoveFilter);
    holdUntilPage(1 + kTurnedPages);
    say_(u"held button", resources_.resWithArg(PageOf, reports_.report().page(), reports_.report().pages()) +
                             u", by clicks that repeat");
  }

  void holdUntilPage(Long page) {
    const auto& button = reports_.button(Tool::On);
    while (reports_.report().page() < page) {
      // Another window that takes the keyboard ends a press; one that goes on is not begun again.
      window_.hold(button);
      window_.handleNext();
    }
    window_.release(button);
  }

  void sortAndFind() {
    window_.clickHeading(kAmount);
    window_.clickHeading(kAmount);
    say_(u"sorted", u"by amount, first " + reports_.report().pageRows()[0].cell(Column::Owner) + u", " +
                        reports_.report().pageRows()[0].cell(Column::Amount));
    writeInNext(u"discount");
    choose(Command::Find);
    say_(u"found",
         u"a comment with \"discount\": " +
             reports_.report().seenRows()[static_cast<std::size_t>(reports_.report().selected())].cell(
                 Column::Comment));
  }

  /// To the list's last language and back.
  void changeLanguage() {
    const Long before = resources_.lang();
    const auto numbers = languages(resources_);
    const auto place = [&](Long number) {
      Long result = 0;
      while (result + 1 < static_cast<Long>(numbers.size()) &&
             numbers[static_cast<std::size_t>(result)] != number) {
        ++result;
      }
      return result;
    };
    const auto first = static_cast<Long>(Command::FirstLanguage);
    window_.choose(first + place(numbers.back()));
    say_(u"menu", resources_.langName() + u": " + resources_.res(Ready));
    window_.choose(first + place(before));
    say_(u"menu", resources_.langName() + u": " + resources_.res(Ready));
  }

  void fillForm() {
    window_.visitNextDialog([this](DialogUser& user) {
      user.write(kFontSizeField, u"11");
      pictures_.settings = user.picture();
      user.press(Dialog::kOk);
    });
    choose(Command::Settings);
    say_(u"form", resources_.res(SettingsTitle) + u", with a font of " +
                      textOf(loadPreferences().gridFontSize) + u" points from now on");
  }

  void answerBox() {
    choose(Command::DeleteReport);
    say_(u"message", lastBox() + u" No");
  }

  void clickLink() {
    window_.visitNextDialog([](DialogUser& user) {
      user.click(kLinkField);
      user.press(Dialog::kCancel);
    });
    choose(Command::About);
    const auto& opened = unseen_.shell.opened();
    say_(u"link", opened.empty() ? u"" : tessaly::fromUtf8(opened.back().file.value_or("")));
  }

  void askForHelp() {
    window_.visitNextDialog([this](DialogUser& user) {
      user.key(kF1, 0);
      pictures_.help = window_.helpPicture();
      user.press(Dialog::kCancel);
    });
    choose(Command::Settings);
    say_(u"help", lastHelp());
  }

  String lastBox() const {
    return unseen_.boxes.boxes().empty() ? String() : unseen_.boxes.boxes().back().text;
  }

  /// Without its folder.
  String lastHelp() const {
    if (unseen_.help.asked().empty()) return {};
    const std::string& file = unseen_.help.asked().back();
    return tessaly::fromUtf8(std::string_view(file).substr(file.find("Tessaly.chm")));
  }

  Window& window_;
  Reports& reports_;
  tessaly::CResources& resources_;
  const Unseen& unseen_;
  const Say& say_;
  KeptPreferences kept_;
  RoadPictures pictures_;
};

}  // namespace

RoadPictures walk(Window& window, Reports& reports, tessaly::CResources& resources, const Unseen& unseen,
                  const Say& say) {
  // Nobody rests here, however long the computer takes.
  for (Long place = 0; place < kTools; ++place) {
    reports.button(static_cast<Tool>(place)).events.OnButtonSelectedTiming = nullptr;
  }
  return Walk(window, reports, resources, unseen, say).go();
}

}  // namespace showcase
