#include "tools/zplogger/Help.h"

namespace tessaly::zplogger {

std::string_view helpText() {
  return R"(zplogger shows the lines that programs trace, and writes them into log files.

  zplogger [--level N] [--text TEXT] [--max-size SIZE] [--no-log] [--color WHEN]

  --level N        show lines of level N and above, 0 to 255; 0 if not told
  --text TEXT      show lines that have this text, in any case
  --max-size SIZE  move a log file to its backup before it grows past this size,
                   such as 500K, 2M or 1G; 1M if not told
  --no-log         write no log files
  --color WHEN     show lines in their own colours: always, never, or auto,
                   which is if the terminal has all colours
  --help           this text
  --version        the version

Each client names its log file and a backup file itself. A log file has all of
the client's lines, whatever is shown.

Keys on a terminal:
  space   pauses, and goes on; clients do not wait meanwhile
  + -     move the lowest level that is shown
  /       asks for a text that lines must have; Enter takes it, Esc leaves it
  ?       tells the keys
  q       ends

Without a terminal it runs until it is asked to end, by SIGTERM or Ctrl-C.

Exit codes: 0 ended as asked, 1 failed, 2 the command line is wrong.
)";
}

}  // namespace tessaly::zplogger
