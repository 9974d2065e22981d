#include "tools/tessaly-reg/Run.h"

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

/// A reader that has gone, or a full disk.
int checkOutput(std::ostream& out, std::ostream& errors, int code) {
  out.flush();
  if (out) return code;
  errors << "tessaly-reg: can't write the output\n";
  return kFailed;
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
    return checkOutput(around.out, around.errors, kDone);
  }
  if (arguments.wantsVersion) {
    around.out << "tessaly-reg " << TESSALY_VERSION << '\n';
    return checkOutput(around.out, around.errors, kDone);
  }
  const Stores stores = around.openStores(arguments);
  Context context(around, stores);
  return checkOutput(around.out, around.errors, runCommand(arguments, context));
}

}  // namespace tessaly::reg
