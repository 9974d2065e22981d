#pragma once

#include "tools/tessaly-reg/RegFile.h"
#include "tools/tessaly-reg/RegScanner.h"

namespace tessaly::reg {

/// Reads the text of a .reg file, once. What fails tells why and is at the end of what it skips.
class RegParser {
 public:
  /// The text must outlive the object.
  explicit RegParser(std::u16string_view text) : in_(text) {}

  RegFile parse();

 private:
  /// What stands in force above a value.
  enum class Section { None, Wrong, Deleted, Open };

  bool header();
  bool line();
  bool section();
  bool openSection(std::u16string_view name, std::size_t line);
  bool value();
  bool valueName(String& name);
  bool data(RegChange& change);
  bool text(RegChange& change);
  bool number(platform::KeyValue& value);
  bool typedHex(platform::KeyValue& value);
  bool hex(platform::RegistryType type, platform::KeyValue& value);
  bool bytes(std::string& bytes);
  bool byte(std::string& bytes);
  bool takeHexNumber(std::uint32_t& number);
  bool takeLineEnd();
  bool hexText(std::size_t line, std::string_view bytes, platform::KeyValue& value);
  void add(RegChange change);
  bool fail(std::size_t line, std::string message);
  bool fail(std::string message) { return fail(in_.line(), std::move(message)); }

  RegScanner in_;
  RegFile file_;
  Section section_ = Section::None;
  bool isOldForm_ = false;
};

}  // namespace tessaly::reg
