#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>

#include "examples/showcase/tests/FakeWindow.h"
#include "examples/showcase/window/Reports.h"
#include "tessaly/base/Text.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/HtmlHelp.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/fake/Registry.h"
#include "tessaly/platform/fake/Shell.h"
#include "tests/support/TemporaryFolder.h"

namespace showcase::tests {

inline constexpr tessaly::Long kArabic = 1025;
inline constexpr tessaly::Long kRussian = 1049;

/// The catalogue in a language, before anybody speaks with it.
class Catalogue {
 public:
  explicit Catalogue(tessaly::Long language) {
    start(resources);
    resources.lang(language);
  }

  tessaly::CResources resources;
};

/// The tool in a window that nobody sees, with settings, boxes, help and a shell in memory, and with a copy
/// of the showcase's reports.
class WindowStage : public testing::Test {
 protected:
  explicit WindowStage(tessaly::Long language = kBuiltInEnglish) : catalogue(language) {
    for (const auto& file : std::filesystem::directory_iterator("examples/showcase/reports")) {
      std::filesystem::copy(file, folder.path());
    }
    open();
  }

  /// Opens the tool anew, with the language that is in the settings or, where there is none, is in force.
  void open() {
    reports.reset();
    const Preferences preferences = loadPreferences();
    if (preferences.language != 0) {
      speakAs(catalogue.resources, preferences.language, preferences.showsStringNumbers);
    }
    window.emplace();
    reports.emplace(*window, catalogue.resources, preferences, folder.text(),
                    [] { return tessaly::String(u"12:34:56"); });
  }

  void press(Tool tool) { window->press(reports->button(tool)); }
  void choose(Command command) { window->choose(static_cast<tessaly::Long>(command)); }
  bool canChoose(Command command) const {
    const MenuItem* const item = window->find(static_cast<tessaly::Long>(command));
    return item != nullptr && item->isEnabled;
  }
  void chooseLanguage(tessaly::Long number) {
    const auto numbers = languages(catalogue.resources);
    const auto place = std::find(numbers.begin(), numbers.end(), number) - numbers.begin();
    window->choose(static_cast<tessaly::Long>(Command::FirstLanguage) + static_cast<tessaly::Long>(place));
  }

  /// In the next dialog, writes into its first field and presses its first button.
  void write(std::u16string_view text) {
    window->visitNextDialog([text = tessaly::String(text)](DialogUser& user) {
      user.write(0, text);
      user.press(Dialog::kOk);
    });
  }

  const tessaly::platform::fake::MessageBoxes::Box& lastBox() const { return boxes.boxes().back(); }

  tessaly::tests::TemporaryFolder folder;
  tessaly::platform::fake::Registry registry;
  tessaly::platform::fake::MessageBoxes boxes;
  tessaly::platform::fake::HtmlHelp help;
  tessaly::platform::fake::Shell shell;
  tessaly::platform::Override registryInForce{registry};
  tessaly::platform::Override boxesInForce{boxes};
  tessaly::platform::Override helpInForce{help};
  tessaly::platform::Override shellInForce{shell};
  Catalogue catalogue;
  std::optional<FakeWindow> window;
  std::optional<Reports> reports;
};

}  // namespace showcase::tests
