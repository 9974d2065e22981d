#include "tools/zplogger/Records.h"

#include <utility>

#include "tessaly/platform/Core.h"

namespace tessaly::zplogger {
namespace {

/// Takes fields from the front of a block. Where one does not fit, it and all behind it are missing.
class Fields {
 public:
  explicit Fields(std::string_view block) : rest_(block.substr(0, kBlockSize)) {}

  bool areSound() const { return areSound_; }

  std::string_view bytes(std::size_t count) {
    areSound_ = areSound_ && count <= rest_.size();
    if (!areSound_) return {};
    const std::string_view front = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return front;
  }

  /// The lowest byte comes first.
  std::uint32_t number(std::size_t size) {
    std::uint32_t result = 0;
    unsigned shift = 0;
    for (const char byte : bytes(size)) {
      result |= std::uint32_t{static_cast<unsigned char>(byte)} << shift;
      shift += 8;
    }
    return result;
  }

  String text() {
    const std::string_view ansi = bytes(number(4));
    platform::Locale& locale = *platform::core().locale;
    return ansi.empty() ? String() : locale.MultiByteToWideChar(locale.GetACP(), ansi);
  }

 private:
  std::string_view rest_;
  bool areSound_ = true;
};

template <class Record>
std::optional<Record> ifSound(const Fields& fields, Record record) {
  return fields.areSound() ? std::optional(std::move(record)) : std::nullopt;
}

}  // namespace

std::optional<ClientRecord> readClientRecord(std::string_view block) {
  Fields fields(block);
  ClientRecord record;
  record.name = fields.text();
  record.logFile = fields.text();
  record.backupFile = fields.text();
  return ifSound(fields, std::move(record));
}

std::optional<TraceRecord> readTraceRecord(std::string_view block) {
  Fields fields(block);
  TraceRecord record;
  record.foreColor = fields.number(4);
  record.backColor = fields.number(4);
  record.flag = fields.number(1) != 0;
  record.level = static_cast<std::uint8_t>(fields.number(1));
  record.text = fields.text();
  return ifSound(fields, std::move(record));
}

}  // namespace tessaly::zplogger
