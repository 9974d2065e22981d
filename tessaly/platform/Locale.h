#pragma once

#include <string>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// The user's language and number form, and 8-bit text. No call throws but for want of memory; any thread may
/// call.
struct Locale {
  virtual ~Locale() = default;

  /// The user's language as a Windows language identifier; 1033 where the user has chosen none.
  virtual Long GetUserDefaultLCID() = 0;

  /// What the user puts before the fraction of a number.
  virtual String decimalSeparator() = 0;

  /// The number of the code page that 8-bit text has here, such as 1252 or 932; it stays while the program
  /// runs.
  virtual Long GetACP() = 0;

  /// Wide text as 8-bit text in a code page: one of Windows's own for a system (874, 932, 936, 949, 950, 1250
  /// to 1258) or UTF-8 (65001); a number that the platform does not know counts as 1252. A UTF-16 unit that
  /// the page lacks becomes '?', one for each unit, unless the platform has a character that looks alike.
  /// UTF-8 lacks only a surrogate without its partner, which becomes U+FFFD.
  virtual std::string WideCharToMultiByte(Long codePage, std::u16string_view text) = 0;

  /// 8-bit text in a code page as wide text. A byte that a one-byte page leaves open becomes what Windows's
  /// table has in its place: a control character or a private one (U+F8xx). In a double-byte page a lead byte
  /// takes the next byte with it, whatever that is but NUL; a pair that the page lacks, and a lead byte
  /// alone, become '?', in 932 U+30FB. Bytes that are no UTF-8 become one U+FFFD or more.
  virtual String MultiByteToWideChar(Long codePage, std::string_view text) = 0;

  /// The text in upper case, unit by unit, by no language's own rules: two names are the same where this is
  /// the same. Only letters that come back from upper case as they were are changed, so 'ß', 'ı', 'µ' and the
  /// final sigma stay.
  virtual String CharUpperW(std::u16string_view text) = 0;
};

}  // namespace tessaly::platform
