// Reports as files, which come from anywhere, and what is done with their rows.

#include <gtest/gtest.h>

#include "examples/showcase/window/Folded.h"
#include "examples/showcase/window/Report.h"
#include "examples/showcase/window/Shelf.h"
#include "tessaly/base/Text.h"
#include "tests/support/TemporaryFolder.h"

namespace showcase::tests {
namespace {

using tessaly::String;

constexpr std::string_view kHead = "Date,Owner,Type,Amount,Comment\n";

std::optional<std::vector<ReportRow>> parsed(std::string_view rows) {
  return parseReport(std::string(kHead).append(rows));
}

Report reportOf(std::string_view rows) {
  Report report;
  report.take(u"Test.rep", *parsed(rows));
  return report;
}

TEST(ReportFileTest, RowsAreReadAndWrittenToTheLetter) {
  const std::string text = std::string(kHead) +
                           "2025-01,Hansen,Support,4195.63,\n"
                           "2025-12,\"Müller, A.\",Licences,-0.05,\"as \"\"urgent\"\"\"\n";
  const auto rows = parseReport(text);
  ASSERT_TRUE(rows);
  ASSERT_EQ(rows->size(), 2U);
  EXPECT_EQ((*rows)[0].amount, 419563);
  EXPECT_EQ((*rows)[1].amount, -5);
  EXPECT_EQ((*rows)[1].cell(Column::Owner), u"Müller, A.");
  EXPECT_EQ((*rows)[1].cell(Column::Comment), u"as \"urgent\"");
  EXPECT_EQ(reportText(*rows), text);
}

TEST(ReportFileTest, LinesMayEndAsOnAnySystem) {
  EXPECT_EQ(parseReport("Date,Owner,Type,Amount,Comment\r\n2025-01,A,B,1.00,C\r\n")->size(), 1U);
  EXPECT_EQ(parsed("2025-01,A,B,1.00,C")->size(), 1U);
  EXPECT_TRUE(parsed("")->empty());
}

TEST(ReportFileTest, WhatIsNoReportToTheLastLetterIsRefused) {
  for (const char* const text : {"", "Date,Owner\n", "date,owner,type,amount,comment\n",
                                 "\xEF\xBB\xBF"
                                 "Date,Owner,Type,Amount,Comment\n"}) {
    EXPECT_FALSE(parseReport(text)) << text;
  }
  for (const std::string_view row : {"\n",
                                     "2025-01,A,B,1.00\n",
                                     "2025-01,A,B,1.00,C,D\n",
                                     "2025-01,A,B,1.00,C,\n",
                                     "2025-13,A,B,1.00,C\n",
                                     "2025-00,A,B,1.00,C\n",
                                     "25-01,A,B,1.00,C\n",
                                     "2025-1,A,B,1.00,C\n",
                                     "2025-01,A,B,1,C\n",
                                     "2025-01,A,B,1.0,C\n",
                                     "2025-01,A,B,.50,C\n",
                                     "2025-01,A,B,1,00,C\n",
                                     "2025-01,A,B,--1.00,C\n",
                                     "2025-01,A,B,+1.00,C\n",
                                     "2025-01,A,B,1e3.00,C\n",
                                     "2025-01,A,B,9999999999999.00,C\n",
                                     "2025-01,A,B,,C\n",
                                     "2025-01,\"A,B,1.00,C\n",
                                     "2025-01,A\"B,B,1.00,C\n",
                                     "2025-01,\"A\"B,B,1.00,C\n",
                                     "2025-01,A\tB,B,1.00,C\n",
                                     "2025-01,\xFF,B,1.00,C\n",
                                     "2025-01,A,B,1.00,C\n\n2025-01,A,B,1.00,C\n"}) {
    EXPECT_FALSE(parsed(row)) << row;
  }
  EXPECT_FALSE(parsed({"2025-01,A\0B,B,1.00,C\n", 21}));
}

TEST(ReportFileTest, AFileMayBeLargeButNotEndless) {
  std::string rows;
  for (int i = 0; i < 10000; ++i) rows += "2025-01,A,B,1.00,C\n";
  EXPECT_EQ(parsed(rows)->size(), 10000U);
  EXPECT_FALSE(parsed(rows + "2025-01,A,B,1.00,C\n"));
  EXPECT_FALSE(parsed("2025-01,A,B,1.00," + std::string(1 << 20, 'x') + "\n"));
}

TEST(ReportFileTest, EveryReportOfTheShowcaseIsReadButTheDamagedOne) {
  const Shelf shelf(u"examples/showcase/reports");
  EXPECT_EQ(shelf.names(),
            (std::vector<String>{u"Licences.rep", u"Old budget.rep", u"Sales.rep", u"Travel.rep"}));
  for (const String& name : shelf.names()) {
    const FileFault fault = name == u"Old budget.rep" ? FileFault::Damaged : FileFault::None;
    EXPECT_EQ(shelf.read(name).fault, fault) << tessaly::toUtf8(name);
  }
  EXPECT_EQ(shelf.read(u"No such.rep").fault, FileFault::NotFound);
}

TEST(ReportFileTest, AFolderThatIsNotThereHasNoReports) {
  const Shelf shelf(u"no such folder");
  EXPECT_TRUE(shelf.names().empty());
  EXPECT_FALSE(shelf.has(u"Sales.rep"));
  EXPECT_FALSE(shelf.remove(u"Sales.rep"));
  EXPECT_FALSE(shelf.write(u"Sales.rep", {}));
}

TEST(ReportFileTest, AWrittenNameLeadsToNoOtherFolder) {
  EXPECT_EQ(Shelf::fileName(u"Sales"), u"Sales.rep");
  EXPECT_EQ(Shelf::fileName(u"Sales.rep"), u"Sales.rep");
  EXPECT_EQ(Shelf::fileName(u"../../etc/x"), u".._.._etc_x.rep");
  EXPECT_EQ(Shelf::fileName(u"C:\\x\ty"), u"C__x_y.rep");
  EXPECT_EQ(Shelf::fileName(u" . "), u"");
  EXPECT_EQ(Shelf::fileName(u".rep"), u"");
  EXPECT_EQ(Shelf::fileName(String(200, u'x')).size(), 84U);
}

TEST(ReportTest, RowsAreSortedByAmountAsNumbersAndElseAsTexts) {
  Report report = reportOf("2025-02,b,X,9.00,\n2025-01,A,X,10.00,\n2025-03,c,X,-1.00,\n");
  report.sort(Column::Amount, false);
  EXPECT_EQ(report.pageRows()[2].cell(Column::Amount), u"10.00");
  report.sort(Column::Amount, true);
  EXPECT_EQ(report.pageRows()[2].cell(Column::Amount), u"-1.00");
  report.sort(Column::Owner, false);
  EXPECT_EQ(report.pageRows()[0].cell(Column::Owner), u"A");
  EXPECT_EQ(report.pageRows()[1].cell(Column::Owner), u"b");
  EXPECT_EQ(amountText(report.total()), u"18.00");
  EXPECT_EQ(amountText(-5), u"-0.05");
}

TEST(ReportTest, AnEmptyReportHasOnePageAndNothingToSelect) {
  Report report;
  report.beginNew();
  EXPECT_EQ(report.pages(), 1);
  EXPECT_EQ(report.selectedOnPage(), -1);
  EXPECT_TRUE(report.pageRows().empty());
  report.turnTo(5);
  report.select(7);
  EXPECT_EQ(report.page(), 1);
  EXPECT_FALSE(report.find(u"x", 0));
  EXPECT_TRUE(report.isChanged());
}

TEST(ReportTest, CapitalsOfAnyScriptAreFoundAsSmallLetters) {
  Report report = reportOf("2025-02,ИВАНОВА,X,9.00,\n2025-01,ŁUKASIK,X,10.00,\n2025-03,Ιωάννου,X,-1.00,\n");
  EXPECT_EQ(report.find(u"иванова", 0)->row, 0);
  EXPECT_EQ(report.find(u"łukasik", 0)->row, 1);
  EXPECT_EQ(report.find(u"ΙΩ", 0)->row, 2);
  EXPECT_EQ(report.find(u"ΙΩ", 0)->column, 1);
  EXPECT_EQ(folded(u"ÀŽŸ×A"), u"àžŸ×a");
}

}  // namespace
}  // namespace showcase::tests
