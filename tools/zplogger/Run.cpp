#include "tools/zplogger/Run.h"

#include "tools/zplogger/Help.h"

namespace tessaly::zplogger {
namespace {

int complain(const std::string& fault, std::ostream& errors) {
  errors << "zplogger: " << fault << "\n\"zplogger --help\" tells more.\n";
  return kWrongUsage;
}

}  // namespace

int run(const std::vector<std::string>& words, const Surroundings& around) {
  Arguments arguments;
  const std::string fault = parseArguments(words, arguments);
  if (!fault.empty()) return complain(fault, around.errors);
  if (arguments.wantsHelp) {
    around.out << helpText();
    return kDone;
  }
  if (arguments.wantsVersion) {
    around.out << "zplogger " << TESSALY_VERSION << '\n';
    return kDone;
  }
  return around.serve(arguments);
}

}  // namespace tessaly::zplogger
