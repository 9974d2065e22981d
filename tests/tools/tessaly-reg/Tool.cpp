#include "tests/tools/tessaly-reg/Tool.h"

#include <sstream>

#include "tessaly/base/Text.h"
#include "tools/tessaly-reg/Run.h"

namespace tessaly::tests {

int Tool::run(const std::vector<std::string>& words) {
  std::ostringstream outStream;
  std::ostringstream errorStream;
  const auto ask = [this](const std::string& asked) {
    question = asked;
    return answer;
  };
  const auto openStores = [this](const reg::Arguments& /*arguments*/) {
    ++openings;
    return reg::Stores{{machineInForce, machineFile}, {userInForce, userFile}, u"S-1-22-1-1000"};
  };
  const int code = reg::run(words, {outStream, errorStream, ask, openStores});
  out = outStream.str();
  errors = errorStream.str();
  return code;
}

int Tool::import(std::string_view bytes, const std::vector<std::string>& more) {
  std::vector<std::string> words = {"import", toUtf8(folder.write(u"file.reg", bytes))};
  words.insert(words.end(), more.begin(), more.end());
  return run(words);
}

std::string Tool::exported(const std::string& key) {
  run({"export", key, "-"});
  return out;
}

std::string regFile(std::string_view content) {
  return "Windows Registry Editor Version 5.00\n\n" + std::string(content);
}

}  // namespace tessaly::tests
