#include "tools/picture-maker/Drawing.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace Parlino {
namespace {

std::string ReadText(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::string DropComments(std::string text) {
  constexpr std::string_view opening = "<!--", closing = "-->";
  for (auto begin = text.find(opening); begin != std::string::npos;
       begin = text.find(opening, begin)) {
    const auto end = text.find(closing, begin);
    if (end == std::string::npos) throw std::runtime_error("a comment is never closed");
    text.erase(begin, end + closing.size() - begin);
  }
  return text;
}

// With one element to a line the pictures stay small and their history readable.
std::string DropIndentation(const std::string& text) {
  std::istringstream lines(text);
  std::string result;
  for (std::string line; std::getline(lines, line);) {
    const auto first = line.find_first_not_of(" \t\r");
    if (first == std::string::npos) continue;
    const auto last = line.find_last_not_of(" \t\r");
    result += line.substr(first, last - first + 1) + '\n';
  }
  return result;
}

}  // namespace

Drawing ReadDrawing(const std::filesystem::path& file) {
  const std::string text = DropComments(ReadText(file));
  const auto root = text.find("<svg");
  const auto begin = text.find('>', root);
  const auto end = text.rfind("</svg>");
  if (root == std::string::npos || begin == std::string::npos || end == std::string::npos)
    throw std::runtime_error(file.string() + " is not an SVG document");
  return DropIndentation(text.substr(begin + 1, end - begin - 1));
}

Drawing Repaint(Drawing drawing, std::string_view from, std::string_view to) {
  for (auto place = drawing.find(from); place != std::string::npos;
       place = drawing.find(from, place + to.size()))
    drawing.replace(place, from.size(), to);
  return drawing;
}

Drawing Place(const Drawing& drawing, const std::string& transform) {
  return "<g transform=\"" + transform + "\">\n" + drawing + "</g>\n";
}

void WritePicture(const std::filesystem::path& file, int width, int height,
                  const Drawing& drawing) {
  std::ofstream stream(file, std::ios::binary);
  stream << "<svg xmlns=\"http://www.w3.org/2000/svg\""
         << " xmlns:xlink=\"http://www.w3.org/1999/xlink\""
         << " version=\"1.2\" baseProfile=\"tiny\""
         << " width=\"" << width << "\" height=\"" << height << "\""
         << " viewBox=\"0 0 " << width << ' ' << height << "\">\n"
         << drawing << "</svg>\n";
  if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace Parlino
