#include "tessaly/base/RuntimeError.h"

namespace tessaly {
namespace {

const char* textOf(Long number) {
  switch (number) {
    case RuntimeError::Overflow:
      return "Overflow";
    case RuntimeError::OutOfMemory:
      return "Out of memory";
    case RuntimeError::SubscriptOutOfRange:
      return "Subscript out of range";
    case RuntimeError::TypeMismatch:
      return "Type mismatch";
    case RuntimeError::FileNotFound:
      return "File not found";
    case RuntimeError::InvalidPropertyValue:
      return "Invalid property value";
    case RuntimeError::PropertyNotSettableAtRunTime:
      return "Property can't be set at run time";
    case RuntimeError::PropertyReadOnly:
      return "Property is read only";
    case RuntimeError::EntryPointNotFound:
      return "Entry point not found";
    case RuntimeError::InvalidPicture:
      return "Invalid picture";
    default:
      return "Unknown error";
  }
}

}  // namespace

RuntimeError::RuntimeError(Long number) : std::runtime_error(textOf(number)), number_(number) {}

}  // namespace tessaly
