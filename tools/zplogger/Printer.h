#pragma once

#include "tools/zplogger/LineFormat.h"
#include "tools/zplogger/Output.h"
#include "tools/zplogger/View.h"

namespace tessaly::zplogger {

/// Which of the outputs get colours.
struct Colours {
  bool forLines = false;
  bool forNotices = false;
};

/// Prints what a view has: the lines to the output and what the tool says to the errors, where a status
/// stands while lines are held if that is a terminal. For one thread, and all it is given must outlive it.
class Printer {
 public:
  Printer(View& view, Output& out, Output& errors, Colours colours)
      : view_(view), out_(out), errors_(errors), lines_(colours.forLines), notices_(colours.forNotices) {}

  /// Prints until the view is finished or the output can't be written.
  Written run();

 private:
  Written print(const std::vector<Entry>& entries);
  Written flush();
  void draw(const Status& status);
  void clearStatus();

  View& view_;
  Output& out_;
  Output& errors_;
  LineFormat lines_;
  LineFormat notices_;

  /// Lines that stand in a row go out by one write.
  std::string buffer_;
  Status drawn_;
};

}  // namespace tessaly::zplogger
