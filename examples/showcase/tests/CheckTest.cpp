// What `showcase --check` tells of each mistake that docs/language-files.md names.

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "examples/showcase/check/Findings.h"
#include "tessaly/base/Text.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Files.h"

namespace showcase {
namespace {

constexpr std::u16string_view kPath = u"file.xml";

const std::string kGeneral =
    "<GENERAL><VERSION>1</VERSION><GUID>CA2C7606-C0B7-47c8-A153-F1FC278BBEB3</GUID>"
    "<LANG>Dansk</LANG><LANGID>1030</LANGID></GENERAL>";
const std::string kFirst = "<STRING><ID>1</ID><VALUE>&amp;Annuller</VALUE></STRING>";
const std::string kLast = "<STRING><ID>13</ID><VALUE>Åbn</VALUE></STRING>";

std::string document(const std::string& content) { return "<LANGUAGE>" + content + "</LANGUAGE>"; }

/// A GENERAL section with a field in the place of one that is in order.
std::string withGeneral(const std::string& field, const std::string& replacement) {
  std::string general = kGeneral;
  general.replace(general.find(field), field.size(), replacement);
  return document(general + kFirst);
}

std::string between(const std::string& content) { return document(kGeneral + kFirst + content + kLast); }

struct Mistake {
  const char* name;
  std::string file;
  std::string listEntry;
  std::string first;
  std::string last;
  std::string finding;
};

std::ostream& operator<<(std::ostream& out, const Mistake& mistake) { return out << mistake.name; }

class Mistakes : public testing::TestWithParam<Mistake> {
 protected:
  Mistakes() { files_.put(kPath, GetParam().file); }

 private:
  tessaly::platform::fake::Files files_;
  tessaly::platform::Override inMemory_{files_};
};

std::string listEntry(const LoadedFile& file) {
  if (!file.listed) return "none";
  return tessaly::toUtf8(file.name) + " " + std::to_string(file.number);
}

std::vector<std::string> findings(const LoadedFile& file) {
  const FileOutline outline = outlineOf(kPath);
  std::vector<std::string> lines;
  for (const Finding& finding :
       isUsed(file) ? findingsIn(file, outline, kPath) : reasonsAgainst(file, outline)) {
    lines.push_back(tessaly::toUtf8(finding.where + u": " + finding.what));
  }
  return lines;
}

TEST_P(Mistakes, AreToldAsTheyAre) {
  const Mistake& mistake = GetParam();
  const LoadedFile file = loadAlone(kPath);
  EXPECT_EQ(listEntry(file), mistake.listEntry);
  EXPECT_EQ(tessaly::toUtf8(file.texts[0]), mistake.first);
  EXPECT_EQ(tessaly::toUtf8(file.texts[12]), mistake.last);
  const auto told = findings(file);
  EXPECT_NE(std::find(told.begin(), told.end(), mistake.finding), told.end()) << testing::PrintToString(told);
}

const std::string kIdentity = R"(it must be "CA2C7606-C0B7-47c8-A153-F1FC278BBEB3")";
const std::string kNoNumber = " is no number of 32 bits: nothing behind it is read";
const std::string kNotWellFormed = "File: not well-formed, as an XML parser tells";

const Mistake kNotUsed[] = {
    {"NoClosingTag", document(kGeneral + "<STRING><ID>1</ID>"), " 0", "", "", kNotWellFormed},
    {"BareAmpersand", document(kGeneral + "<STRING><ID>1</ID><VALUE>&Annuller</VALUE></STRING>"), " 0", "",
     "", kNotWellFormed},
    {"OtherEncodingThanDeclared",
     R"(<?xml version="1.0" encoding="UTF-8"?>)" + document(kGeneral + "<STRING><ID>13</ID><VALUE>\xC5"
                                                                       "bn</VALUE></STRING>"),
     " 0", "", "", kNotWellFormed},
    {"Empty", "", " 0", "", "", kNotWellFormed},
    {"NoGeneral", document(kFirst), "none", "", "", "GENERAL: missing below the root element"},
    {"GeneralAsRoot", kGeneral, "none", "", "", "GENERAL: missing below the root element"},
    {"NoGuid", withGeneral("<GUID>CA2C7606-C0B7-47c8-A153-F1FC278BBEB3</GUID>", ""), "none", "", "",
     "GUID: missing; " + kIdentity},
    {"GuidInOtherCase", withGeneral("47c8", "47C8"), "none", "", "",
     "GUID: \"CA2C7606-C0B7-47C8-A153-F1FC278BBEB3\"; " + kIdentity},
    {"GuidWithABrace", withGeneral("<GUID>CA2C7606", "<GUID>{CA2C7606"), "none", "", "",
     "GUID: \"{CA2C7606-C0B7-47c8-A153-F1FC278BBEB3\"; " + kIdentity},
    {"NoLang", withGeneral("<LANG>Dansk</LANG>", ""), "none", "", "",
     "LANG: missing; it must name the language"},
    {"EmptyLang", withGeneral("Dansk", " "), "none", "", "", "LANG: \"\"; it must name the language"},
    {"NoLangId", withGeneral("<LANGID>1030</LANGID>", ""), "none", "", "",
     "LANGID: missing; it must be a number other than 0"},
    {"LangIdZero", withGeneral("1030", "0"), "none", "", "",
     "LANGID: \"0\"; it must be a number other than 0"},
    {"LangIdNoNumber", withGeneral("1030", "da-DK"), "Dansk 0", "", "", "LANGID: \"da-DK\"" + kNoNumber},
    {"LangIdTooLarge", withGeneral("1030", "3000000000"), "Dansk 0", "", "",
     "LANGID: \"3000000000\"" + kNoNumber},
    {"VersionNoNumber", withGeneral("<VERSION>1<", "<VERSION>1.0b<"), " 0", "", "",
     "VERSION: \"1.0b\"" + kNoNumber},
    {"EmptyVersion", withGeneral("<VERSION>1<", "<VERSION><"), " 0", "", "", "VERSION: \"\"" + kNoNumber},
    {"VersionNoNumberAtTheEnd",
     withGeneral("<LANGID>1030</LANGID>", "<LANGID>1030</LANGID><VERSION>x</VERSION>"), "Dansk 1030", "", "",
     "VERSION: \"x\"" + kNoNumber},
    {"VersionTwiceTheFirstNoNumber", withGeneral("<VERSION>1<", "<VERSION>x</VERSION><VERSION>1<"), " 0", "",
     "", "VERSION: \"x\"" + kNoNumber},
    {"LangIdTwiceTheFirstNoNumber", withGeneral("<LANGID>", "<LANGID>da</LANGID><LANGID>"), "Dansk 0", "", "",
     "LANGID: \"da\"" + kNoNumber},
    {"LangIdTwiceTheLastZero", withGeneral("</LANGID>", "</LANGID><LANGID>0</LANGID>"), "none", "", "",
     "LANGID: \"0\"; it must be a number other than 0"},
    {"GuidInALaterGeneral", document("<GENERAL><LANG>Dansk</LANG></GENERAL>" + kGeneral + kFirst), "none", "",
     "", "GUID: missing; " + kIdentity},
    {"NoText", document(kGeneral), "Dansk 1030", "", "", "File: it gives none of the texts"},
};

const Mistake kUsed[] = {
    {"IdNoNumber", between("<STRING><ID>12a</ID><VALUE>x</VALUE></STRING>"), "Dansk 1030", "&Annuller", "",
     "ID: \"12a\"" + kNoNumber},
    {"EmptyId", between("<STRING><ID/><VALUE>x</VALUE></STRING>"), "Dansk 1030", "&Annuller", "",
     "ID: \"\"" + kNoNumber},
    {"GridFontSizeNoNumber", between("<FONTS><GRIDFONTSIZE>9pt</GRIDFONTSIZE></FONTS>"), "Dansk 1030",
     "&Annuller", "", "GRIDFONTSIZE: \"9pt\"" + kNoNumber},
    {"IdTwiceTheFirstNoNumber", between("<STRING><ID>x</ID><ID>2</ID><VALUE>OK</VALUE></STRING>"),
     "Dansk 1030", "&Annuller", "", "ID: \"x\"" + kNoNumber},
    {"IdTwiceTheLastNoNumber", between("<STRING><ID>2</ID><ID>x</ID><VALUE>OK</VALUE></STRING>"),
     "Dansk 1030", "&Annuller", "", "ID: \"x\"" + kNoNumber},
    {"GridFontSizeTwiceTheFirstNoNumber",
     between("<FONTS><GRIDFONTSIZE>9pt</GRIDFONTSIZE><GRIDFONTSIZE>9</GRIDFONTSIZE></FONTS>"), "Dansk 1030",
     "&Annuller", "", "GRIDFONTSIZE: \"9pt\"" + kNoNumber},
    {"LaterLangIdNoNumber", between("<GENERAL><LANGID>da</LANGID></GENERAL>"), "Dansk 1030", "&Annuller", "",
     "LANGID: \"da\"" + kNoNumber},
    {"LaterVersionNoNumber", between("<GENERAL><VERSION/></GENERAL>"), "Dansk 1030", "&Annuller", "",
     "VERSION: \"\"" + kNoNumber},
    {"NoId", between("<STRING><VALUE>x</VALUE></STRING>"), "Dansk 1030", "&Annuller", "Åbn",
     "STRING: without an ID, and so left out: \"x\""},
    {"IdInAnAttribute", between(R"(<STRING ID="2"><VALUE>x</VALUE></STRING>)"), "Dansk 1030", "&Annuller",
     "Åbn", "STRING: without an ID, and so left out: \"x\""},
    {"IdZero", between("<STRING><ID>0</ID><VALUE>x</VALUE></STRING>"), "Dansk 1030", "&Annuller", "Åbn",
     "ID: 0 is not from 1 to 175, and so left out"},
    {"IdTooHigh", between("<STRING><ID>176</ID><VALUE>x</VALUE></STRING>"), "Dansk 1030", "&Annuller", "Åbn",
     "ID: 176 is not from 1 to 175, and so left out"},
    {"NoValue", between("<STRING><ID>2</ID></STRING>"), "Dansk 1030", "&Annuller", "Åbn",
     "String 2: empty or without VALUE, and so left out"},
    {"EmptyValue", between("<STRING><ID>2</ID><VALUE> </VALUE></STRING>"), "Dansk 1030", "&Annuller", "Åbn",
     "String 2: empty or without VALUE, and so left out"},
    {"TwoStringsWithOneId", between("<STRING><ID>13</ID><VALUE>x</VALUE></STRING>"), "Dansk 1030",
     "&Annuller", "Åbn", "String 13: given 2 times; the last one counts"},
    {"PlaceholderMissing", between("<STRING><ID>14</ID><VALUE>Side %a1</VALUE></STRING>"), "Dansk 1030",
     "&Annuller", "Åbn", "String 14: %a2 is missing, which the English text has"},
    {"PlaceholderInUpperCase", between("<STRING><ID>14</ID><VALUE>%A1 %a2</VALUE></STRING>"), "Dansk 1030",
     "&Annuller", "Åbn", "String 14: %a1 is missing, which the English text has"},
    {"PlaceholderTooMany", between("<STRING><ID>15</ID><VALUE>Klar %a1</VALUE></STRING>"), "Dansk 1030",
     "&Annuller", "Åbn", "String 15: %a1 stands here but not in the English text"},
    {"AcceleratorMissing", between("<STRING><ID>2</ID><VALUE>OK</VALUE></STRING>"), "Dansk 1030", "&Annuller",
     "Åbn", "String 2: accelerator marks: none, the English text has 1"},
    {"AcceleratorTwice", between("<STRING><ID>2</ID><VALUE>&amp;O&amp;K</VALUE></STRING>"), "Dansk 1030",
     "&Annuller", "Åbn", "String 2: accelerator marks: 2, the English text has 1"},
    {"TooLong", between("<STRING><ID>15</ID><VALUE>" + std::string(257, 'x') + "</VALUE></STRING>"),
     "Dansk 1030", "&Annuller", "Åbn", "String 15: 257 characters; forms are made for 256 at most"},
    {"GridFontWithoutSize", between("<FONTS><GRIDFONTNAME>Tahoma</GRIDFONTNAME></FONTS>"), "Dansk 1030",
     "&Annuller", "Åbn", "FONTS: GRIDFONTNAME needs a GRIDFONTSIZE above 0"},
    {"NumbersMissing", between(""), "Dansk 1030", "&Annuller", "Åbn", "Missing: 2 to 12, 14 to 175"},
};

std::string nameOf(const testing::TestParamInfo<Mistake>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(FileIsNotUsed, Mistakes, testing::ValuesIn(kNotUsed), nameOf);
INSTANTIATE_TEST_SUITE_P(FileIsUsed, Mistakes, testing::ValuesIn(kUsed), nameOf);

TEST(CheckOfAFile, ADoubledMarkIsNoAccelerator) {
  tessaly::platform::fake::Files files;
  files.put(kPath, between("<STRING><ID>15</ID><VALUE>Klar &amp;&amp; parat</VALUE></STRING>"));
  const tessaly::platform::Override inMemory(files);
  EXPECT_EQ(findings(loadAlone(kPath)), std::vector<std::string>{"Missing: 2 to 12, 14, 16 to 175"});
}

TEST(CheckOfAFile, AFileThatIsMissingIsToldSo) {
  tessaly::platform::fake::Files files;
  const tessaly::platform::Override inMemory(files);
  EXPECT_EQ(findings(loadAlone(kPath)), std::vector<std::string>{"File: missing, or not to be read"});
}

TEST(CheckOfAFile, AnEndingOtherThanXmlIsTold) {
  tessaly::platform::fake::Files files;
  files.put(u"dansk.txt", between(""));
  files.put(u"DANSK.XML", between(""));
  const tessaly::platform::Override inMemory(files);
  const auto first = [](std::u16string_view path) {
    return findingsIn(loadAlone(path), outlineOf(path), path).front().what;
  };
  EXPECT_EQ(first(u"dansk.txt"), u"its name must end in .xml to be found");
  EXPECT_EQ(first(u"DANSK.XML"), u"2 to 12, 14 to 175");
}

TEST(CheckOfAFile, NothingIsToldOfWhatStandsBehindTheEndOfReading) {
  tessaly::platform::fake::Files files;
  files.put(kPath, between("<FONTS><GRIDFONTSIZE>9pt</GRIDFONTSIZE></FONTS>" + kFirst +
                           "<STRING><ID>x</ID></STRING><STRING><VALUE>x</VALUE></STRING>"
                           "<GENERAL><LANGID>da</LANGID></GENERAL>"));
  const tessaly::platform::Override inMemory(files);
  EXPECT_EQ(findings(loadAlone(kPath)),
            (std::vector<std::string>{"GRIDFONTSIZE: \"9pt\"" + kNoNumber, "Missing: 2 to 175"}));
}

TEST(CheckOfAFile, WhatStandsBeforeTheEndOfReadingIsTold) {
  tessaly::platform::fake::Files files;
  files.put(kPath,
            between(kFirst + "<STRING><ID>0</ID></STRING><GENERAL><LANGID>da</LANGID></GENERAL>" + kFirst));
  const tessaly::platform::Override inMemory(files);
  EXPECT_EQ(
      findings(loadAlone(kPath)),
      (std::vector<std::string>{"ID: 0 is not from 1 to 175, and so left out", "LANGID: \"da\"" + kNoNumber,
                                "String 1: given 2 times; the last one counts", "Missing: 2 to 175"}));
}

TEST(CheckOfAFile, ABrokenHeaderIsToldAlone) {
  tessaly::platform::fake::Files files;
  files.put(kPath, document("<GENERAL><VERSION>x</VERSION><LANGID>da</LANGID></GENERAL>" + kFirst));
  const tessaly::platform::Override inMemory(files);
  EXPECT_EQ(findings(loadAlone(kPath)), std::vector<std::string>{"VERSION: \"x\"" + kNoNumber});
}

TEST(CheckOfAFile, AHiddenOneIsToldSo) {
  tessaly::platform::fake::Files files;
  const tessaly::platform::Override inMemory(files);
  const auto first = [&](std::u16string_view path) {
    files.put(path, between(""));
    return findingsIn(loadAlone(path), outlineOf(path), path).front().what;
  };
  const tessaly::String hidden =
      u"hidden, as its name begins with a dot: the list of languages leaves it out";
  EXPECT_EQ(first(u".dansk.xml"), hidden);
  EXPECT_EQ(first(u"../files/.dansk.xml"), hidden);
  EXPECT_EQ(first(tessaly::String(u"files") + files.separator() + u".dansk.xml"), hidden);
  EXPECT_EQ(first(u".files/dansk.xml"), u"2 to 12, 14 to 175");
}

}  // namespace
}  // namespace showcase
