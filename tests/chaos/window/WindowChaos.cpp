#include "tests/chaos/window/WindowChaos.h"

#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDrag>

#include "headless/FirstFiles.h"
#include "table/HelpAndAbout.h"
#include "tests/chaos/window/WindowDeeds.h"

namespace Parlino {
namespace {

void WriteHelp(Platform& platform) {
  std::string text = "{\\rtf1 Bid, and make your bid.";
  for (int line = 0; line < 100; ++line)
    text.append("\\par Line ").append(std::to_string(line)).append(" of the rules: bid.");
  platform.ReplaceFile(HelpFile, text + "}");
}

}  // namespace

WindowChaos::WindowChaos(const ChaosOptions& options) : ChaosRun(options) {
  QCoreApplication::instance()->installEventFilter(&timerStopper_);
  // If Qt ran an event loop of its own, it would wait for the person, who is acting inside it. So
  // an open menu or a drag is ended at once.
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   [this] {
                     if (!isActing_) return;
                     hasLoopOfItsOwn_ = QApplication::activePopupWidget() != nullptr;
                     while (QWidget* menu = QApplication::activePopupWidget()) menu->close();
                     QDrag::cancel();
                   });
}

void WindowChaos::SetUp() {
  trouble_.End();
  rules_.reset();
  const bool isFirst = !platform_.has_value();
  platform_.reset();
  platform_.emplace(folder_.path().toStdString(), session);
  SetUpGame(*platform_);
  if (isFirst) {
    WriteFirstRecords();
    WriteHelp(*platform_);
  }
  rules_.emplace();
  platform_->Motion().Allow(session.person.Once(4));
  calmness_ = session.person.Once(2) ? 3 : 60;
  platform_->person = [this] { Act(); };
}

void WindowChaos::LookAtEnd() {
  session.Require(WindowsThere().isEmpty(), "no window is there after the end of the program");
  QCoreApplication::processEvents();
  session.Require(WindowsThere().isEmpty(), "no window comes back after the end of the program");
}

void WindowChaos::Act() {
  EndWhenEnough();
  LookForHang();
  CheckWhatIsShown();
  if (session.person.Once(3000)) trouble_.Begin(session.person);
  if (session.person.Once(300)) trouble_.End();
  const std::uint64_t changes = Table.Changes;
  isActing_ = true;
  session.OnChance(platform_->Depth());
  isActing_ = false;
  session.Require(Table.Changes == changes, "Qt alone changes nothing in the model");
  session.Require(!hasLoopOfItsOwn_, "Qt runs no event loop of its own");
}

void WindowChaos::CheckWhatIsShown() {
  const bool nothingGlides = platform_->Motion().MsToNextFrame(platform_->Ticks()) == Forever;
  const int card = 1 + session.person.NextBelow(CardsInPack);
  for (const std::string& broken :
       {rules_->Broken(nothingGlides, platform_->BoxesOpen()), rules_->BrokenFace(card)})
    session.Require(broken.empty(), broken);
}

bool WindowChaos::Do(const Deed& deed) {
  const bool isTaken = DoAtWindow(deed, fingers_);
  if (session.person.Once(calmness_)) PlayPrank(fingers_);
  return isTaken;
}

// The alarm rings if for five minutes no hand has been dealt or scored and no program started.
void WindowChaos::LookForHang() {
  constexpr unsigned secondsOfPatience = 300;
  const int progress =
      session.watch.HandsDealt() + session.watch.HandsScored() + session.ProgramsBegun();
  if (progress == progress_) return;
  progress_ = progress;
  alarm(secondsOfPatience);
}

}  // namespace Parlino
