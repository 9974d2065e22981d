#pragma once

#include <unistd.h>

#include <utility>

namespace tessaly::tools {

/// A file descriptor that is closed with its owner.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { close(); }

  int number() const { return number_; }
  bool isOpen() const { return number_ >= 0; }

  /// Whether nothing that was written is lost.
  bool close() {
    const int number = std::exchange(number_, -1);
    return number < 0 || ::close(number) == 0;
  }

 private:
  int number_;
};

}  // namespace tessaly::tools
