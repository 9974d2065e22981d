#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <vector>

#include "tools/zplogger/Filter.h"
#include "tools/zplogger/LineQueue.h"

namespace tessaly::zplogger {

/// What stands below the lines while they are held.
struct Status {
  bool isPaused = false;

  /// What was typed so far of a text that is asked for.
  std::optional<String> typed;

  /// How many lines wait.
  std::size_t waiting = 0;

  /// Moves when the terminal may have lost what stood there.
  unsigned drawing = 0;

  bool isHeld() const { return isPaused || typed.has_value(); }
  bool operator==(const Status&) const = default;
};

/// What stands between those that bring lines, those that press keys and the one that prints: none waits for
/// another but the one that prints, for something to do. Any thread may call.
class View {
 public:
  /// What is to be printed now.
  struct Work {
    std::vector<Entry> entries;
    Status status;

    /// There will be nothing more.
    bool isLast = false;
  };

  explicit View(Filter filter) : filter_(std::move(filter)) {}

  /// Takes a line, if the filter does, and a notice in the order of the lines.
  void show(Line line);
  void tell(std::string notice);

  /// Takes a notice that comes at once, also while lines are held.
  void answer(std::string notice);

  /// The filter is for lines that come and for those that wait.
  Filter filter() const;
  void setFilter(const Filter& filter);

  bool isPaused() const;
  void pause(bool isPaused);

  /// What stands behind the question for a text; nothing where none is asked for.
  void ask(std::optional<String> typed);

  /// The terminal may have lost its status.
  void redraw();

  /// How much waits to be printed, held or not.
  std::size_t waiting() const;

  /// From here on nothing comes any more; what waits is printed, held or not.
  void finish();

  /// Waits for something to print, or for the status to change; for one thread.
  Work next();

 private:
  template <class Change>
  void change(Change change);
  bool isDue() const;

  mutable std::mutex mutex_;
  std::condition_variable changed_;
  Filter filter_;
  LineQueue queue_;
  std::vector<Entry> answers_;
  Status status_;
  bool isStatusNew_ = false;
  bool isFinishing_ = false;
};

}  // namespace tessaly::zplogger
