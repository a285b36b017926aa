// parlino-transcripts: plays the scenes and compares what a player sees in each of them with the
// text that is kept.
//
//   parlino-transcripts [--accept]
//
// Prints the lines around the first difference of each scene and ends with status 1 if there is
// one; --accept keeps what the game shows now instead.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>

#include "tests/transcripts/Scenes.h"

namespace Parlino {
namespace {

using Lines = std::vector<std::string>;

Lines Play(const Scene& scene) {
  TranscribedPlatform platform;
  try {
    scene.play(platform);
  } catch (const ScriptHasNothingToSay&) {
    platform.transcript.emplace_back("the game comes to no end");
  } catch (const std::exception& error) {
    platform.transcript.push_back(std::string("an error leaves the game: ") + error.what());
  }
  return platform.transcript;
}

std::string PathOf(const Scene& scene) {
  return PARLINO_SOURCE_FOLDER "/tests/transcripts/" + std::string(scene.name) + ".txt";
}

void Keep(const Scene& scene) {
  std::ofstream file(PathOf(scene));
  for (const std::string& line : Play(scene)) file << line << "\n";
}

void PrintLines(std::string_view what, const Lines& lines, std::size_t first, std::size_t count) {
  std::cout << what << "\n";
  for (std::size_t line = first; line < std::min(first + count, lines.size()); ++line)
    std::cout << line + 1 << ": " << lines[line] << "\n";
}

bool IsAsKept(const Scene& scene) {
  Lines kept;
  std::ifstream file(PathOf(scene));
  for (std::string line; std::getline(file, line);) kept.push_back(line);
  const Lines now = Play(scene);
  const auto [keptEnd, nowEnd] = std::ranges::mismatch(kept, now);
  if (keptEnd == kept.end() && nowEnd == now.end()) return true;
  constexpr std::size_t linesBefore = 3;
  constexpr std::size_t linesAfter = 4;
  const auto place = static_cast<std::size_t>(keptEnd - kept.begin());
  const std::size_t first = place - std::min(place, linesBefore);
  std::cout << scene.name << " is another from line " << place + 1 << " on\n";
  PrintLines("--- before", kept, first, place - first);
  PrintLines("--- expected", kept, place, linesAfter);
  PrintLines("--- actual", now, place, linesAfter);
  return false;
}

}  // namespace
}  // namespace Parlino

int main(int count, char** arguments) {
  const bool accepts = count == 2 && std::string_view(arguments[1]) == "--accept";
  if (count > 1 && !accepts) {
    std::cerr << "usage: parlino-transcripts [--accept]\n";
    return 2;
  }
  if (accepts) {
    std::ranges::for_each(Parlino::Scenes, Parlino::Keep);
    return 0;
  }
  return std::ranges::count_if(Parlino::Scenes, std::not_fn(Parlino::IsAsKept)) == 0 ? 0 : 1;
}
