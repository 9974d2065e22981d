#include "tests/contract/XmlTable.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

struct Malformed {
  const char* name;
  std::string bytes;
};

std::vector<Malformed> structure() {
  return {{"Empty", ""},
          {"BlanksAlone", "  \n"},
          {"TextAlone", "hello"},
          {"NoRoot", "<?xml version=\"1.0\"?>"},
          {"CommentAlone", "<!-- x -->"},
          {"TwoRoots", "<a/><b/>"},
          {"TextBehindTheRoot", "<a/>x"},
          {"TextBeforeTheRoot", "x<a/>"},
          {"NeverClosed", "<a><b></b>"},
          {"CutWithinATag", "<a><b"},
          {"CutWithinAnAttribute", "<a b=\"x"},
          {"Crossed", "<a><b></a></b>"},
          {"ClosedByAnotherName", "<a></b>"},
          {"ClosedInAnotherCase", "<a></A>"},
          {"ClosedButNotOpened", "</a>"},
          {"ClosedOnceTooOften", "<a></a></a>"},
          {"BlankBeforeAName", "< a>x</a>"},
          {"NameThatBeginsWithADigit", "<1a/>"},
          {"AttributeTwice", "<a x=\"1\" x=\"2\"/>"},
          {"AttributeWithoutQuotes", "<a x=1/>"},
          {"AttributeWithoutAValue", "<a x/>"},
          {"AttributeWithAMarkupCharacter", "<a x=\"<\"/>"},
          {"AttributesWithoutABlankBetween", "<a x=\"1\"y=\"2\"/>"}};
}

std::vector<Malformed> content() {
  return {{"AmpersandAlone", "<a>x & y</a>"},
          {"AmpersandBeforeAWord", "<a>&Open</a>"},
          {"LessThanAlone", "<a>1 < 2</a>"},
          {"EndOfCDataWithoutABeginning", "<a>]]></a>"},
          {"CDataWithoutAnEnd", "<a><![CDATA[x</a>"},
          {"CDataOutsideTheRoot", "<![CDATA[x]]><a/>"},
          {"DashesWithinAComment", "<a><!-- a -- b --></a>"},
          {"CommentWithoutAnEnd", "<a><!-- x</a>"},
          {"InstructionWithoutAnEnd", "<a><?x </a>"},
          {"InstructionNamedXml", "<a><?xml x?></a>"},
          {"Nul", "<a>\0</a>"s},
          {"ControlCharacter", "<a>\x01</a>"},
          {"EscapeCharacter", "<a>\x1B[31m</a>"},
          {"NoCharacterFFFF", "<a>\xEF\xBF\xBF</a>"},
          {"ReferenceToNul", "<a>&#0;</a>"},
          {"ReferenceToAControlCharacter", "<a>&#1;</a>"},
          {"ReferenceToASurrogate", "<a>&#xD800;</a>"},
          {"ReferenceToNoCharacter", "<a>&#xFFFE;</a>"},
          {"ReferenceBeyondUnicode", "<a>&#x110000;</a>"},
          {"ReferenceWithoutASemicolon", "<a>&amp</a>"},
          {"EmptyReference", "<a>&;</a>"},
          {"EmptyNumber", "<a>&#;</a>"}};
}

std::vector<Malformed> prolog() {
  return {{"BlankBeforeTheDeclaration", " <?xml version=\"1.0\"?><a/>"},
          {"TwoDeclarations", "<?xml version=\"1.0\"?><?xml version=\"1.0\"?><a/>"},
          {"DeclarationWithoutAVersion", "<?xml encoding=\"UTF-8\"?><a/>"},
          {"VersionTwo", "<?xml version=\"2.0\"?><a/>"},
          {"UnknownPartOfTheDeclaration", "<?xml version=\"1.0\" foo=\"x\"?><a/>"},
          {"StandaloneMaybe", "<?xml version=\"1.0\" standalone=\"maybe\"?><a/>"},
          {"DeclarationWithoutAnEnd", "<?xml version=\"1.0\"><a/>"},
          {"DocumentTypeBehindTheRoot", "<a/><!DOCTYPE a>"},
          {"DocumentTypeWithoutAnEnd", "<!DOCTYPE a [<a/>"},
          {"UndeclaredEntity", "<r><a>x&n;y</a></r>"},
          {"EntityOfItself", "<!DOCTYPE r [<!ENTITY a \"&a;\">]><r>&a;</r>"},
          {"EntitiesInACircle", "<!DOCTYPE r [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]><r>&a;</r>"},
          {"EntityThatDoesNotClose", "<!DOCTYPE r [<!ENTITY a \"<b>\">]><r>&a;</r>"}};
}

/// Ten entities of which each is ten of the one before: eleven thousand million characters.
std::string entityBomb() {
  std::string bytes = "<!DOCTYPE r [<!ENTITY a0 \"aaaaaaaaaa\">";
  for (int i = 1; i <= 10; ++i) {
    bytes += "<!ENTITY a" + std::to_string(i) + " \"";
    for (int k = 0; k < 10; ++k) bytes += "&a" + std::to_string(i - 1) + ";";
    bytes += "\">";
  }
  return bytes + "]><r>&a10;</r>";
}

/// One long entity, used again and again.
std::string flatBomb() {
  std::string bytes = "<!DOCTYPE r [<!ENTITY a \"" + std::string(50'000, 'a') + "\">]><r>";
  for (int i = 0; i < 20'000; ++i) bytes += "&a;";
  return bytes + "</r>";
}

std::string nestedElements(int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) bytes += "<e>";
  for (int i = 0; i < count; ++i) bytes += "</e>";
  return bytes;
}

}  // namespace

std::vector<XmlRow> xmlMalformed() {
  std::vector<XmlRow> rows;
  for (const auto& part : {structure(), content(), prolog()}) {
    for (const auto& [name, bytes] : part) rows.push_back({name, bytes, std::nullopt, ""});
  }
  return rows;
}

std::vector<std::string> xmlHostile() { return {entityBomb(), flatBomb(), nestedElements(200'000)}; }

}  // namespace tessaly::tests
