#include "tools/zplogger/Clients.h"

#include <algorithm>
#include <utility>

namespace tessaly::zplogger {

bool Clients::add(const Sender& sender, const ClientRecord& record) {
  const Client* known = find(sender);
  if (known != nullptr && known->record == record) return false;
  if (known == nullptr && entries_.size() >= kMost) forgetOldest();
  entries_[sender] = {{record, logPath(record.logFile), logPath(record.backupFile)}, ++uses_};
  return true;
}

const Client* Clients::find(const Sender& sender) {
  const auto found = entries_.find(sender);
  if (found == entries_.end()) return nullptr;
  found->second.lastUse = ++uses_;
  return &found->second.client;
}

std::optional<Client> Clients::remove(const Sender& sender) {
  auto found = entries_.extract(sender);
  if (found.empty()) return std::nullopt;
  return std::move(found.mapped().client);
}

void Clients::forgetOldest() {
  const auto isOlder = [](const auto& left, const auto& right) {
    return left.second.lastUse < right.second.lastUse;
  };
  entries_.erase(std::min_element(entries_.begin(), entries_.end(), isOlder));
}

}  // namespace tessaly::zplogger
