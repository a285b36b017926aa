// parlino-transcripts: plays the scenes and compares what a player sees in each of them with the
// text that is kept.
//
//   parlino-transcripts [--accept]
//
// Prints the lines around the first differences of each scene and ends with status 1 if there are
// any; --accept keeps what the game shows now instead.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "tests/support/TemporaryFolder.h"
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

void Write(const Scene& scene, const std::string& path) {
  std::ofstream file(path);
  for (const std::string& line : Play(scene)) file << line << "\n";
}

void Keep(const Scene& scene) {
  Write(scene, PathOf(scene));
}

bool IsAsKept(const Scene& scene) {
  const TemporaryFolder folder;
  const std::string actual = folder.Path() / "actual";
  Write(scene, actual);
  const std::string command =
      "diff -U4 '" + PathOf(scene) + "' " + actual + " | head -n 20 | grep .";
  return std::system(command.c_str()) != 0;
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
