#include "tessaly/base/RuntimeError.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(RuntimeErrors, CarryTheirNumberAndAnEnglishText) {
  const std::pair<Long, const char*> rows[] = {{6, "Overflow"},
                                               {7, "Out of memory"},
                                               {9, "Subscript out of range"},
                                               {13, "Type mismatch"},
                                               {53, "File not found"},
                                               {380, "Invalid property value"},
                                               {382, "Property can't be set at run time"},
                                               {383, "Property is read only"},
                                               {453, "Entry point not found"},
                                               {481, "Invalid picture"},
                                               {1, "Unknown error"}};
  for (const auto& [number, text] : rows) {
    const RuntimeError error(number);
    EXPECT_EQ(error.number(), number);
    EXPECT_STREQ(error.what(), text);
  }
}

TEST(RuntimeErrors, AreCaughtAsStandardExceptions) {
  EXPECT_THROW(throw RuntimeError(RuntimeError::Overflow), std::runtime_error);
}

}  // namespace
}  // namespace tessaly
