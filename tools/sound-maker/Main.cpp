// Synthesises the sounds of the game:
//     sound-maker OUTPUT_FOLDER

#include <exception>
#include <filesystem>
#include <iostream>

#include "tools/sound-maker/Effects.h"

int main(int count, char** arguments) {
  using namespace Parlino;

  if (count != 2) {
    std::cerr << "usage: sound-maker OUTPUT_FOLDER\n";
    return 2;
  }
  try {
    const std::filesystem::path output = arguments[1];
    std::filesystem::create_directories(output);
    WriteWave(output / "Shuffle.wav", MakeShuffle());
    WriteWave(output / "Card.wav", MakeCard());
    WriteWave(output / "ringout.wav", MakeBell());
  } catch (const std::exception& problem) {
    std::cerr << "sound-maker: " << problem.what() << '\n';
    return 1;
  }
  return 0;
}
