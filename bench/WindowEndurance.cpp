// parlino-window-endurance: plays hand after hand at the window, through its widgets, with the
// pauses cut out, and for each tenth of the run prints what the program is using. In every hand a
// name is entered and help, about and statistics are opened; after every fifth hand the game is
// saved, left and started again. Fails if anything grows after the first tenth or a saved game does
// not come back.
//
//   parlino-window-endurance --hands N

#include <cstdio>
#include <filesystem>

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QLoggingCategory>
#include <QPixmapCache>
#include <QTemporaryDir>

#include "bench/ProcessFigures.h"
#include "engine/Generator.h"
#include "engine/RoundDriver.h"
#include "engine/state/GameState.h"
#include "engine/state/Questions.h"
#include "persistence/DataFiles.h"
#include "table/MessageDialog.h"
#include "tests/window/PersonAtWindow.h"
#include "tests/window/WindowGame.h"
#include "tools/CommandLine.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

constexpr int HandsInSitting = 5;
constexpr long MostGrowthKiB = 2048;

struct Row {
  MemoryFigures memory;
  int descriptors = 0;
  int objects = 0;
  int widgets = 0;
};

int ObjectsBelow(const QObject& root) {
  return 1 + static_cast<int>(root.findChildren<QObject*>().size());
}

// Each new window leaves pictures of its buttons in Qt's pixmap cache, which fills up to its limit
// of 10 MiB. The cache is not counted, because it would hide a leak in the game.
Row TakeRow() {
  QPixmapCache::clear();
  Row row{MemoryInUse(), OpenDescriptors(), ObjectsBelow(*qApp), 0};
  for (const QWidget* widget : QApplication::allWidgets()) {
    ++row.widgets;
    if (widget->parent() == nullptr) row.objects += ObjectsBelow(*widget);
  }
  return row;
}

// What "Save and Exit" keeps.
struct Saved {
  Integer ours = 0;
  Integer theirs = 0;
  Integer gamesPlayed = 0;
  std::string name;
  bool operator==(const Saved&) const = default;
};

Saved WhatIsSaved() {
  return {OurPoints, TheirPoints, GamesPlayed, PlayerName};
}

class Person {
 public:
  explicit Person(int hands) : hands_(hands) {
    std::puts(
        "   hands  resident KiB  data KiB  descriptors  objects  widgets  processor ms a hand");
  }

  // Called before every wait.
  void Act() {
    if (hasJustSatDown_) LookWhetherAllIsAsLeft();
    if (QDialog* box = OpenBox())
      AnswerBox(*box);
    else if (MFormDeluxe.Visible)
      AnswerMessage();
    else if (!HandInProgress)
      PressKey(Qt::Key_F2);
    else if (Table.FramBids.Visible)
      DoErrand();
    else if (PlayerTurn != False)
      player_.PlayCard();
  }

  // The program has ended; the next one must continue from here.
  void GetUp() {
    saved_ = WhatIsSaved();
    hasJustSatDown_ = true;
  }

  [[nodiscard]] bool IsDone() const { return played_ >= hands_; }

  // Reports how the run went, and returns whether nothing has grown or was lost.
  [[nodiscard]] bool IsLevel() const {
    const bool isLevel = allCameBack_ && first_.memory.dataKiB > 0 &&
                         last_.memory.dataKiB <= first_.memory.dataKiB + MostGrowthKiB &&
                         last_.descriptors <= first_.descriptors &&
                         last_.objects <= first_.objects && last_.widgets <= first_.widgets;
    if (!isLevel) std::fprintf(stderr, "something has grown since the first tenth, or was lost\n");
    return isLevel;
  }

 private:
  void LookWhetherAllIsAsLeft() {
    hasJustSatDown_ = false;
    allCameBack_ = allCameBack_ && WhatIsSaved() == saved_;
  }

  static void AnswerBox(QDialog& box) {
    if (auto* input = qobject_cast<QInputDialog*>(&box))
      input->setTextValue(QString("Player %1").arg(DealGenerator.NextBelow(1000)));
    PressKey(Qt::Key_Return);
  }

  void AnswerMessage() {
    if (MFormDeluxe.Label3 != "   Scores" && MFormDeluxe.Label3 != "   Game Over")
      return Click(WindowGame::FindMember("Label1", 0));
    ++played_;
    errands_ = 0;
    if (played_ % (hands_ / 10) == 0) PrintRow();
    const bool leaves = played_ % HandsInSitting == 0 || IsDone();
    Click(WindowGame::FindMember("Label1", leaves ? 1 : 0));
  }

  // Does one errand after the other while the game waits for the bid.
  void DoErrand() {
    switch (errands_++) {
      case 0:
        return PressKey(Qt::Key_A, Qt::ControlModifier);
      case 1:
        return PressKey(Qt::Key_F1);
      case 2:
        return Click(WindowGame::Find("btnClose"));
      case 3:
        return WindowGame::Find("FrmMain").findChild<QAction*>("MnuAbout")->trigger();
      case 4:
        return Click(WindowGame::Find("cmdOK"));
      case 5:
        return PressKey(Qt::Key_V, Qt::ControlModifier);
      default:
        return Click(WindowGame::FindMember("LblBids", 3));
    }
  }

  void PrintRow() {
    last_ = TakeRow();
    const int handsInRow = hands_ / 10;
    if (played_ == handsInRow) first_ = last_;
    const double now = ProcessorMs();
    std::printf("%8d  %12ld  %8ld  %11d  %7d  %7d  %19.1f\n", played_, last_.memory.residentKiB,
                last_.memory.dataKiB, last_.descriptors, last_.objects, last_.widgets,
                (now - rowBegan_) / handsInRow);
    std::fflush(stdout);
    rowBegan_ = ProcessorMs();
  }

  int hands_;
  int played_ = 0;
  int errands_ = 0;
  PersonAtWindow player_;
  Saved saved_;
  bool hasJustSatDown_ = false;
  bool allCameBack_ = true;
  Row first_;
  Row last_;
  double rowBegan_ = ProcessorMs();
};

// Each sitting is one run of the program, from start to end, in the same process.
void PlaySitting(Person& person, const fs::path& folder) {
  QuickPlatform platform(folder);
  platform.person = [&person] { person.Act(); };
  SetUpGame(platform);
  RunGame();
  person.GetUp();
}

int Play(int hands) {
  const QTemporaryDir temporary;
  const fs::path folder = temporary.path().toStdString();
  for (const char* part : {"sounds", "help", "data"})
    fs::copy(fs::path(PARLINO_ASSETS_FOLDER) / part, folder, fs::copy_options::overwrite_existing);
  DealGenerator.Seed(1);
  Person person(hands);
  while (!person.IsDone()) PlaySitting(person, folder);
  return person.IsLevel() ? 0 : 1;
}

}  // namespace
}  // namespace Parlino

int main(int count, char* arguments[]) {
  constexpr int fewest = 10;  // one hand for each tenth of the run
  int hands = 0;
  if (!Parlino::ParseCommandLine(count, arguments,
                                 {{"--hands", Parlino::TakeNumber(hands, fewest)}})) {
    std::fprintf(stderr, "usage: parlino-window-endurance --hands N   (N at least 10)\n");
    return 2;
  }
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // A platform without a screen prints a warning for each window that is shown.
  QLoggingCategory::setFilterRules("default.warning=false");
  const QApplication application(count, arguments);
  return Parlino::Play(hands);
}
