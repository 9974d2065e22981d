#include "tools/tessaly-reg/RegParser.h"

#include "tessaly/base/Ascii.h"
#include "tessaly/platform/Core.h"
#include "tools/support/Visible.h"
#include "tools/tessaly-reg/RegEncoding.h"

namespace tessaly::reg {
namespace {

using platform::KeyValue;
using Kind = RegChange::Kind;

constexpr std::u16string_view kOldForm = u"REGEDIT4";
constexpr std::u16string_view kNewForm = u"Windows Registry Editor Version 5.00";
constexpr std::u16string_view kBlanks = u" \t";

std::u16string_view withoutBlanksBehind(std::u16string_view text) {
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string littleEndian(std::uint32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>((number >> shift) & 0xFFU);
  return bytes;
}

}  // namespace

bool RegParser::fail(std::size_t line, std::string message) {
  file_.errors.push_back({line, std::move(message)});
  return false;
}

RegFile RegParser::parse() {
  if (!header()) return std::move(file_);
  while (!in_.atEnd() && file_.errors.size() < kMostErrors) {
    line();
    in_.nextLine();
  }
  return std::move(file_);
}

bool RegParser::header() {
  const std::u16string_view first = withoutBlanksBehind(in_.takeLine());
  isOldForm_ = first == kOldForm;
  if (!isOldForm_ && first != kNewForm)
    return fail("expected \"Windows Registry Editor Version 5.00\" or \"REGEDIT4\" in the first line");
  in_.nextLine();
  return true;
}

bool RegParser::line() {
  in_.skipBlanks();
  if (in_.atLineEnd()) return true;
  if (in_.take(u'[')) return section();
  if (in_.front() == u'@' || in_.front() == u'"') return value();
  return fail(R"(expected a key in brackets, a value ("name"=… or @=…) or a comment behind ;)");
}

/// The name of a key may hold brackets itself, so it ends at the line's last one.
bool RegParser::section() {
  section_ = Section::Wrong;
  const std::size_t line = in_.line();
  std::u16string_view rest = in_.takeLine();
  const std::size_t end = rest.rfind(u']');
  if (end == std::u16string_view::npos) return fail(line, "expected ] behind the name of the key");
  RegScanner tail(rest.substr(end + 1));
  tail.skipBlanks();
  if (!tail.atLineEnd()) return fail(line, "expected nothing but a comment behind ]");
  return openSection(rest.substr(0, end), line);
}

bool RegParser::openSection(std::u16string_view name, std::size_t line) {
  const bool isDeletion = name.starts_with(u'-');
  if (isDeletion) name.remove_prefix(1);
  auto key = keyNamed(name);
  if (!key) {
    return fail(
        line,
        "expected a key under HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER, HKEY_CLASSES_ROOT, HKEY_USERS or "
        "HKEY_CURRENT_CONFIG, not " +
            tools::inQuotes(name));
  }
  if (isDeletion && key->path.empty()) return fail(line, tools::inQuotes(name) + " itself can't be deleted");
  section_ = isDeletion ? Section::Deleted : Section::Open;
  file_.keys.push_back(std::move(*key));
  RegChange change;
  change.kind = isDeletion ? Kind::DeleteKey : Kind::MakeKey;
  change.line = line;
  add(std::move(change));
  return true;
}

void RegParser::add(RegChange change) {
  change.key = static_cast<std::uint32_t>(file_.keys.size() - 1);
  file_.changes.push_back(std::move(change));
}

bool RegParser::value() {
  RegChange change;
  change.kind = Kind::SetValue;
  change.line = in_.line();
  if (!valueName(change.name)) return false;
  in_.skipBlanks();
  if (!data(change)) return false;
  if (section_ == Section::None) return fail(change.line, "expected a key in brackets above the first value");
  if (section_ == Section::Deleted) return fail(change.line, "a key that is deleted can't hold a value");
  if (section_ == Section::Open) add(std::move(change));
  return true;
}

bool RegParser::valueName(String& name) {
  const RegScanner::Place begin = in_.place();
  if (!in_.take(u'@')) {
    in_.take(u'"');
    const auto quote = in_.takeQuoted(name);
    if (quote == RegScanner::Quote::BadEscape && in_.line() == begin.line)
      return fail(R"(a backslash in a name is written \\ and a quotation mark \")");
    // Most likely the name was to end in its own line.
    if (in_.line() != begin.line) in_.skipBlanks();
    const bool isName =
        quote == RegScanner::Quote::Closed && (in_.line() == begin.line || in_.front() == u'=');
    if (!isName) {
      in_.goTo(begin);
      return fail("expected a quotation mark at the end of the name");
    }
  }
  in_.skipBlanks();
  return in_.take(u'=') || fail("expected = behind the name of the value");
}

bool RegParser::takeLineEnd() {
  in_.skipBlanks();
  return in_.atLineEnd() || fail("expected nothing but a comment behind the value");
}

bool RegParser::data(RegChange& change) {
  if (in_.front() == u'"') return text(change);
  if (in_.take(u'-')) {
    change.kind = Kind::DeleteValue;
    return takeLineEnd();
  }
  if (in_.takeWord(u"dword:")) return number(change.value);
  if (in_.takeWord(u"hex:")) return hex(platform::kBinary, change.value);
  if (in_.takeWord(u"hex(")) return typedHex(change.value);
  return fail(R"(expected "text", dword:…, hex:…, hex(type):… or - behind =)");
}

bool RegParser::text(RegChange& change) {
  const RegScanner::Place begin = in_.place();
  in_.take(u'"');
  change.value.type = platform::kText;
  const auto quote = in_.takeQuoted(change.value.text);
  if (quote == RegScanner::Quote::BadEscape && in_.line() == begin.line)
    return fail(R"(a backslash in a text is written \\ and a quotation mark \")");
  change.value.text += u'\0';
  in_.skipBlanks();
  const bool isWhole = quote == RegScanner::Quote::Closed;
  if (isWhole && in_.line() == begin.line) return takeLineEnd();
  if (isWhole && in_.atLineEnd()) return true;
  // Most likely the text was to end in its own line.
  in_.goTo(begin);
  return fail("expected a quotation mark at the end of the text");
}

bool RegParser::takeHexNumber(std::uint32_t& number) {
  int digits = 0;
  for (number = 0; hexDigitValue(in_.front()) < 16 && digits < 9; ++digits) {
    number = (number << 4) | hexDigitValue(in_.front());
    in_.take(in_.front());
  }
  return digits >= 1 && digits <= 8;
}

bool RegParser::number(KeyValue& value) {
  std::uint32_t number = 0;
  in_.skipBlanks();
  if (!takeHexNumber(number)) return fail("expected one to eight hexadecimal digits behind dword:");
  value.type = platform::kNumber;
  value.bytes = littleEndian(number);
  return takeLineEnd();
}

bool RegParser::typedHex(KeyValue& value) {
  std::uint32_t type = 0;
  if (takeHexNumber(type) && in_.take(u')') && in_.take(u':')) return hex(type, value);
  fail("expected the type in hexadecimal digits, as in hex(7):");
  in_.skipContinuedLines();
  return false;
}

bool RegParser::hex(platform::RegistryType type, KeyValue& value) {
  const std::size_t line = in_.line();
  std::string data;
  if (!bytes(data)) {
    in_.skipContinuedLines();
    return false;
  }
  value.type = type;
  if (value.isText()) return hexText(line, data, value);
  value.bytes = std::move(data);
  return true;
}

bool RegParser::bytes(std::string& bytes) {
  in_.skipBlanksAndContinuations();
  if (in_.atLineEnd()) return true;
  while (byte(bytes)) {
    in_.skipBlanksAndContinuations();
    if (in_.atLineEnd()) return true;
    if (!in_.take(u',')) return fail("expected a comma behind the byte");
    in_.skipBlanksAndContinuations();
  }
  return fail("expected a byte of two hexadecimal digits");
}

bool RegParser::byte(std::string& bytes) {
  const std::uint32_t first = hexDigitValue(in_.front());
  if (first == 16) return false;
  in_.take(in_.front());
  const std::uint32_t second = hexDigitValue(in_.front());
  if (second != 16) in_.take(in_.front());
  bytes += static_cast<char>(second == 16 ? first : first * 16 + second);
  return true;
}

/// Text as bytes is UTF-16, in the old form 8-bit text.
bool RegParser::hexText(std::size_t line, std::string_view bytes, KeyValue& value) {
  if (isOldForm_) {
    platform::Locale& locale = *platform::core().locale;
    value.text = locale.MultiByteToWideChar(locale.GetACP(), bytes);
    return true;
  }
  if (bytes.size() % 2 != 0) return fail(line, "expected an even number of bytes, for text in UTF-16");
  value.text = unitsOf(bytes);
  return true;
}

}  // namespace tessaly::reg
