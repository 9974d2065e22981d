#pragma once

#include <set>
#include <string>

#include "tools/zplogger/Clients.h"
#include "tools/zplogger/Clock.h"
#include "tools/zplogger/LogFiles.h"
#include "tools/zplogger/View.h"

namespace tessaly::zplogger {

/// Brings what clients send into their log files and to the view. A line is in its file when the client goes
/// on. For the receiver's thread.
class Logger final : public Listener {
 public:
  /// Without log files no file is written. All that is handed over must outlive this object.
  Logger(View& view, LogFiles* files, Clock& clock) : view_(view), files_(files), clock_(clock) {}

  void addClient(const Sender& sender, const ClientRecord& record) override;
  void trace(const Sender& sender, const TraceRecord& record) override;
  void deleteClient(const Sender& sender) override;
  void fault(const Sender& sender, std::string_view why) override;

 private:
  View& view_;
  LogFiles* files_;
  Clock& clock_;
  Clients clients_;
  std::set<std::string> told_;
};

}  // namespace tessaly::zplogger
