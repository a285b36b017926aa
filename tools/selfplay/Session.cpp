#include "tools/selfplay/Session.h"

#include <optional>
#include <stdexcept>
#include <string_view>

#include "game/Game.h"
#include "headless/Headless.h"
#include "headless/South.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"
#include "tools/selfplay/Transcript.h"

namespace Parlino {
namespace {

// The person at the table: plays South, answers the dialogs and leaves after the last hand.
class Session {
 public:
  Session(const SessionPlan& plan, std::ostream* transcript,
          const std::function<void(long)>& onHand)
      : plan_(plan), onHand_(onHand), south_(plan.hands) {
    plan.isSouthARobot ? PlayAsRobot(south_) : PlayAtRandom(south_, plan.seed);
    south_.onDialog = [this] { OnDialog(); };
    if (transcript != nullptr) transcript_.emplace(*transcript);
  }

  void OnEvents(std::uint32_t atMostMs) {
    if (transcript_) transcript_->Look();
    if (atMostMs == Forever && Table.FramBids.Visible) CountHalfTricks();
    south_.OnEvents(atMostMs);
  }

  // A hand that ends in an error still counts as played.
  void OnMsgBox(std::string_view text) {
    if (text.starts_with("Unexpected error")) ++figures_.errors;
    if (!text.starts_with(" the hand is over")) return;
    EndHand(false);
    south_.CountHand();
  }

  [[nodiscard]] const Figures& Counted() const { return figures_; }

 private:
  // While South is asked for a bid, all cards are dealt and none is played.
  void CountHalfTricks() {
    for (Integer seat = plan_.isSouthARobot ? Player : West; seat <= East; ++seat)
      figures_.CountHalfTrick(seat);
  }

  void OnDialog() {
    const bool isGameOver = MFormDeluxe.Label3 == "   Game Over";
    if (isGameOver || MFormDeluxe.Label3 == "   Scores") EndHand(isGameOver);
  }

  void EndHand(bool isGameOver) {
    figures_.CountHand(isGameOver);
    const int number = plan_.handsBefore + static_cast<int>(figures_.hands);
    if (transcript_) transcript_->WriteHand(number, isGameOver);
    onHand_(figures_.hands);
  }

  SessionPlan plan_;
  const std::function<void(long)>& onHand_;
  South south_;
  std::optional<Transcript> transcript_;
  Figures figures_;
};

}  // namespace

Figures PlaySession(const SessionPlan& plan, std::ostream* transcript,
                    const std::function<void(long)>& onHand) {
  HeadlessPlatform platform;
  Session session(plan, transcript, onHand);
  platform.script = [&session](std::uint32_t atMostMs) { session.OnEvents(atMostMs); };
  platform.wakesScriptInPauses = transcript != nullptr;
  platform.onMsgBox = [&session](std::string_view text) { session.OnMsgBox(text); };
  SetUpGame(platform);
  DealGenerator.Seed(plan.seed);
  try {
    RunGame();
  } catch (const ScriptHasNothingToSay&) {
    throw std::runtime_error("the hands come to no end");
  }
  return session.Counted();
}

}  // namespace Parlino
