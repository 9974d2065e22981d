#pragma once

#include <cstddef>
#include <cstdint>

namespace tessaly::platform {

/// A block of memory that a call has opened; 0 is none.
using MappingHandle = std::intptr_t;

/// How the pages of a block are kept: for reading and writing, and committed at once.
using PageProtection = std::uint32_t;
inline constexpr PageProtection kReadWritePages = 0x4;
inline constexpr PageProtection kCommittedPages = 0x8000000;

/// What a view is for.
using ViewAccess = std::uint32_t;
inline constexpr ViewAccess kViewWrite = 0x2;
inline constexpr ViewAccess kViewRead = 0x4;

/// Named blocks of memory that processes of one user share, by the platform's own calls. Names are 8-bit text
/// in the system's code page, told apart by case. A block lives as long as a handle or a view of it, in
/// whichever process; a new one is all zeros. No call throws but for want of memory; any thread may call.
struct SharedMemory {
  virtual ~SharedMemory() = default;

  /// Makes a block in the system's paging file, or opens the one that has the name, whatever its size; 0
  /// where that fails. The caller closes it.
  virtual MappingHandle CreateFileMappingA(PageProtection protection, std::uint32_t sizeHigh,
                                           std::uint32_t sizeLow, const char* name) = 0;

  /// Opens a block that exists; 0 where none has the name or it can't be opened.
  virtual MappingHandle OpenFileMappingA(ViewAccess access, const char* name) = 0;

  /// Shows the first `size` bytes of a block; null where the block is smaller or can't be shown. The view
  /// stays when the handle is closed.
  virtual void* MapViewOfFile(MappingHandle mapping, ViewAccess access, std::size_t size) = 0;

  /// Whether there was such a view; it is gone now.
  virtual bool UnmapViewOfFile(const void* view) = 0;

  /// Whether there was such a handle; it is closed now.
  virtual bool CloseHandle(MappingHandle mapping) = 0;
};

}  // namespace tessaly::platform
