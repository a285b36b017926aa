// Composes the finished pictures from the hand-written sources:
//     picture-maker SOURCES_FOLDER OUTPUT_FOLDER

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <utility>

#include "tools/picture-maker/Face.h"
#include "tools/picture-maker/Suit.h"

namespace fs = std::filesystem;

namespace Parlino {
namespace {

constexpr int CardWidth = 71, CardHeight = 96;

fs::path NumberedFile(const fs::path& folder, int number) {
  return folder / (std::to_string(number) + ".svg");
}

void MakeFaces(const fs::path& sources, const fs::path& output) {
  for (int card = 1; card <= 52; ++card)
    WritePicture(NumberedFile(output, card), CardWidth, CardHeight, ComposeFace(sources, card));
}

Drawing MakeRed(Drawing back) {
  struct Twin {
    const char *blue, *red;
  };
  for (const Twin& twin :
       {Twin{"#1d3f94", "#9c1328"}, Twin{"#16306f", "#740c1c"}, Twin{"#4668bd", "#b8404e"},
        Twin{"#8fa9e6", "#eb9a9c"}, Twin{"#dfe8ff", "#ffe6e0"}})
    back = Repaint(std::move(back), twin.blue, twin.red);
  return back;
}

// The back is drawn once, upright and blue.
void MakeBacks(const fs::path& sources, const fs::path& output) {
  const auto back = sources / "backs";
  const Drawing blue = ReadDrawing(back / "back.svg");
  const Drawing red = MakeRed(blue);
  const std::string sideways = "translate(96 0) rotate(90)";

  WritePicture(NumberedFile(output, 53), CardWidth, CardHeight, blue);
  WritePicture(NumberedFile(output, 57), CardHeight, CardWidth, Place(blue, sideways));
  WritePicture(NumberedFile(output, 58), CardWidth, CardHeight, red);
  WritePicture(NumberedFile(output, 59), CardHeight, CardWidth, Place(red, sideways));
  WritePicture(output / "small-back.svg", 32, 32, ReadDrawing(back / "small-back.svg"));
}

void MakePointers(const fs::path& sources, const fs::path& output) {
  int number = 54;
  for (const char* name : {"play", "arrow", "wait"})
    WritePicture(NumberedFile(output, number++), 32, 32,
                 ReadDrawing(sources / "pointers" / (std::string(name) + ".svg")));
}

// Black suits would not stand out on the dark surface that they are shown on, so they get a tile.
void MakeTrumpTiles(const fs::path& sources, const fs::path& output) {
  int number = 60;
  for (const char* name : {"hearts", "clubs", "diamonds", "spades"}) {
    const Drawing symbol = ReadDrawing(sources / "suits" / (std::string(name) + ".svg"));
    const std::string colour = SuitNamed(name).colour;
    WritePicture(NumberedFile(output, number++), 48, 48,
                 ReadDrawing(sources / "tile.svg") + "<g fill=\"" + colour + "\">\n" +
                     Place(symbol, "translate(24 24) scale(2.3)") + "</g>\n");
  }
}

void MakeMessages(const fs::path& sources, const fs::path& output) {
  for (const char* name : {"message1", "message2", "message3"})
    WritePicture(output / (std::string(name) + ".svg"), 32, 32,
                 ReadDrawing(sources / "messages" / (std::string(name) + ".svg")));
  WritePicture(output / "icon.svg", 64, 64, ReadDrawing(sources / "icon.svg"));
}

}  // namespace
}  // namespace Parlino

int main(int count, char** arguments) {
  using namespace Parlino;

  if (count != 3) {
    std::cerr << "usage: picture-maker SOURCES_FOLDER OUTPUT_FOLDER\n";
    return 2;
  }
  try {
    const fs::path sources = arguments[1], output = arguments[2];
    fs::create_directories(output);
    MakeFaces(sources, output);
    MakeBacks(sources, output);
    MakePointers(sources, output);
    MakeTrumpTiles(sources, output);
    MakeMessages(sources, output);
  } catch (const std::exception& problem) {
    std::cerr << "picture-maker: " << problem.what() << '\n';
    return 1;
  }
  return 0;
}
