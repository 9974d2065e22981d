#include <gtest/gtest.h>

#include "tests/tools/tessaly-reg/Tool.h"
#include "tools/tessaly-reg/RegFile.h"

namespace tessaly::reg {
namespace {

using tests::regFile;

struct ErrorRow {
  std::string_view content;
  std::size_t line;
  std::string_view message;
};

constexpr std::string_view kHeader =
    R"(expected "Windows Registry Editor Version 5.00" or "REGEDIT4" in the first line)";
constexpr std::string_view kAnything =
    R"(expected a key in brackets, a value ("name"=… or @=…) or a comment behind ;)";
constexpr std::string_view kRoots =
    "expected a key under HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER, HKEY_CLASSES_ROOT, HKEY_USERS or "
    "HKEY_CURRENT_CONFIG, not ";
constexpr std::string_view kData = R"(expected "text", dword:…, hex:…, hex(type):… or - behind =)";
constexpr std::string_view kBehind = "expected nothing but a comment behind the value";
constexpr std::string_view kNameEnd = "expected a quotation mark at the end of the name";
constexpr std::string_view kTextEnd = "expected a quotation mark at the end of the text";
constexpr std::string_view kByte = "expected a byte of two hexadecimal digits";
constexpr std::string_view kComma = "expected a comma behind the byte";
constexpr std::string_view kType = "expected the type in hexadecimal digits, as in hex(7):";
constexpr std::string_view kDword = "expected one to eight hexadecimal digits behind dword:";

void expectOneError(const std::string& bytes, std::size_t line, std::string_view message) {
  const RegFile file = parseRegFile(bytes);
  ASSERT_EQ(file.errors.size(), 1U) << bytes;
  EXPECT_EQ(file.errors[0].line, line) << bytes;
  EXPECT_EQ(file.errors[0].message, message) << bytes;
}

TEST(MalformedRegFile, HasAnotherFirstLine) {
  for (const char* bytes :
       {"", "\n", "[HKCU\\A]\n", "Windows Registry Editor Version 6.00\n", "REGEDIT5\n", "\nREGEDIT4\n",
        "; comment\nREGEDIT4\n", "Windows Registry Editor Version 5.00 x\n"})
    expectOneError(bytes, 1, kHeader);
  expectOneError("REGEDIT4x\n", 1, kHeader);
}

TEST(MalformedRegFile, HasWrongKeys) {
  const ErrorRow rows[] = {
      {"[HKEY_CURRENT_USER\\A\n", 3, "expected ] behind the name of the key"},
      {"\n[HKEY_CURRENT_USER\\A] x\n", 4, "expected nothing but a comment behind ]"},
      {"[]\n", 3, "\"\""},
      {"[-]\n", 3, "\"\""},
      {"[Software\\A]\n", 3, "\"Software\\A\""},
      {"[\\HKEY_CURRENT_USER\\A]\n", 3, "\"\\HKEY_CURRENT_USER\\A\""},
      {"[ HKEY_CURRENT_USER\\A]\n", 3, "\" HKEY_CURRENT_USER\\A\""},
      {"[HKEY_DYN_DATA\\\x1b]\n", 3, "\"HKEY_DYN_DATA\\\\u001B\""},
      {"[-HKEY_CURRENT_USER]\n", 3, "\"HKEY_CURRENT_USER\" itself can't be deleted"},
      {"[-HKCR\\]\n", 3, "\"HKCR\\\" itself can't be deleted"},
  };
  for (const ErrorRow& row : rows) {
    const bool isOfRoot = row.message.starts_with('"') && row.message.ends_with('"');
    expectOneError(regFile(row.content), row.line,
                   (isOfRoot ? std::string(kRoots) : "") + std::string(row.message));
  }
}

TEST(MalformedRegFile, HasValuesWhereNoneCanBe) {
  expectOneError(regFile("\"a\"=\"b\"\n[HKCU\\A]\n"), 3, "expected a key in brackets above the first value");
  expectOneError(regFile("[-HKCU\\A]\n\"a\"=\"b\"\n"), 4, "a key that is deleted can't hold a value");
}

TEST(MalformedRegFile, HasWrongValues) {
  const ErrorRow rows[] = {
      {"a=\"b\"\n", 4, kAnything},
      {"'a'=\"b\"\n", 4, kAnything},
      {"# comment\n", 4, kAnything},
      {"\"a\n", 4, kNameEnd},
      {"\"a=\"b\"\n", 4, "expected = behind the name of the value"},
      {"\"a=dword:1\n\"b\"=dword:2\n", 4, kNameEnd},
      {"\"a\\b\"=\"c\"\n", 4, R"(a backslash in a name is written \\ and a quotation mark \")"},
      {"\"a\"\n", 4, "expected = behind the name of the value"},
      {"@\n", 4, "expected = behind the name of the value"},
      {"@ \"b\"\n", 4, "expected = behind the name of the value"},
      {"\"a\"=\n", 4, kData},
      {"\"a\"=b\n", 4, kData},
      {"\"a\"=1\n", 4, kData},
      {"\"a\"=qword:1\n", 4, kData},
      {"\"a\"=hex\n", 4, kData},
      {"\"a\"=dword\n", 4, kData},
      {"\"a\"=- x\n", 4, kBehind},
      {"\"a\"=-1\n", 4, kBehind},
      {"\"a\"=\"b\n", 4, kTextEnd},
      {"\"a\"=\"b\n\"c\"=\"d\"\n", 4, kTextEnd},
      {"\"a\"=\"b\n[HKCU\\A\\B]\n", 4, kTextEnd},
      {"@=\"b\r\n\r\n[HKCU\\A\\B]\r\n", 4, kTextEnd},
      {"\"a\n[HKCU\\A\\B]\n", 4, kNameEnd},
      {"\"a=dword:1\n\n[HKCU\\A\\B]\n@=\"c\"\n", 4, kNameEnd},
      {"\"a\"=\"b\" \"c\"\n", 4, kBehind},
      {"\"a\"=\"c:\\dir\"\n", 4, R"(a backslash in a text is written \\ and a quotation mark \")"},
      {"\"a\"=\"b\\", 4, R"(a backslash in a text is written \\ and a quotation mark \")"},
      {"\"a\"=dword:\n", 4, kDword},
      {"\"a\"=dword:123456789\n", 4, kDword},
      {"\"a\"=dword:0x1\n", 4, kBehind},
      {"\"a\"=dword:-1\n", 4, kDword},
      {"\"a\"=hex:0g\n", 4, kComma},
      {"\"a\"=hex:000\n", 4, kComma},
      {"\"a\"=hex:00 01\n", 4, kComma},
      {"\"a\"=hex:00,\n", 4, kByte},
      {"\"a\"=hex:,00\n", 4, kByte},
      {"\"a\"=hex:00,,00\n", 4, kByte},
      {"\"a\"=hex:00,\\\n\n", 5, kByte},
      {"\"a\"=hex:00,\\", 4, kByte},
      {"\"a\"=hex:00,\\ x\n", 4, kByte},
      {"\"a\"=hex:00,\\\n  01,\\\n  0x,\\\n  03\n\"b\"=dword:1\n", 6, kComma},
      {"\"a\"=hex(7:00\n", 4, kType},
      {"\"a\"=hex():00\n", 4, kType},
      {"\"a\"=hex(123456789):00\n", 4, kType},
      {"\"a\"=hex(x):00,\\\n  01\n", 4, kType},
      {"\"a\"=hex(7)00\n", 4, kType},
      {"\"a\"=hex(1):61\n", 4, "expected an even number of bytes, for text in UTF-16"},
      {"\"a\"=hex(7):61,00,\\\n  62\n", 4, "expected an even number of bytes, for text in UTF-16"},
  };
  for (const ErrorRow& row : rows)
    expectOneError(regFile("[HKCU\\A]\n" + std::string(row.content)), row.line, row.message);
}

TEST(MalformedRegFile, HasAllItsErrorsTold) {
  const RegFile file =
      parseRegFile(regFile("[HKXX]\n\"a\"=\"not told again\"\n[HKCU\\A]\nx\n\"a\"=y\n\"b\"=\"fine\"\nz\n"));
  ASSERT_EQ(file.errors.size(), 4U);
  EXPECT_EQ(file.errors[0].line, 3U);
  EXPECT_EQ(file.errors[1].line, 6U);
  EXPECT_EQ(file.errors[2].line, 7U);
  EXPECT_EQ(file.errors[3].line, 9U);
}

TEST(MalformedRegFile, HasNoMoreThanTwentyErrorsTold) {
  std::string many;
  for (int i = 0; i < 100'000; ++i) many += "x\n";
  EXPECT_EQ(parseRegFile(regFile(many)).errors.size(), kMostErrors);
}

TEST(MalformedRegFile, EndsQuicklyWhateverItHolds) {
  const std::string_view pieces[] = {
      "\"", "\\",           "\\\"", "\"\\\n", "\"=\"\n", "@=\"\n", "@=hex:\\\n", "[",
      "]",  "@=hex:0,\\\n", "\r",   "0,",     " ",       ";",      "hex(",       "[HKCU\\A]\n@=\"\\\"\n"};
  for (const std::string_view piece : pieces) {
    for (const std::string_view begin :
         {"", "[HKCU\\A]\n", "[HKCU\\A]\n@=\"", "[HKCU\\A]\n@=hex:", "[HKCU\\"}) {
      std::string many(begin);
      while (many.size() < 500'000) many += piece;
      EXPECT_LE(parseRegFile(regFile(many)).errors.size(), kMostErrors);
    }
  }
}

}  // namespace
}  // namespace tessaly::reg
