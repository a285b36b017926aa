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

// A symbol is drawn 13 units wide and 14 high.
std::string PutSymbol(Spot spot, Size size, bool turned = false) {
  std::ostringstream text;
  text << "translate(" << spot.x << ' ' << spot.y << ')';
  if (turned) text << " rotate(180)";
  if (size.width != 13) text << " scale(" << size.width / 13 << ' ' << size.height / 14 << ')';
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
  return "<g id=\"" + name + "\">\n" + half + "</g>\n" + Use(name, "rotate(180 47.5 48)");
}

// Paper upon edge: with a fill and its outline over the same pixels, light would shine through at
// the corners.
Drawing ComposeCard() {
  return "<rect width=\"71\" height=\"96\" rx=\"5.5\" fill=\"#8f897f\"/>\n"
         "<rect x=\"1\" y=\"1\" width=\"69\" height=\"94\" rx=\"4.5\" fill=\"#fffdf6\"/>\n";
}

// Everything that identifies the card must lie within the 26 pixels that stay visible when the next
// card of a hand covers the rest. Cards are never turned, so one index is enough.
Drawing ComposeIndex(const std::filesystem::path& sources, const Suit& suit, int value) {
  const Drawing rank = ReadDrawing(sources / "ranks" / (RankName(value) + ".svg"));
  return "<g transform=\"translate(12.5 6)\" stroke=\"" + std::string(suit.colour) +
         "\" stroke-width=\"3\">\n" + rank + "</g>\n" +
         Use("suit", PutSymbol({12.5, 35}, {11, 12}));
}

Drawing ComposePips(int value) {
  const Size size = PipSize(value);
  Drawing pips;
  for (const Spot spot : PlacePips(value))
    pips += Use("suit", PutSymbol(spot, size, IsTurned(spot)));
  return pips;
}

// A little larger than it is drawn, and still clear of what a covered card shows.
Drawing ComposeAce(const std::filesystem::path& sources, const Suit& suit) {
  return Place(ReadDrawing(sources / "aces" / (std::string(suit.name) + ".svg")),
               "translate(47.5 48) scale(1.05) translate(-47.5 -48)");
}

// The seam of the two figures falls for a jack, rises for a queen and is level for a king.
std::string SlopeOfSeam(int value) {
  constexpr std::array slopes{"20.2", "-20.2", "0"};
  return slopes.at(static_cast<std::size_t>(value - Jack));
}

// The figure stands right of what a covered card shows; there an emblem below the index tells the
// court card from the others.
Drawing ComposeCourt(const std::filesystem::path& sources, const Suit& suit, int value) {
  const std::string outline = "<rect x=\"28.5\" y=\"4.5\" width=\"38\" height=\"87\" ";
  const std::string name = RankName(value) + "-of-" + suit.name + ".svg";
  const Drawing figure = ReadDrawing(sources / "courts" / name);
  const Drawing sash = ReadDrawing(sources / "sashes" / name);
  return outline + "fill=\"" + suit.tint + "\"/>\n" +
         TwoHeaded(Place(figure, "translate(3.5 0)"), "figure") +
         Place(sash, "translate(47.5 48) skewY(" + SlopeOfSeam(value) + ")") + outline +
         "fill=\"none\" stroke=\"" + suit.colour + "\" stroke-width=\"1\"/>\n" +
         Place(ReadDrawing(sources / "emblems" / name), "translate(12.5 46)");
}

}  // namespace

Drawing ComposeFace(const std::filesystem::path& sources, int card) {
  const Suit& suit = SuitOfCard(card);
  const int value = 2 + (card - 1) % 13;
  const Drawing symbol = ReadDrawing(sources / "suits" / (std::string(suit.name) + ".svg"));
  const bool isCourt = value >= Jack && value <= King;

  return "<defs>\n<g id=\"suit\">\n" + symbol + "</g>\n</defs>\n" + ComposeCard() +
         (isCourt ? ComposeCourt(sources, suit, value) : Drawing()) +
         Colour(suit, ComposeIndex(sources, suit, value) + ComposePips(value) +
                          (value == Ace ? ComposeAce(sources, suit) : Drawing()));
}

}  // namespace Parlino
