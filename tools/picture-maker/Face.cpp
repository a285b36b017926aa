#include "tools/picture-maker/Face.h"

#include <array>
#include <sstream>

#include "tools/picture-maker/Pips.h"
#include "tools/picture-maker/Suit.h"

namespace Parlino {
namespace {

constexpr int Jack = 11, King = 13, Ace = 14;
constexpr std::array RankNames{"2", "3",  "4",    "5",     "6",    "7",  "8",
                               "9", "10", "jack", "queen", "king", "ace"};

std::string RankName(int value) {
  return RankNames.at(static_cast<std::size_t>(value - 2));
}

std::string MoveTo(Spot spot, double scale, bool turned = false) {
  std::ostringstream text;
  text << "translate(" << spot.x << ' ' << spot.y << ')';
  if (turned) text << " rotate(180)";
  if (scale != 1) text << " scale(" << scale << ')';
  return text.str();
}

Drawing Use(const std::string& name, const std::string& transform) {
  return "<use xlink:href=\"#" + name + "\" transform=\"" + transform + "\"/>\n";
}

Drawing Colour(const Suit& suit, const Drawing& drawing) {
  return "<g fill=\"" + std::string(suit.colour) + "\">\n" + drawing + "</g>\n";
}

// The whole upper half is drawn once and shown again upside down.
Drawing TwoHeaded(const Drawing& half, const std::string& name) {
  return "<g id=\"" + name + "\">\n" + half + "</g>\n" + Use(name, "rotate(180 35.5 48)");
}

Drawing ComposeCard() {
  return "<rect x=\".5\" y=\".5\" width=\"70\" height=\"95\" rx=\"5\""
         " fill=\"#fffdf6\" stroke=\"#4a4a50\"/>\n";
}

// Everything that identifies the card must lie within the 22 pixels that stay visible when the next
// card of a hand covers the rest.
Drawing ComposeIndex(const std::filesystem::path& sources, const Suit& suit, int value) {
  const Drawing rank = ReadDrawing(sources / "ranks" / (RankName(value) + ".svg"));
  return "<g transform=\"translate(9.5 5)\" stroke=\"" + std::string(suit.colour) +
         "\" stroke-width=\"2.7\">\n" + rank + "</g>\n" + Use("suit", MoveTo({9.5, 29}, 1.15));
}

// Nine or ten pips stand closer together, so they are a little smaller.
Drawing ComposePips(int value) {
  const double scale = value < 9 ? 1.4 : 1.16;
  Drawing pips;
  for (const Spot spot : PlacePips(value)) pips += Use("suit", MoveTo(spot, scale, IsTurned(spot)));
  return pips;
}

Drawing ComposeAce(const std::filesystem::path& sources, const Suit& suit) {
  return ReadDrawing(sources / "aces" / (std::string(suit.name) + ".svg"));
}

// The frame has two steps that make room for the indices, so a figure may be as wide as the card
// allows.
Drawing ComposeCourt(const std::filesystem::path& sources, const Suit& suit, int value) {
  const std::string outline = "<path d=\"M22.5 4.5H66.5V59.5H48.5V91.5H4.5V36.5H22.5Z\" ";
  const auto courts = sources / "courts";
  const std::string figure = RankName(value) + "-of-" + suit.name + ".svg";
  return outline + "fill=\"" + suit.tint + "\"/>\n" +
         TwoHeaded(ReadDrawing(courts / figure), "figure") +
         ReadDrawing(courts / ("sash-of-" + std::string(suit.name) + ".svg")) + outline +
         "fill=\"none\" stroke=\"" + suit.colour + "\" stroke-width=\"1\"/>\n";
}

}  // namespace

Drawing ComposeFace(const std::filesystem::path& sources, int card) {
  const Suit& suit = SuitOfCard(card);
  const int value = 2 + (card - 1) % 13;
  const Drawing symbol = ReadDrawing(sources / "suits" / (std::string(suit.name) + ".svg"));
  const bool isCourt = value >= Jack && value <= King;

  return "<defs>\n<g id=\"suit\">\n" + symbol + "</g>\n</defs>\n" + ComposeCard() +
         (isCourt ? ComposeCourt(sources, suit, value) : Drawing()) +
         Colour(suit, TwoHeaded(ComposeIndex(sources, suit, value), "index") + ComposePips(value) +
                          (value == Ace ? ComposeAce(sources, suit) : Drawing()));
}

}  // namespace Parlino
