#include <algorithm>
#include <optional>
#include <system_error>

#include "tessaly/platform/keys/HiveFile.h"
#include "tools/support/Visible.h"
#include "tools/tessaly-reg/Commands.h"
#include "tools/tessaly-reg/Counts.h"
#include "tools/tessaly-reg/Failure.h"

namespace tessaly::reg {
namespace {

using std::filesystem::path;

std::string shown(const path& file) { return tools::visible(file.string()); }

int mend(const path& file, Context& context) {
  platform::HiveRepair done;
  const Long result = platform::repairHive(file, done);
  if (result != platform::registry_result::kSuccess)
    return fail(context, "can't repair " + shown(file), words(result));
  if (done.damaged.empty()) {
    context.out << shown(file) << ": nothing is wrong any more\n";
    return kDone;
  }
  context.out << "Repaired: " << counted(done.keys, "key") << " and " << counted(done.values, "value")
              << " were saved. The damaged file is kept as " << shown(done.damaged) << ".\n";
  return kDone;
}

int repairFile(const path& file, bool isPreview, Context& context) {
  const std::vector<std::string> faults = platform::hiveFaults(file);
  if (faults.empty()) {
    context.out << shown(file) << ": nothing is wrong\n";
    return kDone;
  }
  for (const std::string& fault : faults) context.out << shown(file) << ": " << tools::visible(fault) << '\n';
  return isPreview ? kFailed : mend(file, context);
}

/// Where links lead to; nothing where there is no file. What can't be looked at is no answer, so it is told.
std::optional<path> resolved(const path& file, std::string& fault) {
  std::error_code error;
  path real = std::filesystem::canonical(file, error);
  if (!error) return real;
  const bool isMissing = error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
  if (!isMissing) fault = error.message();
  return std::nullopt;
}

int repairNamed(const Arguments& arguments, Context& context) {
  std::string fault;
  const std::optional<path> file = resolved(*arguments.file, fault);
  if (file) return repairFile(*file, arguments.isPreview, context);
  return fail(context, "can't repair " + shown(*arguments.file),
              fault.empty() ? "there is no such file" : fault);
}

int repairOwn(const path& file, bool isPreview, Context& context) {
  std::string fault;
  const std::optional<path> real = resolved(file, fault);
  if (real) return repairFile(*real, isPreview, context);
  if (!fault.empty()) return fail(context, "can't repair " + shown(file), fault);
  context.out << shown(file) << ": nothing is kept there yet\n";
  return kDone;
}

}  // namespace

int repair(const Arguments& arguments, Context& context) {
  if (arguments.file) return repairNamed(arguments, context);
  const int machines = repairOwn(context.stores.machine.file, arguments.isPreview, context);
  return std::max(machines, repairOwn(context.stores.user.file, arguments.isPreview, context));
}

}  // namespace tessaly::reg
