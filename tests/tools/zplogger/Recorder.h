#pragma once

#include <string>
#include <vector>

#include "tessaly/base/Text.h"
#include "tools/zplogger/Listener.h"

namespace tessaly::tests {

/// Takes down what a receiver hands on.
struct Recorder : zplogger::Listener {
  void addClient(const zplogger::Sender& sender, const zplogger::ClientRecord& record) override {
    heard.push_back("add " + shownSender(sender) + ' ' + toUtf8(record.name) + '|' + toUtf8(record.logFile) +
                    '|' + toUtf8(record.backupFile));
  }
  void trace(const zplogger::Sender& sender, const zplogger::TraceRecord& record) override {
    heard.push_back("trace " + shownSender(sender) + ' ' + std::to_string(record.level) + ' ' +
                    toUtf8(record.text));
  }
  void deleteClient(const zplogger::Sender& sender) override {
    heard.push_back("delete " + shownSender(sender));
  }
  void fault(const zplogger::Sender& sender, std::string_view why) override {
    heard.push_back("fault " + shownSender(sender) + ' ' + std::string(why));
  }

  static std::string shownSender(const zplogger::Sender& sender) {
    return std::to_string(sender.clientId) + '/' + std::to_string(sender.process);
  }

  std::vector<std::string> heard;
};

}  // namespace tessaly::tests
