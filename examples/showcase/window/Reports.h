#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "examples/showcase/window/Commands.h"
#include "examples/showcase/window/Desk.h"
#include "examples/showcase/window/Preferences.h"
#include "examples/showcase/window/Report.h"
#include "examples/showcase/window/Shelf.h"
#include "examples/showcase/window/ToolBar.h"

namespace showcase {

/// The tool itself: what its window shows, and what happens when its user does something. It knows of no
/// platform.
class Reports {
 public:
  /// Fills a window in the catalogue's language in force, with the report of a folder that was open last, or
  /// the first one. Window and catalogue must outlive this; `clock` tells the time as the list of events
  /// shows it.
  Reports(Window& window, tessaly::CResources& resources, Preferences preferences, tessaly::String folder,
          std::function<tessaly::String()> clock);
  Reports(const Reports&) = delete;
  Reports& operator=(const Reports&) = delete;
  ~Reports();

  tessaly::transparentBitmap& button(Tool tool) const { return toolBar_.button(tool); }
  const Report& report() const { return report_; }
  const Preferences& preferences() const { return preferences_; }

  /// How many lines the list of events has.
  std::size_t events() const { return events_.size(); }

 private:
  /// A line of the list, to be said in any language.
  struct Happening {
    tessaly::String time;
    Saying name;
    tessaly::String event;
    std::optional<Saying> comment;
  };

  void listenToWindow();
  void listenTo(Tool tool);
  void openFirst();

  /// Does a command of an event's, and tells both. What the library raises is shown.
  void perform(Command command, std::u16string_view event);
  Saying act(Command command);
  Saying chooseLanguage(tessaly::Long place);

  Saying beginNew();
  Saying openChosen();
  Saying save();
  Saying saveAs();
  Saying print();
  Saying mail();
  Saying deleteReport();
  Saying refresh();
  Saying find();
  Saying findNext();
  Saying goToRow();
  Saying filter();
  Saying removeFilter();
  Saying sortBy(tessaly::Long column, bool isDescending);
  Saying sortSelected(bool isDescending);
  Saying turnTo(tessaly::Long page);
  Saying zoomTo(tessaly::Long percent);
  Saying toggleNumbers();
  Saying changeSettings();

  bool open(const tessaly::String& name);
  bool write(const tessaly::String& name, const std::vector<ReportRow>& rows);
  void takeSelection();

  /// Saves changes where the user wants so; false where that fails.
  bool isSettled();
  bool close();

  Saying rowsShown() const;
  tessaly::String nameShown() const;
  void keepAndSpeak(tessaly::Long language);
  void speak();
  void show();
  void showRows();
  Event eventOf(const Happening& happening) const;
  void tell(const Saying& name, std::u16string_view event, std::optional<Saying> comment);

  Window& window_;
  tessaly::CResources& resources_;
  Shelf shelf_;
  std::function<tessaly::String()> clock_;
  Preferences preferences_;
  Report report_;
  ToolBar toolBar_;
  std::vector<MenuItem> menus_;
  std::vector<Happening> events_;

  /// What boxes, links and help of a command are told under, and what the line at the bottom says.
  Saying under_ = ReportMenu;
  Saying message_ = Ready;
  tessaly::String sought_;
  tessaly::Long timesSent_ = 0;
  Desk desk_;
};

}  // namespace showcase
