#pragma once

#include <cstddef>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::reg {

/// Goes through a text from the front, and knows in which line it is. Lines end with CR, LF or both.
class RegScanner {
 public:
  struct Place {
    std::size_t at = 0;
    std::size_t line = 1;
  };

  /// The text must outlive the object.
  explicit RegScanner(std::u16string_view text) : text_(text) {}

  Place place() const { return place_; }
  std::size_t line() const { return place_.line; }
  void goTo(Place place) { place_ = place; }

  bool atEnd() const { return place_.at == text_.size(); }

  /// Whether the line is over, but for a comment.
  bool atLineEnd() const;

  /// The character here; a NUL at the end.
  char16_t front() const { return atEnd() ? u'\0' : text_[place_.at]; }

  /// Goes past a character if it stands here.
  bool take(char16_t unit);

  /// Goes past a word of ASCII letters and signs if it stands here, in any case.
  bool takeWord(std::u16string_view word);

  void skipBlanks();

  /// Skips blanks, and a backslash with the line that it continues on the next one.
  void skipBlanksAndContinuations();

  /// What is left of the line; goes to its end.
  std::u16string_view takeLine();

  /// Goes to the beginning of the next line.
  void nextLine();

  /// Goes to the end of the line, or where a backslash continues it, to the end of the last line of these.
  void skipContinuedLines();

  enum class Quote { Closed, Open, BadEscape };

  /// Reads a text whose opening quote has been taken, over several lines where it goes on. At a bad escape it
  /// stays there.
  Quote takeQuoted(String& text);

 private:
  std::u16string_view rest() const { return text_.substr(place_.at); }
  void advanceOver(std::u16string_view passed);

  std::u16string_view text_;
  Place place_;
};

}  // namespace tessaly::reg
