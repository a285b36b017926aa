// Formatted text as the help window lays it out.
#include <algorithm>
#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include "richtext/Limits.h"
#include "table/window/help/DocumentWriter.h"

namespace Parlino {
namespace {

using RichText::Cell;
using RichText::Paragraph;
using RichText::Table;

Paragraph TextOf(const char* text, const RichText::Style& look = {}) {
  Paragraph paragraph;
  paragraph.Runs.push_back({look, text});
  return paragraph;
}

Cell CellOf(int rightEdge, const char* text) {
  Cell cell;
  cell.RightEdge = rightEdge;
  cell.Paragraphs.push_back(TextOf(text));
  return cell;
}

QStringList LinesOf(const QTextDocument& document) {
  return document.toPlainText().split('\n');
}

TEST(TextDocument, ParagraphsKeepTheirTextAndTheirLook) {
  RichText::Style look;
  look.HalfPoints = 36;
  look.Bold = true;
  look.Ink = 0xC00000;
  Paragraph heading = TextOf("Scores", look);
  heading.Heading = 2;
  heading.Aligned = RichText::Alignment::Centre;
  Paragraph text = TextOf("one\ntwo");
  text.LeftIndent = 600;
  text.FirstIndent = 300;
  QTextDocument target;
  WriteDocument({.Blocks = {heading, text}, .IsCut = true}, 2, target);
  EXPECT_EQ(LinesOf(target).mid(0, 3), (QStringList{"Scores", "one", "two"}));
  EXPECT_TRUE(LinesOf(target).last().startsWith("The document goes on"));
  EXPECT_EQ(target.blockCount(), 3) << "a line break is no new paragraph";
  const QTextBlock first = target.firstBlock();
  const QTextCharFormat format = first.begin().fragment().charFormat();
  EXPECT_EQ(format.font().pixelSize(), 48);  // 18 points at twice the size
  EXPECT_TRUE(format.font().bold());
  EXPECT_EQ(format.foreground().color(), QColor(0xC0, 0, 0));
  EXPECT_EQ(first.blockFormat().headingLevel(), 2);
  EXPECT_EQ(first.blockFormat().alignment(), Qt::AlignHCenter);
  EXPECT_EQ(first.next().blockFormat().leftMargin(), 80);
}

TEST(TextDocument, MarkersHangBesideTheText) {
  const struct {
    int left;
    int first;
    std::vector<int> tabs;
    double margin;
    double indent;
    std::vector<double> stops;  // measured from the start of the line
  } examples[] = {
      {720, -360, {}, 48, -24, {24}},
      {720, -360, {360, 720, 1440}, 48, -24, {24, 72}},
      {0, 0, {}, 20, -20, {20}},       // a document that leaves no room for the marker
      {300, -900, {}, 20, -20, {20}},  // or one that wants it outside the page
  };
  for (const auto& example : examples) {
    Paragraph point = TextOf("text");
    point.Marker = "\u2022";
    point.LeftIndent = example.left;
    point.FirstIndent = example.first;
    point.Tabs = example.tabs;
    QTextDocument target;
    WriteDocument({.Blocks = {point}}, 1, target);
    EXPECT_EQ(target.toPlainText(), "\u2022\ttext");
    const QTextBlockFormat format = target.firstBlock().blockFormat();
    EXPECT_EQ(format.leftMargin(), example.margin);
    EXPECT_EQ(format.textIndent(), example.indent);
    std::vector<double> stops;
    for (const QTextOption::Tab& tab : format.tabPositions()) stops.push_back(tab.position);
    EXPECT_EQ(stops, example.stops);
  }
}

// The rows of a table may have different cells, and edges that are not exactly the same.
TEST(TextDocument, CellsSpanTheColumnsOfOtherRows) {
  Table table;
  table.HasBorders = true;
  table.Rows.push_back({0, {CellOf(1000, "a"), CellOf(2000, "b"), CellOf(4000, "c")}});
  table.Rows.push_back({0, {CellOf(2020, "wide"), CellOf(3990, "d")}});
  table.Rows.push_back({0, {CellOf(1000, "whole")}});
  table.Rows[1].Cells[0].Ground = 0x00FF00;
  QTextDocument target;
  WriteDocument({.Blocks = {TextOf("before"), table, TextOf("after")}}, 1, target);
  const auto* grid = qobject_cast<QTextTable*>(target.rootFrame()->childFrames().value(0));
  ASSERT_NE(grid, nullptr);
  EXPECT_EQ(grid->columns(), 3);
  EXPECT_EQ(grid->cellAt(1, 0).columnSpan(), 2);
  EXPECT_EQ(grid->cellAt(2, 0).columnSpan(), 3);
  EXPECT_EQ(grid->cellAt(1, 0).format().background().color(), QColor(0, 255, 0));
  EXPECT_EQ(grid->cellAt(1, 2).firstCursorPosition().block().text(), "d");
  EXPECT_NEAR(grid->format().columnWidthConstraints().at(2).rawValue(), 50, 1);
  EXPECT_EQ(LinesOf(target).first(), "before");
  EXPECT_EQ(LinesOf(target).last(), "after");
}

// Word processors may stretch a table to ten times the page, and broken files have cells of no
// width.
TEST(TextDocument, NoCellOfATableIsLost) {
  constexpr int edges[][3] = {{21845, 39340, 65534},
                              {100, 100, 100},
                              {0, 0, 0},
                              {-900, 20, 50},
                              {1'000'000, 1'000'000, 1'000'000}};
  Table table;
  QStringList texts;
  for (const auto& row : edges) {
    table.Rows.push_back({std::min(0, row[0]), {}});
    for (const int edge : row) {
      texts << QString("cell%1").arg(texts.size());
      table.Rows.back().Cells.push_back(CellOf(edge, texts.last().toUtf8()));
    }
  }
  QTextDocument target;
  WriteDocument({.Blocks = {table}}, 1, target);
  for (const QString& text : texts)
    EXPECT_TRUE(LinesOf(target).contains(text)) << text.toStdString();
}

// The numbers are the largest and smallest that a document may hold.
TEST(TextDocument, NothingInADocumentBreaksTheStructureOrCostsWithoutEnd) {
  using RichText::FurthestTwips;
  Paragraph odd = TextOf("a\uFDD0b\uFFFCc");
  odd.LeftIndent = odd.FirstIndent = odd.RightIndent = odd.SpaceBefore = FurthestTwips;
  odd.Tabs = {1, FurthestTwips};
  odd.Runs[0].Look.HalfPoints = RichText::LargestHalfPoints;
  Paragraph outside = TextOf("outside");
  outside.LeftIndent = outside.FirstIndent = outside.RightIndent = -FurthestTwips;
  outside.Runs[0].Look.HalfPoints = RichText::SmallestHalfPoints;
  Table ragged;
  ragged.Rows.push_back({-FurthestTwips, {CellOf(-FurthestTwips, "x"), CellOf(0, "y")}});
  ragged.Rows.push_back({FurthestTwips, {CellOf(RichText::FurthestEdge, "z")}});
  Table huge;  // each row has its own edge, so a grid would have a million cells
  for (int row = 0; row < 1000; ++row) huge.Rows.push_back({0, {CellOf(100 * row, "cell")}});
  QTextDocument target;
  WriteDocument({.Blocks = {odd, outside, ragged, ragged, huge}}, 1, target);
  EXPECT_EQ(LinesOf(target).mid(0, 2), (QStringList{"a b c", "outside"}));
  EXPECT_EQ(target.toPlainText().count("cell"), 1000);
  const QTextBlockFormat format = target.firstBlock().next().blockFormat();
  EXPECT_GE(format.leftMargin() + format.textIndent(), 0);
  EXPECT_GE(format.rightMargin(), 0);
  EXPECT_EQ(target.rootFrame()->childFrames().size(), 2);
}

}  // namespace
}  // namespace Parlino
