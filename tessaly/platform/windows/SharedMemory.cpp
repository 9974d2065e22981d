#include "tessaly/platform/SharedMemory.h"

#include <windows.h>

#include "tessaly/platform/Bodies.h"

namespace tessaly::platform {
namespace {

HANDLE nativeMapping(MappingHandle mapping) { return reinterpret_cast<HANDLE>(mapping); }

class WindowsSharedMemory final : public SharedMemory {
 public:
  MappingHandle CreateFileMappingA(PageProtection protection, std::uint32_t sizeHigh, std::uint32_t sizeLow,
                                   const char* name) override {
    return reinterpret_cast<MappingHandle>(
        ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, protection, sizeHigh, sizeLow, name));
  }

  MappingHandle OpenFileMappingA(ViewAccess access, const char* name) override {
    return reinterpret_cast<MappingHandle>(::OpenFileMappingA(access, FALSE, name));
  }

  void* MapViewOfFile(MappingHandle mapping, ViewAccess access, std::size_t size) override {
    return ::MapViewOfFile(nativeMapping(mapping), access, 0, 0, size);
  }

  bool UnmapViewOfFile(const void* view) override { return ::UnmapViewOfFile(view); }

  bool CloseHandle(MappingHandle mapping) override { return ::CloseHandle(nativeMapping(mapping)); }
};

}  // namespace

SharedMemory& ownSharedMemory() {
  static WindowsSharedMemory memory;
  return memory;
}

}  // namespace tessaly::platform
