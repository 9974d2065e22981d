#include "tests/contract/XmlTable.h"

namespace tessaly::tests {
namespace {

const char* const kUnknownToWine = "its parser has no such encoding";
const char* const kLenientWine = "its converter passes over bytes that it can't convert";

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";

std::string declared(std::string_view encoding, std::string_view text) {
  return "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?><r><a>" + std::string(text) +
         "</a></r>";
}

/// ASCII in UTF-16; the bytes of other characters are put in for '~'.
std::string wide(std::string_view ascii, bool bigEndian, std::string_view other = "") {
  std::string bytes;
  for (const char c : ascii) {
    if (c == '~') {
      bytes += other;
    } else if (bigEndian) {
      bytes += {'\0', c};
    } else {
      bytes += {c, '\0'};
    }
  }
  return bytes;
}

std::string marked(std::string_view mark, const std::string& bytes) { return std::string(mark) + bytes; }

std::vector<XmlRow> bytewise() {
  return {
      {"Windows1250", declared("windows-1250", "\xB9\xEA"), "a=ąę|", ""},
      {"Windows1251", declared("windows-1251", "\xCF\xF0\xE8"), "a=При|", ""},
      {"Windows1252", declared("windows-1252", "\xE9\x80\x92"), "a=é€’|", ""},
      {"Windows1252HasAMeaningForEachByte", declared("windows-1252", "\x81"), "a=\xC2\x81|", ""},
      {"Windows1253", declared("windows-1253", "\xC1\xE8"), "a=Αθ|", ""},
      {"Windows1254", declared("windows-1254", "\xF0\xFD"), "a=ğı|", ""},
      {"Windows1255", declared("windows-1255", "\xF9\xEC"), "a=של|", ""},
      {"Windows1256", declared("windows-1256", "\xE3\xD1"), "a=مر|", ""},
      {"Windows1257", declared("windows-1257", "\xE0\xF0"), "a=ąš|", ""},
      {"Iso88591", declared("ISO-8859-1", "\xE9\x85"), "a=é\xC2\x85|", ""},
      {"Iso88592", declared("ISO-8859-2", "\xB1\xEA"), "a=ąę|", ""},
      {"Iso88595", declared("ISO-8859-5", "\xBF\xE0"), "a=Пр|", ""},
      {"Iso88597", declared("ISO-8859-7", "\xC1\xE8"), "a=Αθ|", ""},
      {"Iso88599", declared("ISO-8859-9", "\xF0\xFD"), "a=ğı|", ""},
      {"Iso885915", declared("ISO-8859-15", "\xA4"), "a=€|", ""},
      {"Ascii", declared("US-ASCII", "x"), "a=x|", ""},
      {"AsciiHasNoHighBytes", declared("US-ASCII", "\xE9"), std::nullopt, ""},
      {"Koi8R", declared("KOI8-R", "\xF0\xD2\xC9"), "a=При|", kUnknownToWine},
      {"ShiftJis", declared("Shift_JIS", "\x93\xFA\x96\x7B\x83\x5C\x5C"), "a=日本ソ\\|", kUnknownToWine},
      {"EucJp", declared("EUC-JP", "\xC6\xFC\xCB\xDC"), "a=日本|", kUnknownToWine},
      {"Gbk", declared("GBK", "\xD6\xD0\xCE\xC4"), "a=中文|", ""},
      {"Gb2312", declared("gb2312", "\xD6\xD0\x81\x40"), "a=中丂|", kUnknownToWine},
      {"Gb18030", declared("GB18030", "\xD6\xD0\x81\x30\x84\x36"), "a=中\xC2\xA5|", kUnknownToWine},
      {"Big5", declared("Big5", "\xA4\xA4\xA4\xE5"), "a=中文|", kUnknownToWine},
      {"NamesOfEncodingsInAnyCase", declared("wINDOWS-1252", "\xE9"), "a=é|", ""},
      {"InSingleQuotes", "<?xml version='1.0' encoding = 'windows-1252' ?><r><a>\xE9</a></r>", "a=é|", ""},
  };
}

std::vector<XmlRow> unicode() {
  const std::string little("\xE9\x00\xE5\x65", 4);
  const std::string big("\x00\xE9\x65\xE5", 4);
  const std::string utf16 = declared("UTF-16", "~");
  return {
      {"Utf8WithoutAnyDeclaration", "<r><a>é日</a></r>", "a=é日|", ""},
      {"Utf8Declared", declared("UTF-8", "é日"), "a=é日|", ""},
      {"AStylesheetIsNoDeclaration",
       "<?xml-stylesheet href=\"encoding.xsl\" type=\"text/xsl\"?><r><a>é</a></r>", "a=é|", ""},
      {"AnEncodingOfAStylesheetIsNone", "<?xml-stylesheet encoding=\"koi8-r\"?><r><a>é</a></r>", "a=é|", ""},
      {"Utf8DeclaredInSmallLetters", declared("utf-8", "é日"), "a=é日|", ""},
      {"Utf8Marked", marked(kUtf8Mark, "<r><a>é日</a></r>"), "a=é日|", ""},
      {"Utf8MarkedAndDeclared", marked(kUtf8Mark, declared("UTF-8", "é日")), "a=é日|", ""},
      {"ADeclarationStandsOverTheUtf8Mark", marked(kUtf8Mark, declared("windows-1252", "é")), "a=Ã©|", ""},
      {"Utf16LittleMarked", marked(kLittleMark, wide("<r><a>~</a></r>", false, little)), "a=é日|", ""},
      {"Utf16LittleMarkedAndDeclared", marked(kLittleMark, wide(utf16, false, little)), "a=é日|", ""},
      {"Utf16BigMarked", marked(kBigMark, wide("<r><a>~</a></r>", true, big)), "a=é日|", ""},
      {"Utf16BigMarkedAndDeclared", marked(kBigMark, wide(utf16, true, big)), "a=é日|", ""},
      {"Utf16LittleDeclaredAlone", wide(utf16, false, little), "a=é日|", ""},
      {"Utf16BigDeclaredAlone", wide(utf16, true, big), "a=é日|", ""},
      {"Utf16DeclaredByItsOrder", marked(kLittleMark, wide(declared("UTF-16LE", "~"), false, little)),
       "a=é日|", ""},
      {"Utf16DeclaredAsUtf8", marked(kLittleMark, wide(declared("UTF-8", "~"), false, little)), "a=é日|", ""},
      {"Utf16Astral", marked(kLittleMark, wide("<r><a>~</a></r>", false, std::string("\x3D\xD8\x00\xDE", 4))),
       "a=😀|", ""},
  };
}

std::vector<XmlRow> refused() {
  const std::string little("\xE9\x00\xE5\x65", 4);
  return {
      {"Utf16WithoutMarkAndDeclaration", wide("<r><a>~</a></r>", false, little), std::nullopt, ""},
      {"Utf16DeclaredAsWindows", marked(kLittleMark, wide(declared("windows-1252", "x"), false)),
       std::nullopt, ""},
      {"BytesDeclaredAsUtf16", declared("UTF-16", "x"), std::nullopt, ""},
      {"Utf16WithALoneSurrogate", marked(kLittleMark, wide("<r>~</r>", false, std::string("\x00\xD8", 2))),
       std::nullopt, ""},
      {"Utf16WithHalfACharacter", marked(kLittleMark, wide("<r/>", false) + "x"), std::nullopt, kLenientWine},
      {"Utf32", marked(kLittleMark, std::string("\0\0<\0\0\0r\0\0\0/\0\0\0>\0\0\0", 18)), std::nullopt, ""},
      {"Utf7", declared("UTF-7", "x"), std::nullopt, ""},
      {"UnknownEncoding", declared("x-nothing", "x"), std::nullopt, ""},
      {"EncodingWithoutAName", declared("", "x"), std::nullopt, ""},
      {"EncodingThatIsAPath", declared("../../etc/passwd", "x"), std::nullopt, ""},
      {"TwoMarks", marked(kUtf8Mark, marked(kUtf8Mark, "<r/>")), std::nullopt,
       "it passes over a second mark"},
      {"NotUtf8", "<r><a>\xE9</a></r>", std::nullopt, ""},
      {"NotTheUtf8ThatItDeclares", declared("UTF-8", "\xE9"), std::nullopt, ""},
      {"Utf8OfASurrogate", "<r>\xED\xA0\x80</r>", std::nullopt, ""},
      {"Utf8LongerThanNeeded", "<r>\xC0\xAF</r>", std::nullopt, ""},
      {"Utf8BeyondUnicode", "<r>\xF4\x90\x80\x80</r>", std::nullopt, ""},
      {"NotTheGbkThatItDeclares", declared("GBK", "\x81\x20"), std::nullopt, kLenientWine},
      {"NotTheShiftJisThatItDeclares", declared("Shift_JIS", "\x81\x20"), std::nullopt, ""},
  };
}

}  // namespace

std::vector<XmlRow> xmlEncodings() {
  std::vector<XmlRow> rows = bytewise();
  for (const auto& more : {unicode(), refused()}) rows.insert(rows.end(), more.begin(), more.end());
  return rows;
}

}  // namespace tessaly::tests
