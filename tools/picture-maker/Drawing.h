#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Parlino {

// A drawing is SVG text without the outer <svg> element, ready to be placed into another picture.
using Drawing = std::string;

// Reads one hand-written source without its comments, indentation and outer element.
Drawing ReadDrawing(const std::filesystem::path& file);

// Replaces every occurrence of one colour by another.
Drawing Repaint(Drawing drawing, std::string_view from, std::string_view to);

// The same drawing in another place; the transform is written as in SVG.
Drawing Place(const Drawing& drawing, const std::string& transform);

// Makes a complete picture of the given size out of the drawing and writes it to the file.
void WritePicture(const std::filesystem::path& file, int width, int height, const Drawing& drawing);

}  // namespace Parlino
