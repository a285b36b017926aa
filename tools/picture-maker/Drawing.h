#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Parlino {

// A drawing is SVG text without the outer <svg> element, ready to be placed
// into another picture.
using Drawing = std::string;

// Reads one hand-written source: comments, indentation and the outer element
// are left behind.
Drawing ReadDrawing(const std::filesystem::path& file);

// Replaces every occurrence of one colour by another.
Drawing Repaint(Drawing drawing, std::string_view from, std::string_view to);

// The same drawing somewhere else; the transform is given in SVG's own words.
Drawing Place(const Drawing& drawing, const std::string& transform);

// Turns the drawings into a complete picture of the given size.
void WritePicture(const std::filesystem::path& file, int width, int height, const Drawing& drawing);

}  // namespace Parlino
