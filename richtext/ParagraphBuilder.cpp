#include "richtext/ParagraphBuilder.h"

#include <string_view>
#include <utility>

#include "richtext/Characters.h"
#include "richtext/Limits.h"

namespace Parlino::RichText {
namespace {

constexpr std::string_view Blanks[] = {" ", "\t", "\u00A0"};

std::string TrimMarker(std::string_view marker) {
  for (bool trimmed = true; std::exchange(trimmed, false);)
    for (const std::string_view blank : Blanks) {
      if (marker.starts_with(blank)) {
        marker.remove_prefix(blank.size());
        trimmed = true;
      }
      if (marker.ends_with(blank)) {
        marker.remove_suffix(blank.size());
        trimmed = true;
      }
    }
  return std::string(marker);
}

}  // namespace

bool ParagraphBuilder::CountCharacter() {
  if (characters_ == MostCharacters) isFull_ = true;
  if (isFull_) return false;
  ++characters_;
  return true;
}

void ParagraphBuilder::Add(char32_t character, const Look& look) {
  if (look.Hidden || !CountCharacter()) return;
  if (paragraph_.Runs.empty() || look != lastLook_)
    if (!BeginRun(look)) return;
  AppendUtf8(paragraph_.Runs.back().Text, character);
  ++charactersOfParagraph_;
}

bool ParagraphBuilder::IsLong() const {
  return charactersOfParagraph_ >= MostCharactersInParagraph ||
         paragraph_.Runs.size() >= MostRunsInParagraph;
}

// Looks that differ only in the numbers of the source share a run.
bool ParagraphBuilder::BeginRun(const Look& look) {
  Style style = StyleOf(look);
  if (paragraph_.Runs.empty() || !(paragraph_.Runs.back().Look == style)) {
    if (runs_ == MostRuns) isFull_ = true;
    if (isFull_) return false;
    ++runs_;
    paragraph_.Runs.push_back({std::move(style), {}});
  }
  lastLook_ = look;
  return true;
}

Style ParagraphBuilder::StyleOf(const Look& look) const {
  return {tables_.FontAt(look.Font).Name, look.HalfPoints, look.Bold, look.Italic, look.Underline,
          tables_.ColourAt(look.Ink)};
}

void ParagraphBuilder::AddToMarker(char32_t character) {
  if (CountCharacter()) AppendUtf8(marker_, character == '\n' ? ' ' : character);
}

Paragraph ParagraphBuilder::Take(const Layout& layout) {
  Paragraph taken = std::exchange(paragraph_, {});
  taken.Marker = TrimMarker(marker_);
  marker_.clear();
  charactersOfParagraph_ = 0;
  taken.Aligned = layout.Aligned;
  taken.LeftIndent = layout.LeftIndent;
  taken.RightIndent = layout.RightIndent;
  taken.FirstIndent = layout.FirstIndent;
  taken.SpaceBefore = layout.SpaceBefore;
  taken.SpaceAfter = layout.SpaceAfter;
  taken.Tabs = layout.Tabs;
  if (layout.OutlineLevel)
    taken.Heading = HeadingFromOutline(*layout.OutlineLevel);
  else if (layout.StyleNumber)
    taken.Heading = tables_.HeadingOfStyle(*layout.StyleNumber);
  return taken;
}

}  // namespace Parlino::RichText
