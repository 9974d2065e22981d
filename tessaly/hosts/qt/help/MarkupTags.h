#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// A tag of a page: its name in lower case, with a slash before it where it ends something, and all that
/// stands behind.
struct MarkupTag {
  String name;
  std::u16string_view rest;

  /// The value of an attribute, its name told in lower case; nothing where there is none.
  std::optional<String> attribute(std::u16string_view attributeName) const;
};

/// Goes through the tags of a text, however it is put together; comments are passed over.
class MarkupTags {
 public:
  explicit MarkupTags(std::u16string_view text) : text_(text) {}

  /// Nothing at the end.
  std::optional<MarkupTag> next();

 private:
  std::size_t endOfTag(std::size_t start);
  std::size_t closing(char16_t quote, std::size_t from);
  bool passComment(std::size_t start);

  std::u16string_view text_;
  std::size_t at_ = 0;
  std::array<bool, 2> areQuotesUsedUp_{};
  bool areCommentsUsedUp_ = false;
};

/// The text with "&amp;", "&#228;" and the like as the characters that they stand for; what is none of them
/// stays.
String withoutEntities(std::u16string_view text);

}  // namespace tessaly::qt
