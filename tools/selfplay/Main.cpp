// parlino-selfplay: plays hands at the headless table and prints how they went.
//
//   parlino-selfplay --hands N --seed S [--south random|robot] [--transcript FILE]

#include <chrono>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <optional>

#include "engine/TrickFlow.h"
#include "game/Game.h"
#include "headless/Headless.h"
#include "headless/South.h"
#include "table/MessageDialog.h"
#include "tools/selfplay/Options.h"
#include "tools/selfplay/Transcript.h"

namespace Parlino {
namespace {

struct TeamFigures {
  long tricks = 0;
  long made = 0;
  long points = 0;

  void Count(int tricksWon, int bid, int score) {
    tricks += tricksWon;
    made += tricksWon >= bid ? 1 : 0;
    points += score;
  }
};

// The person at the table: plays South, answers the dialogs and leaves after the last hand.
class Session {
 public:
  Session(const SelfPlayOptions& options, std::ostream* transcript)
      : options_(options), south_(options.hands) {
    options.isSouthARobot ? PlayAsRobot(south_) : PlayAtRandom(south_, options.seed);
    south_.onDialog = [this] { OnDialog(); };
    if (transcript == nullptr) return;
    transcript_.emplace(*transcript);
    transcript_->WriteHeader(options.seed, options.hands,
                             options.isSouthARobot ? "robot" : "random");
  }

  void OnEvents(std::uint32_t atMostMs) {
    if (transcript_) transcript_->Look();
    south_.OnEvents(atMostMs);
  }

  // A hand that ends in an error still counts as played.
  void OnMsgBox(std::string_view text) {
    if (text.starts_with("Unexpected error")) ++errors_;
    if (!text.starts_with(" the hand is over")) return;
    EndHand(false);
    south_.CountHand();
  }

  void Print(double seconds) const {
    std::cout << std::fixed << std::setprecision(0) << "hands            " << hands_ << "\n"
              << "hands per second " << hands_ / seconds << "\n"
              << "games finished   " << games_ << "\n"
              << "error reports    " << errors_ << "\n"
              << "team   tricks/hand  bids made  bids failed  points/hand\n";
    PrintTeam("ours", ours_);
    PrintTeam("theirs", theirs_);
  }

 private:
  void OnDialog() {
    const bool isGameOver = MFormDeluxe.Label3 == "   Game Over";
    if (isGameOver || MFormDeluxe.Label3 == "   Scores") EndHand(isGameOver);
  }

  void EndHand(bool gameOver) {
    ++hands_;
    games_ += gameOver ? 1 : 0;
    ours_.Count(TricksWon[Player] + TricksWon[North], OurBid, OurHandScore);
    theirs_.Count(TricksWon[West] + TricksWon[East], TheirBid, TheirHandScore);
    if (transcript_) transcript_->WriteHand(hands_, gameOver);
  }

  void PrintTeam(std::string_view name, const TeamFigures& team) const {
    const double hands = hands_;
    std::cout << std::left << std::setw(7) << name << std::right << std::setprecision(3)
              << std::setw(11) << static_cast<double>(team.tricks) / hands << std::setw(11)
              << team.made << std::setw(13) << hands_ - team.made << std::setprecision(2)
              << std::setw(13) << static_cast<double>(team.points) / hands << "\n";
  }

  SelfPlayOptions options_;
  South south_;
  std::optional<Transcript> transcript_;
  TeamFigures ours_;
  TeamFigures theirs_;
  int hands_ = 0;
  int games_ = 0;
  int errors_ = 0;
};

int Play(const SelfPlayOptions& options, std::ostream* transcript) {
  HeadlessPlatform platform;
  Session session(options, transcript);
  platform.script = [&session](std::uint32_t atMostMs) { session.OnEvents(atMostMs); };
  platform.wakesScriptInPauses = transcript != nullptr;
  platform.onMsgBox = [&session](std::string_view text) { session.OnMsgBox(text); };
  SetUpGame(platform);
  DealGenerator.Seed(options.seed);
  const auto start = std::chrono::steady_clock::now();
  const int status = RunGame();
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  session.Print(elapsed.count());
  return status;
}

int PlayWithTranscript(const SelfPlayOptions& options) {
  std::ofstream file(options.transcript, std::ios::binary);
  const int status = Play(options, &file);
  file.flush();
  if (file) return status;
  std::cerr << "parlino-selfplay: " << options.transcript << " cannot be written\n";
  return 1;
}

}  // namespace
}  // namespace Parlino

int main(int count, char** arguments) {
  const auto options = Parlino::ParseOptions(count, arguments);
  if (!options) {
    std::cerr << "usage: parlino-selfplay --hands N --seed S [--south random|robot] "
                 "[--transcript FILE]\n";
    return 2;
  }
  return options->transcript.empty() ? Parlino::Play(*options, nullptr)
                                     : Parlino::PlayWithTranscript(*options);
}
