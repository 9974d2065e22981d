#include "tests/contract/XmlTable.h"

namespace tessaly::tests {
namespace {

const char* const kPrefixes = "it takes prefixes that are not declared, and colons anywhere in a name";

std::vector<XmlRow> texts() {
  return {
      {"BlanksAroundTextGo", "<r><a>  x  </a><b>\n\tx\r\n</b><c> \n </c><d/><e></e></r>", "a=x|b=x|c=|d=|e=|",
       ""},
      {"BlanksInsideTextStay", "<r><a> x  y\n\tz </a></r>", "a=x  y\n\tz|", ""},
      {"NoBreakSpacesAreNoBlanks", "<r><a>\xC2\xA0x\xC2\xA0</a></r>", "a=\xC2\xA0x\xC2\xA0|", ""},
      {"LineEndsBecomeLineFeeds", "<r><a>x\r\ny\rz</a></r>", "a=x\ny\nz|", ""},
      {"CDataStaysWhole", "<r><a><![CDATA[  x  ]]></a><b><![CDATA[ ]]></b><c><![CDATA[<&>]]></c></r>",
       "a=  x  |b= |c=<&>|", ""},
      {"CDataJoinsItsNeighbours",
       "<r><a> y <![CDATA[ z ]]> w </a><b> p <![CDATA[q]]></b><c><![CDATA[a]]><![CDATA[b]]></c></r>",
       "a=y  z  w|b=p q|c=ab|", ""},
      {"EmptyCDataIsEmpty", "<r><a><![CDATA[]]></a><b> <![CDATA[]]> </b></r>", "a=|b=|", ""},
      {"CommentsAreNoText",
       "<r><a>x<!--c-->y</a><b>x <!--c--> y</b><c> <!--c--> </c><d> x<!-- c --> </d></r>",
       "a=xy|b=x  y|c=|d=x|", ""},
      {"InstructionsAreNoText", "<r><a>x<?p d?>y</a><b> x <?p d?> </b></r>", "a=xy|b=x|", ""},
      {"InstructionsHaveATargetAndData", "<r><?LANG French?><?x?><a/></r>", "LANG=French|x=|a=|", ""},
      {"NestedMarkupGivesItsText",
       "<r><a>x <b>y</b> z</a><c>x<b> y </b>z</c><i>a <b><c> d </c></b> e</i></r>",
       "a=x y z|c=x y z|i=a  d  e|", ""},
      {"BlanksBetweenMarkupBecomeOne",
       "<r><a><b>x</b> <b>y</b></a><c>\n<b>x</b>\n\n<b>y</b>\n</c><d>a<b>  </b>c</d></r>",
       "a=x y|c=x y|d=a c|", ""},
      {"BlanksAroundMarkupGo", "<r><a> <b> x </b> </a><f>p <b/> q</f></r>", "a=x|f=p  q|", ""},
      {"NestedTextIsTrimmedOnlyOutside", "<r><a><b>  x y  </b> <c> \n </c><d>\n\tp\n</d><e/></a></r>",
       "a=x y   \n\tp|", ""},
      {"AttributesAreNoText", "<r><a ID=\"7\" VALUE='x'/></r>", "a=|", ""},
      {"SpacePreserveKeepsBlanks",
       "<r><a xml:space=\"preserve\">  x\n </a><b xml:space=\"preserve\"> <c> y </c> </b><d "
       "xml:space=\"preserve\"> </d></r>",
       "a=  x\n |b=  y  |d= |", ""},
      {"SpacePreserveReachesDownToDefault",
       "<r xml:space=\"preserve\"><a> x </a><b xml:space=\"default\"> y </b></r>", "a= x |b=y|", ""},
      {"ADataTypeChangesNoText",
       "<r xmlns:dt=\"urn:schemas-microsoft-com:datatypes\"><a dt:dt=\"i4\"> 1 </a><b "
       "dt:dt=\"boolean\">1</b></r>",
       "a=1|b=1|", ""},
      {"SpaceOfAnotherValueIsNone", "<r><a xml:space=\"other\"> x </a></r>", "a=x|", ""},
      {"TextBesideChildrenIsSteppedOver", "<r>t<a>x</a>u<!--c--><b>y</b></r>", "a=x|b=y|", ""},
  };
}

std::vector<XmlRow> names() {
  return {
      {"PrefixesAreNoPartOfAName", "<x:r xmlns:x=\"urn:x\"><x:GENERAL>t</x:GENERAL><a x:y=\"1\">u</a></x:r>",
       "GENERAL=t|a=u|", ""},
      {"ADefaultNamespaceChangesNoName", "<r xmlns=\"urn:x\"><a>t</a></r>", "a=t|", ""},
      {"TheXmlPrefixNeedsNoDeclaration", "<r><xml:b>t</xml:b></r>", "b=t|", ""},
      {"NamesTakeEveryScript", "<r><é>t</é><имя>u</имя></r>", "é=t|имя=u|", ""},
      {"NamesKeepTheirCase", "<r><gEnErAl>t</gEnErAl></r>", "gEnErAl=t|", ""},
      {"UndeclaredPrefix", "<r><x:a>t</x:a></r>", std::nullopt, kPrefixes},
      {"UndeclaredAttributePrefix", "<r><a x:b=\"1\">t</a></r>", std::nullopt, kPrefixes},
      {"TwoColons", "<r xmlns:a=\"u\" xmlns:b=\"v\"><a:b:c>t</a:b:c></r>", std::nullopt, kPrefixes},
      {"ColonAtTheFront", "<r><:a>t</:a></r>", std::nullopt, kPrefixes},
      {"ColonAtTheEnd", "<r xmlns:a=\"u\"><a:>t</a:></r>", std::nullopt, kPrefixes},
      {"EmptyNamespaceOfAPrefix", "<r xmlns:x=\"\"><x:b/></r>", std::nullopt, kPrefixes},
      {"ElementNamedByTheDeclaringPrefix", "<r><xmlns:b/></r>", std::nullopt, kPrefixes},
      {"OneAttributeByTwoPrefixes", "<r xmlns:x=\"u\" xmlns:y=\"u\" x:q=\"1\" y:q=\"2\"/>", std::nullopt, ""},
  };
}

std::vector<XmlRow> references() {
  return {
      {"TheFiveNamedCharacters", "<r><a>&lt;&gt;&amp;&quot;&apos;</a></r>", "a=<>&\"'|", ""},
      {"NumberedCharacters", "<r><a>&#65;&#x42;&#x1F600;&#233;</a></r>", "a=AB\xF0\x9F\x98\x80\xC3\xA9|", ""},
      {"NumberedBlanksAtTheEndsGoToo", "<r><a>&#32;x&#32;</a><b>&#13;&#10;</b><c>x&#9;y</c></r>",
       "a=x|b=|c=x\ty|", ""},
      {"InternalEntities", "<!DOCTYPE r [<!ENTITY n \"Tess\">]><r><a>x &n; y</a><b>&n;</b><c> &n; </c></r>",
       "a=x Tess y|b=Tess|c=Tess|", ""},
      {"EntitiesWithinEntities", "<!DOCTYPE r [<!ENTITY n \"x\"><!ENTITY m \"&n;&n;\">]><r><a>&m;&m;</a></r>",
       "a=xxxx|", ""},
      {"BlanksOfAnEntity",
       "<!DOCTYPE r [<!ENTITY n \" s \"><!ENTITY e \"\">]><r><a>&n;</a><b>x&n;y</b><c>&e;</c></r>",
       "a=s|b=x s y|c=|", ""},
      {"MarkupOfAnEntity", "<!DOCTYPE r [<!ENTITY m \"<b>in</b> side\">]><r><a>&m;</a></r>", "a=in side|",
       "it loses blanks around markup that an entity brings"},
      {"EntitiesNestedFourDeep",
       "<!DOCTYPE r [<!ENTITY a \"x\"><!ENTITY b \"&a;&a;\"><!ENTITY c \"&b;&b;\"><!ENTITY d "
       "\"&c;&c;\">]><r><a>&d;</a></r>",
       "a=xxxxxxxx|", "it refuses entities that are nested four deep"},
      {"ParameterEntitiesOfTheDocument",
       "<!DOCTYPE r [<!ENTITY % p \"<!ENTITY n 'in'>\">%p;]><r><a>x&n;y</a></r>", "a=xiny|", ""},
      {"ADocumentTypeIsNotHeldAgainstTheDocument",
       "<!DOCTYPE r [<!ELEMENT r (a)><!ELEMENT a (#PCDATA)>]><r> <a>x</a> <a>y</a> </r>", "a=x|a=y|", ""},
      {"ADocumentTypeOfAnotherRoot", "<!DOCTYPE b><r><a/></r>", "a=|", ""},
      {"AnExternalEntityIsNotRead",
       "<!DOCTYPE r [<!ENTITY n SYSTEM \"file:///etc/passwd\">]><r><a>x&n;y</a></r>", "a=xy|", ""},
      {"AnExternalDocumentTypeIsNotRead", "<!DOCTYPE r SYSTEM \"missing.dtd\"><r><a>x</a></r>", "a=x|", ""},
      {"AnEntityOfAnExternalDocumentTypeIsEmpty", "<!DOCTYPE r SYSTEM \"missing.dtd\"><r><a>x&q;y</a></r>",
       "a=xy|", ""},
      {"AnExternalParameterEntityIsNotRead",
       "<!DOCTYPE r [<!ENTITY % p SYSTEM \"missing.ent\">%p;]><r><a>x</a></r>", "a=x|", ""},
      {"ADocumentTypeOnTheNetworkIsNotAskedFor",
       "<!DOCTYPE r SYSTEM \"http://127.0.0.1:9/r.dtd\"><r><a>x</a></r>", "a=x|", ""},
  };
}

}  // namespace

std::vector<XmlRow> xmlDocuments() {
  std::vector<XmlRow> rows = texts();
  for (const auto& more : {names(), references()}) rows.insert(rows.end(), more.begin(), more.end());
  return rows;
}

}  // namespace tessaly::tests
