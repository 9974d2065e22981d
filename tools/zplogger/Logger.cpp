#include "tools/zplogger/Logger.h"

#include "tools/support/Hex.h"
#include "tools/support/Visible.h"
#include "tools/zplogger/LogLine.h"

namespace tessaly::zplogger {
namespace {

constexpr std::size_t kMostTold = 1000;

/// A client without a name, or that has not told it, goes by its id.
String nameOf(const Sender& sender, const Client* client) {
  if (client != nullptr && !client->record.name.empty()) return client->record.name;
  return tools::hexDigits(sender.clientId, 1, tools::HexLetters::Capital);
}

std::string shownClient(const Sender& sender, const Client* client) {
  const std::string name = tools::visible(nameOf(sender, client));
  return sender.process == 0 ? name : name + " (process " + std::to_string(sender.process) + ')';
}

}  // namespace

void Logger::addClient(const Sender& sender, const ClientRecord& record) {
  if (!clients_.add(sender, record)) return;
  const Client& client = *clients_.find(sender);
  const bool hasLog = files_ != nullptr && !client.log.path.empty();
  view_.tell(shownClient(sender, &client) + " is here" +
             (hasLog ? "; its lines go to " + tools::visible(client.log.path) : std::string()));
  if (files_ != nullptr && !client.log.fault.empty())
    view_.tell("can't write to " + tools::inQuotes(record.logFile) + ": " + client.log.fault);
}

void Logger::trace(const Sender& sender, const TraceRecord& record) {
  const Moment now = clock_.now();
  const Client* client = clients_.find(sender);
  const String name = nameOf(sender, client);
  if (files_ != nullptr && client != nullptr)
    files_->write(client->log, client->backup, logLine(now.local, record, name), now.ticks);
  view_.show({now.local, name, sender.process, record});
}

void Logger::deleteClient(const Sender& sender) {
  if (const auto client = clients_.remove(sender)) view_.tell(shownClient(sender, &*client) + " has left");
}

void Logger::fault(const Sender& sender, std::string_view why) {
  const std::string notice = shownClient(sender, clients_.find(sender)) + ": " + std::string(why);
  if (told_.size() < kMostTold && told_.insert(notice).second) view_.tell(notice);
}

}  // namespace tessaly::zplogger
