#pragma once

#include <chrono>
#include <optional>
#include <string>

/// The program of the desktop that opens files and addresses by whatever the user has chosen for them.
namespace tessaly::platform {

/// Where it stands in the search path; nothing where it is missing. Folders that are not told from the root
/// on are left out: nobody's current folder has a say in what is run.
std::optional<std::string> openerPath();

/// How opening went, as far as it was seen.
enum class Opening { NotStarted, NoFolder, NoMemory, GoesOn, Ended };

struct Opened {
  Opening how = Opening::NotStarted;

  /// The program's exit code where it has ended, and -1 where something has killed it.
  int code = 0;
};

/// Runs the program with one argument, in a folder of one's choice, and waits for its end a moment: some
/// programs stay as long as what they show. It gets none of the caller's descriptors, signals or terminal,
/// and the caller no signal of its end and no child to wait for, unless he is one whom the system gives
/// orphans to (a container's first process, a child subreaper): such a one gets each program that outlasts
/// the moment. Any thread may call, and is not cancelled meanwhile.
Opened runOpener(const std::string& program, const std::string& argument, const char* directory,
                 std::chrono::nanoseconds moment);

}  // namespace tessaly::platform
