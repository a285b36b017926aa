#include "richtext/Format.h"

#include <algorithm>

#include "richtext/Limits.h"

namespace Parlino::RichText {
namespace {

void AddTab(std::vector<int>& tabs, int distance) {
  if (distance > 0 && tabs.size() < MostTabs) tabs.push_back(ToLength(distance));
}

}  // namespace

bool ChangeLook(Look& look, const ControlWord& word, std::optional<int> number) {
  const bool isOn = number != 0;
  switch (word.Means) {
    case Meaning::Font:
      look.Font = number.value_or(-1);
      return true;
    case Meaning::FontSize:
      look.HalfPoints = std::clamp(number.value_or(24), SmallestHalfPoints, LargestHalfPoints);
      return true;
    case Meaning::Ink:
      look.Ink = number.value_or(0);
      return true;
    case Meaning::Bold:
      look.Bold = isOn;
      return true;
    case Meaning::Italic:
      look.Italic = isOn;
      return true;
    case Meaning::Underline:
      look.Underline = isOn;
      return true;
    case Meaning::NoUnderline:
      look.Underline = false;
      return true;
    case Meaning::Hidden:
      look.Hidden = isOn;
      return true;
    case Meaning::Plain:
      look = Look{};
      return true;
    default:
      return false;
  }
}

bool ChangeLayout(Layout& layout, const ControlWord& word, std::optional<int> number) {
  const int distance = number.value_or(0);
  switch (word.Means) {
    case Meaning::NewLayout:
      layout = Layout{};
      return true;
    case Meaning::Align:
      layout.Aligned = static_cast<Alignment>(word.Value);
      return true;
    case Meaning::LeftIndent:
      layout.LeftIndent = ToTwips(distance);
      return true;
    case Meaning::RightIndent:
      layout.RightIndent = ToTwips(distance);
      return true;
    case Meaning::FirstIndent:
      layout.FirstIndent = ToTwips(distance);
      return true;
    case Meaning::SpaceBefore:
      layout.SpaceBefore = ToLength(distance);
      return true;
    case Meaning::SpaceAfter:
      layout.SpaceAfter = ToLength(distance);
      return true;
    case Meaning::TabStop:
      AddTab(layout.Tabs, distance);
      return true;
    case Meaning::InTable:
      layout.InTable = true;
      return true;
    case Meaning::OutlineLevel:
      layout.OutlineLevel = number;
      return true;
    case Meaning::StyleNumber:
      layout.StyleNumber = number;
      return true;
    default:
      return false;
  }
}

}  // namespace Parlino::RichText
