#include "tools/selfplay/Transcript.h"

#include "engine/TrickFlow.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr int LinesOfTrick = 5;  // four cards and the separator

template <class Sequence>
void WriteNumbers(std::ostream& out, const Sequence& numbers) {
  char separator = '[';
  for (const auto number : numbers) {
    out << separator << number;
    separator = ',';
  }
  out << ']';
}

void WriteText(std::ostream& out, std::string_view text) {
  out << '"';
  for (const char character : text) {
    if (character == '"' || character == '\\') out << '\\';
    out << character;
  }
  out << '"';
}

}  // namespace

void WriteTranscriptHeader(std::ostream& out, std::uint64_t seed, int hands, std::string_view south,
                           int handsInSession) {
  out << R"({"format":"parlino-selfplay","version":1,"seed":)" << seed << R"(,"hands":)" << hands
      << R"(,"south":")" << south << '"';
  if (handsInSession > 0) out << R"(,"hands_in_session":)" << handsInSession;
  out << "}\n";
}

void Transcript::Look() {
  if (deal_.size() < CardsInPack) {
    for (int card = 1; card <= CardsInPack; ++card) {
      const Integer owner = Pack[card].Owner;
      if (owner == NoSeat || dealt_[static_cast<std::size_t>(card)]) continue;
      dealt_[static_cast<std::size_t>(card)] = true;
      deal_.push_back({owner, card});
    }
  }
  if (static_cast<std::size_t>(Table.LstCardsPlayed.Count() / LinesOfTrick) > tricks_.size())
    tricks_.push_back({TrickSeats[1], TrickCards, TrickWinner});
}

void Transcript::WriteDeal() {
  out_ << R"(,"deal":)";
  char separator = '[';
  for (const DealtCard& dealt : deal_) {
    out_ << separator << '[' << dealt.seat << ',' << dealt.card << ']';
    separator = ',';
  }
  out_ << ']';
}

void Transcript::WriteTricks() {
  out_ << R"(,"tricks":)";
  char separator = '[';
  for (const Trick& trick : tricks_) {
    out_ << separator << R"({"leader":)" << trick.leader << R"(,"cards":)";
    WriteNumbers(out_, trick.cards);
    out_ << R"(,"winner":)" << trick.winner << '}';
    separator = ',';
  }
  out_ << ']';
}

void Transcript::WritePlayedList() {
  out_ << R"(,"played_list":)";
  char separator = '[';
  for (int line = 0; line < Table.LstCardsPlayed.Count(); ++line) {
    out_ << separator;
    WriteText(out_, Table.LstCardsPlayed.Line(line));
    separator = ',';
  }
  out_ << ']';
}

void Transcript::WriteHand(int hand, bool gameOver) {
  const Integer bidOrder[] = {SeatAfter(Dealer, 1), SeatAfter(Dealer, 2), SeatAfter(Dealer, 3),
                              Dealer};
  out_ << R"({"hand":)" << hand << R"(,"dealer":)" << Dealer << R"(,"trump":)" << TrumpSuit;
  WriteDeal();
  out_ << R"(,"bids":)";
  WriteNumbers(out_, Bids);
  out_ << R"(,"bid_order":)";
  WriteNumbers(out_, bidOrder);
  WriteTricks();
  out_ << R"(,"tricks_won":)";
  WriteNumbers(out_, TricksWon);
  out_ << R"(,"our_bid":)" << OurBid << R"(,"their_bid":)" << TheirBid << R"(,"our_hand_score":)"
       << OurHandScore << R"(,"their_hand_score":)" << TheirHandScore << R"(,"our_points":)"
       << OurPoints << R"(,"their_points":)" << TheirPoints << R"(,"game_over":)"
       << (gameOver ? "true" : "false") << R"(,"games_won":)" << GamesWon << R"(,"games_played":)"
       << GamesPlayed;
  WritePlayedList();
  out_ << "}\n";
  deal_.clear();
  dealt_.assign(dealt_.size(), false);
  tricks_.clear();
}

}  // namespace Parlino
