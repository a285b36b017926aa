#include "tools/selfplay/Summary.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <string>
#include <string_view>

namespace Parlino {
namespace {

constexpr std::string_view NamesOfSeats[] = {"South", "West", "North", "East"};
constexpr std::string_view NamesOfTeams[] = {"ours", "theirs"};

// 1234567 as 1,234,567.
std::string Grouped(long number) {
  std::string text = std::to_string(number);
  for (int place = static_cast<int>(text.size()) - 3; place > (number < 0 ? 1 : 0); place -= 3)
    text.insert(static_cast<std::size_t>(place), 1, ',');
  return text;
}

void PrintSide(std::ostream& out, std::string_view name, const Side& side, double hands) {
  out << std::left << std::setw(8) << name << std::right << std::setprecision(2) << std::setw(13)
      << static_cast<double>(side.tricks) / hands << std::setw(12)
      << static_cast<double>(side.bid) / hands << std::setw(12) << Grouped(side.made)
      << std::setw(14) << Grouped(side.failed);
}

void WriteSide(std::ostream& out, std::string_view name, const Figures& figures, const Side& side) {
  out << name << ',' << figures.hands << ',' << side.tricks << ',' << side.bid << ',' << side.made
      << ',' << side.failed;
}

}  // namespace

void PrintSummary(std::ostream& out, const Figures& figures, double seconds) {
  const auto hands = static_cast<double>(std::max(figures.hands, 1L));
  out << std::fixed << "hands              " << Grouped(figures.hands) << "\nhands per second   "
      << Grouped(std::lrint(hands / seconds)) << "\ngames finished     " << Grouped(figures.games)
      << "\nerror reports      " << Grouped(figures.errors)
      << "\n\nseat      tricks/hand    bid/hand   bids made   bids failed   half tricks\n";
  for (std::size_t seat = 0; seat < figures.seats.size(); ++seat) {
    PrintSide(out, NamesOfSeats[seat], figures.seats[seat], hands);
    out << std::setw(14) << Grouped(figures.seats[seat].halfTricks) << '\n';
  }
  out << "\nteam      tricks/hand    bid/hand   bids made   bids failed   points/hand   games "
         "won\n";
  for (std::size_t team = 0; team < figures.teams.size(); ++team) {
    const Side& side = figures.teams[team];
    PrintSide(out, NamesOfTeams[team], side, hands);
    out << std::setw(14) << static_cast<double>(side.points) / hands << std::setw(12)
        << Grouped(side.gamesWon) << '\n';
  }
}

void WriteTable(std::ostream& out, const Figures& figures) {
  out << "side,hands,tricks,tricks_bid,bids_made,bids_failed,half_tricks,points,games_won\n";
  for (std::size_t seat = 0; seat < figures.seats.size(); ++seat) {
    WriteSide(out, NamesOfSeats[seat], figures, figures.seats[seat]);
    out << ',' << figures.seats[seat].halfTricks << ",,\n";
  }
  for (std::size_t team = 0; team < figures.teams.size(); ++team) {
    const Side& side = figures.teams[team];
    WriteSide(out, NamesOfTeams[team], figures, side);
    out << ",," << side.points << ',' << side.gamesWon << '\n';
  }
}

}  // namespace Parlino
