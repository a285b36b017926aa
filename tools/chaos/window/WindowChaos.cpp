#include "tools/chaos/window/WindowChaos.h"

#include <iostream>
#include <unistd.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDrag>

#include "engine/Generator.h"
#include "headless/FirstFiles.h"
#include "table/HelpAndAbout.h"
#include "table/TableEvents.h"
#include "tools/chaos/window/WindowRules.h"

namespace Parlino {
namespace {

void WriteHelp(Platform& platform) {
  std::string text = "{\\rtf1 Bid, and make your bid.";
  for (int line = 0; line < 100; ++line)
    text.append("\\par Line ").append(std::to_string(line)).append(" of the rules: bid.");
  platform.ReplaceFile(HelpFile, text + "}");
}

}  // namespace

WindowChaos::WindowChaos(int hands, std::uint64_t seed)
    : hands_(hands),
      session_(seed, [this](const Deed& deed) { return Do(deed); }),
      trouble_(folder_.path().toStdString()) {
  DealGenerator.Seed(seed);
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

int WindowChaos::Play() {
  try {
    while (session_.watch.HandsScored() < hands_) PlayProgram();
  } catch (const RuleBroken& broken) {
    Tell("broken rule: " + broken.rule);
    return 1;
  } catch (const std::exception& error) {
    Tell(std::string("an error left the program: ") + error.what());
    return 1;
  }
  session_.PrintFigures(std::cout);
  return 0;
}

void WindowChaos::Tell(const std::string& rule) const {
  std::cout << rule << "\nin hand " << session_.watch.HandsDealt() << ", after these events:\n";
  session_.PrintLog(std::cout);
  std::cout.flush();
}

void WindowChaos::SetUpProgram() {
  trouble_.End();
  watch_.reset();
  const bool isFirst = !platform_.has_value();
  platform_.reset();
  platform_.emplace(folder_.path().toStdString(), session_);
  SetUpGame(*platform_);
  if (isFirst) {
    WriteFirstRecords();
    WriteHelp(*platform_);
  }
  watch_.emplace();
  platform_->Motion().Allow(session_.person.Once(4));
  calmness_ = session_.person.Once(2) ? 3 : 60;
  platform_->person = [this] { Act(); };
  session_.BeginProgram();
}

// One run of the program, up to the end that the person brings about.
void WindowChaos::PlayProgram() {
  SetUpProgram();
  try {
    RunGame();
  } catch (const EnoughHands&) {
    return;
  }
  session_.Require(!IsAnyWindowThere(), "no window is on the screen after the end of the program");
  session_.OnEnd();
  QCoreApplication::processEvents();
  session_.Require(!IsAnyWindowThere(), "no window comes back after the end of the program");
}

void WindowChaos::Act() {
  if (session_.watch.HandsScored() >= hands_) throw EnoughHands{};
  LookForHang();
  CheckWhatIsShown();
  if (session_.person.Once(3000)) trouble_.Begin(session_.person);
  if (session_.person.Once(300)) trouble_.End();
  const std::uint64_t changes = Table.Changes;
  isActing_ = true;
  session_.OnChance(platform_->Depth());
  isActing_ = false;
  session_.Require(Table.Changes == changes, "Qt alone changes nothing in the model");
  session_.Require(!hasLoopOfItsOwn_, "Qt runs no event loop of its own");
}

void WindowChaos::CheckWhatIsShown() {
  const bool nothingGlides = platform_->Motion().MsToNextFrame(platform_->Ticks()) == Forever;
  const int card = 1 + session_.person.NextBelow(CardsInPack);
  for (const std::string& control : {watch_->Look(nothingGlides), watch_->LookAtFace(card)})
    session_.Require(control.empty(), "the window shows the model, but not " + control);
  const std::string broken = BrokenWindowRule(platform_->BoxesOpen());
  session_.Require(broken.empty(), broken);
}

bool WindowChaos::Do(const Deed& deed) {
  const bool isTaken = deeds_.Do(deed);
  if (session_.person.Once(calmness_)) pranks_.Play();
  return isTaken;
}

// The alarm rings if for a minute no hand has been dealt or scored and no program started.
void WindowChaos::LookForHang() {
  constexpr unsigned secondsOfPatience = 60;
  const auto& watch = session_.watch;
  const int progress = watch.HandsDealt() + watch.HandsScored() + session_.ProgramsBegun();
  if (progress == progress_) return;
  progress_ = progress;
  alarm(secondsOfPatience);
}

}  // namespace Parlino
