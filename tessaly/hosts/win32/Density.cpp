#include "tessaly/hosts/win32/Density.h"

#include <cstdint>

namespace tessaly::win32 {
namespace {

UINT dotsOfAllScreens() {
  const HDC context = GetDC(nullptr);
  const int dots = GetDeviceCaps(context, LOGPIXELSY);
  ReleaseDC(nullptr, context);
  return static_cast<UINT>(dots);
}

/// Systems before Windows 10, version 1607, have one density for all of a program's windows, and lack the
/// call.
UINT dotsOf(HWND window) {
  using Call = UINT(WINAPI*)(HWND);
  static const auto call = reinterpret_cast<Call>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
  return call != nullptr ? call(window) : dotsOfAllScreens();
}

/// Towards the smaller number, also below 0; the divisor is above it.
Long floorOf(std::int64_t number, std::int64_t divisor) {
  const std::int64_t rest = (number % divisor + divisor) % divisor;
  return static_cast<Long>((number - rest) / divisor);
}

DotsPerInch& tellerInForce() {
  static DotsPerInch teller = dotsOf;
  return teller;
}

}  // namespace

Density Density::of(HWND window) { return Density(tellerInForce()(window)); }

Long Density::down(Long measure) const { return floorOf(static_cast<std::int64_t>(measure) * kUsual, dots_); }

Long Density::up(Long measure) const { return -floorOf(-static_cast<std::int64_t>(measure) * dots_, kUsual); }

void tellDensity(DotsPerInch teller) { tellerInForce() = teller != nullptr ? teller : dotsOf; }

}  // namespace tessaly::win32
