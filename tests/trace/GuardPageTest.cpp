// Nothing is written past the block: right behind it no byte may be touched.

#include <gtest/gtest.h>

#include "tessaly/platform/fake/Locale.h"
#include "tests/support/GuardedMemory.h"
#include "tests/trace/LoggerOfTests.h"
#include "tests/trace/ZPLoggerClientPeer.h"

namespace tessaly::tests {
namespace {

/// A block that ends where no memory is.
class GuardedBlock final : public platform::SharedMemory {
 public:
  platform::MappingHandle CreateFileMappingA(platform::PageProtection, std::uint32_t, std::uint32_t size,
                                             const char*) override {
    return size == kBlockSize ? 1 : 0;
  }
  platform::MappingHandle OpenFileMappingA(platform::ViewAccess, const char*) override { return 0; }
  void* MapViewOfFile(platform::MappingHandle, platform::ViewAccess, std::size_t size) override {
    return size == kBlockSize ? memory_.data() : nullptr;
  }
  bool UnmapViewOfFile(const void*) override { return true; }
  bool CloseHandle(platform::MappingHandle) override { return true; }

  std::string_view bytes() const { return {memory_.data(), kBlockSize}; }

 private:
  GuardedMemory memory_{kBlockSize};
};

class GuardPageTest : public testing::TestWithParam<Long> {
 protected:
  platform::fake::Locale locale_{1033, u".", GetParam()};
  platform::Override localeInForce_{locale_};
  Machine machine_;
  GuardedBlock block_;
  platform::Override blockInForce_{block_};
  NotingLogger logger_{machine_};
};

INSTANTIATE_TEST_SUITE_P(Page, GuardPageTest, testing::Values(1252, 932, 65001),
                         testing::PrintToStringParamName());

TEST_P(GuardPageTest, LinesOfEverySizeAroundTheBlocksStayWithinIt) {
  ZPLoggerClient client;
  client.Init(u"", u"", u"");
  for (std::size_t size = 4980; size <= 5010; ++size) {
    for (const char16_t c : {u'x', u'\xE9', u'日'}) {
      client.SendTrace(String(size, c), 0, 0, 0, True);
      const std::size_t length =
          std::uint8_t(block_.bytes()[10]) + (std::size_t{std::uint8_t(block_.bytes()[11])} << 8);
      EXPECT_EQ(length, std::min<std::size_t>(size, 4986));
    }
  }
}

TEST_P(GuardPageTest, ClientsOfEverySizeAroundTheBlocksStayWithinIt) {
  for (const std::size_t size : {0U, 1000U, 1662U, 1663U, 1664U, 4987U, 4988U, 4989U, 10'000U}) {
    const String text(size, u'日');
    ZPLoggerClient client;
    client.Init(text, text, text);
  }
  EXPECT_EQ(logger_.notes().size(), 9U);
}

}  // namespace
}  // namespace tessaly::tests
