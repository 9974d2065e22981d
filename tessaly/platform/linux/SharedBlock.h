#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "tessaly/platform/linux/Descriptor.h"

namespace tessaly::platform {

/// A named block of shared memory, held open: a file of the system's shared memory, for this user alone.
/// Every holder has a shared lock on it, the child of a fork the parent's; so who gets the exclusive one
/// knows that nobody has the block. The last holder removes it. What a killed one has left is empty to the
/// next that makes the block, and removed by the next that opens it.
class SharedBlock {
 public:
  /// Makes a block, or opens the one that has the name, whatever its size; none where that fails.
  static std::shared_ptr<const SharedBlock> made(const std::string& name, std::size_t size);

  /// Opens a block that somebody has; none where nobody has one of this name.
  static std::shared_ptr<const SharedBlock> existing(const std::string& name);

  SharedBlock(std::string path, Descriptor file) : path_(std::move(path)), file_(std::move(file)) {}
  SharedBlock(const SharedBlock&) = delete;
  SharedBlock& operator=(const SharedBlock&) = delete;
  ~SharedBlock() { letGo(); }

  /// Lets others have the block alone, or removes it where there are none; nothing more can be shown of it.
  void letGo() const;

  std::size_t size() const;

  /// Shows the first bytes; null where the block has fewer. The caller unmaps them.
  void* map(std::size_t size, int protection) const;

 private:
  std::string path_;
  mutable Descriptor file_;
};

}  // namespace tessaly::platform
