// How much of a document is read, and the range of its numbers. The limits are beyond anything that
// people read in a window, and keep a hostile file from using up memory and time.
#pragma once

#include <algorithm>
#include <cstddef>

namespace Parlino::RichText {

// Reading ends when one of these is exceeded, and the document is cut off there.
inline constexpr std::size_t MostCharacters = 2'000'000;
inline constexpr std::size_t MostRuns = 200'000;
inline constexpr std::size_t MostParagraphs = 50'000;  // including those in cells

// A paragraph that exceeds one of these continues in a new one: Qt takes time proportional to
// the square of a paragraph's length.
inline constexpr std::size_t MostCharactersInParagraph = 10'000;
inline constexpr std::size_t MostRunsInParagraph = 1'000;

// What exceeds these is ignored.
inline constexpr std::size_t MostColumns = 64;
inline constexpr std::size_t MostTabs = 32;
inline constexpr std::size_t MostTableEntries = 1'024;  // of fonts, colours and styles each
inline constexpr std::size_t MostNameCharacters = 64;
inline constexpr std::size_t MostNestedGroups = 256;

inline constexpr int FurthestTwips = 28'800;  // 20 inches, more than any page needs
inline constexpr int FurthestEdge =
    1'000'000;  // of a cell; writers stretch tables far off the page
inline constexpr int SmallestHalfPoints = 2;
inline constexpr int LargestHalfPoints = 800;
inline constexpr int DeepestHeading = 9;

// Clamp a distance to either side, the edge of a cell, and a distance that cannot be negative.
inline int ToTwips(int number) {
  return std::clamp(number, -FurthestTwips, FurthestTwips);
}
inline int ToEdge(int number) {
  return std::clamp(number, -FurthestEdge, FurthestEdge);
}
inline int ToLength(int number) {
  return std::clamp(number, 0, FurthestTwips);
}

}  // namespace Parlino::RichText
