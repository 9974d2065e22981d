#include "tools/tessaly-reg/Run.h"

#include <system_error>

#include "tools/tessaly-reg/Commands.h"
#include "tools/tessaly-reg/Help.h"

namespace tessaly::reg {
namespace {

int runCommand(const Arguments& arguments, Context& context) {
  switch (arguments.command) {
    case Command::Query:
      return query(arguments, context);
    case Command::Add:
      return add(arguments, context);
    case Command::Delete:
      return deleteKeyOrValue(arguments, context);
    case Command::Export:
      return exportKey(arguments, context);
    case Command::Import:
      return importFile(arguments, context);
    default:
      return repair(arguments, context);
  }
}

/// Whether two paths lead to one file, or would if it were made.
bool areSame(const std::filesystem::path& left, const std::filesystem::path& right) {
  std::error_code leftError;
  std::error_code rightError;
  if (std::filesystem::equivalent(left, right, leftError)) return true;
  return std::filesystem::weakly_canonical(std::filesystem::absolute(left), leftError) ==
             std::filesystem::weakly_canonical(std::filesystem::absolute(right), rightError) &&
         !leftError && !rightError;
}

int complain(const Arguments& arguments, const std::string& fault, std::ostream& errors) {
  const std::string_view help = helpOf(arguments.command);
  errors << "tessaly-reg: " << fault << '\n';
  if (arguments.command != Command::None) errors << "Usage: " << help.substr(0, help.find('\n')) << '\n';
  errors << "\"tessaly-reg --help\" tells more.\n";
  return kWrongUsage;
}

}  // namespace

int run(const std::vector<std::string>& words, const Surroundings& around) {
  Arguments arguments;
  const std::string fault = parseArguments(words, arguments);
  if (!fault.empty()) return complain(arguments, fault, around.errors);
  if (arguments.wantsHelp) {
    around.out << helpOf(arguments.command);
    return kDone;
  }
  if (arguments.wantsVersion) {
    around.out << "tessaly-reg " << TESSALY_VERSION << '\n';
    return kDone;
  }
  const Stores stores = around.openStores(arguments);
  if (areSame(stores.machine.file, stores.user.file))
    return complain(arguments, "the user's file and the machine's are one", around.errors);
  Context context(around, stores);
  return runCommand(arguments, context);
}

}  // namespace tessaly::reg
