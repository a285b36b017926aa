#include "table/window/help/ParagraphWriter.h"

#include <algorithm>

#include <QTextBlockFormat>
#include <QTextCharFormat>

#include "table/window/painting/Design.h"

namespace Parlino {
namespace {

using RichText::Alignment;
using RichText::Paragraph;
using RichText::Style;

constexpr int HangOfMarker = 300;  // twips, if the document leaves no room for a marker

// The left indents of a paragraph, in twips. Text may not leave the page.
struct Indents {
  explicit Indents(const Paragraph& paragraph)
      : left(std::max(0, paragraph.LeftIndent)), first(std::max(paragraph.FirstIndent, -left)) {
    if (paragraph.Marker.empty() || first < 0) return;
    left += HangOfMarker;
    first = -HangOfMarker;
  }
  int left;
  int first;
};

Qt::Alignment ToAlignment(Alignment aligned) {
  switch (aligned) {
    case Alignment::Centre:
      return Qt::AlignHCenter;
    case Alignment::Right:
      return Qt::AlignRight;
    case Alignment::Justified:
      return Qt::AlignJustify;
    default:
      return Qt::AlignLeft;
  }
}

// Qt measures tab stops from the start of the line.
QList<QTextOption::Tab> TabsOf(const Paragraph& paragraph, const Indents& indents, double zoom) {
  QList<QTextOption::Tab> tabs;
  const int lineStart = indents.left + indents.first;
  const auto add = [&](int tab) {
    if (tab > lineStart) tabs.append({LengthInPixels(tab - lineStart, zoom), QTextOption::LeftTab});
  };
  if (indents.first < 0) add(indents.left);
  for (const int tab : paragraph.Tabs)
    if (indents.first >= 0 || tab > indents.left) add(tab);
  return tabs;
}

QTextBlockFormat BlockFormat(const Paragraph& paragraph, double zoom) {
  constexpr double lineHeight = 112;  // percent
  const Indents indents(paragraph);
  QTextBlockFormat format;
  format.setAlignment(ToAlignment(paragraph.Aligned));
  format.setLeftMargin(LengthInPixels(indents.left, zoom));
  format.setTextIndent(LengthInPixels(indents.first, zoom));
  format.setRightMargin(std::max(0.0, LengthInPixels(paragraph.RightIndent, zoom)));
  format.setTopMargin(LengthInPixels(paragraph.SpaceBefore, zoom));
  format.setBottomMargin(LengthInPixels(paragraph.SpaceAfter, zoom));
  format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
  format.setTabPositions(TabsOf(paragraph, indents, zoom));
  format.setHeadingLevel(paragraph.Heading);
  return format;
}

// The font families for a font of the document. If its fonts are not installed, families with the
// same metrics take their place.
QStringList FamiliesFor(const std::string& font) {
  static constexpr struct {
    const char* model;
    const char* likeness;
  } likenesses[] = {{"Arial", "Liberation Sans"},
                    {"Helvetica", "Liberation Sans"},
                    {"Courier", "Liberation Mono"},
                    {"Courier New", "Liberation Mono"}};
  QStringList families;
  if (!font.empty()) families.append(QString::fromStdString(font));
  for (const auto& [model, likeness] : likenesses)
    if (font == model) families.append(likeness);
  return families + TextFamilies();
}

QTextCharFormat CharFormat(const Style& look, double zoom) {
  QTextCharFormat format;
  format.setFontFamilies(FamiliesFor(look.Font));
  format.setProperty(QTextFormat::FontPixelSize, TextPixels(look.HalfPoints / 2.0, zoom));
  format.setFontWeight(look.Bold ? QFont::Bold : QFont::Normal);
  format.setFontItalic(look.Italic);
  format.setFontUnderline(look.Underline);
  if (look.Ink) format.setForeground(QColor::fromRgb(*look.Ink));
  return format;
}

// Characters that Qt uses to mark frames and objects become spaces.
QString ToParagraphText(const std::string& text) {
  QString result = QString::fromStdString(text);
  for (QChar& letter : result) {
    if (letter == '\n') letter = QChar::LineSeparator;
    const bool isStructure = letter == QChar::ObjectReplacementCharacter ||
                             (letter.unicode() >= 0xFDD0 && letter.unicode() <= 0xFDEF);
    if (isStructure) letter = ' ';
  }
  return result;
}

}  // namespace

double LengthInPixels(int twips, double zoom) {
  return twips * zoom / TwipsInPixel;
}

void WriteParagraph(const Paragraph& paragraph, double zoom, QTextCursor& cursor) {
  const Style first = paragraph.Runs.empty() ? Style() : paragraph.Runs.front().Look;
  cursor.setBlockFormat(BlockFormat(paragraph, zoom));
  // Merged rather than set, because in the first paragraph of a cell the format also holds the
  // cell's span.
  cursor.mergeBlockCharFormat(CharFormat(first, zoom));
  if (!paragraph.Marker.empty()) {
    Style marker = first;
    marker.Bold = marker.Underline = false;
    cursor.insertText(ToParagraphText(paragraph.Marker + "\t"), CharFormat(marker, zoom));
  }
  for (const RichText::Run& run : paragraph.Runs)
    cursor.insertText(ToParagraphText(run.Text), CharFormat(run.Look, zoom));
}

}  // namespace Parlino
