#include <algorithm>
#include <system_error>

#include "tessaly/platform/keys/HiveFile.h"
#include "tools/tessaly-reg/Commands.h"
#include "tools/tessaly-reg/Counts.h"
#include "tools/tessaly-reg/Failure.h"
#include "tools/tessaly-reg/Visible.h"

namespace tessaly::reg {
namespace {

using std::filesystem::path;

std::string shown(const path& file) { return visible(file.string()); }

int mend(const path& file, Context& context) {
  platform::HiveRepair done;
  const Long result = platform::repairHive(file, done);
  if (result != platform::registry_result::kSuccess)
    return fail(context, "can't repair " + shown(file), words(result));
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
  for (const std::string& fault : faults) context.out << shown(file) << ": " << visible(fault) << '\n';
  return isPreview ? kFailed : mend(file, context);
}

}  // namespace

int repair(const Arguments& arguments, Context& context) {
  std::error_code ignored;
  if (arguments.file) {
    if (!std::filesystem::exists(*arguments.file, ignored))
      return fail(context, "can't repair " + shown(*arguments.file), "there is no such file");
    return repairFile(*arguments.file, arguments.isPreview, context);
  }
  int code = kDone;
  for (const NamedStore* named : {&context.stores.machine, &context.stores.user}) {
    if (!std::filesystem::exists(named->file, ignored)) {
      context.out << shown(named->file) << ": nothing is kept there yet\n";
    } else {
      code = std::max(code, repairFile(named->file, arguments.isPreview, context));
    }
  }
  return code;
}

}  // namespace tessaly::reg
