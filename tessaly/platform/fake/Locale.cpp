#include "tessaly/platform/fake/Locale.h"

#include <utility>

#include "tessaly/platform/Bodies.h"

namespace tessaly::platform::fake {

Locale::Locale(Long lcid, String decimalSeparator) : Locale(lcid, std::move(decimalSeparator), 1252) {}

Locale::Locale(Long lcid, String decimalSeparator, Long codePage)
    : lcid_(lcid), decimalSeparator_(std::move(decimalSeparator)), codePage_(codePage) {}

std::string Locale::WideCharToMultiByte(Long codePage, std::u16string_view text) {
  return ownLocale().WideCharToMultiByte(codePage, text);
}

String Locale::MultiByteToWideChar(Long codePage, std::string_view text) {
  return ownLocale().MultiByteToWideChar(codePage, text);
}

String Locale::CharUpperW(std::u16string_view text) { return ownLocale().CharUpperW(text); }

}  // namespace tessaly::platform::fake
