// The game for a listener who must miss nothing, however busy the machine is: each of its pauses
// ends when a line comes from the standard input, which is answered by one, and none lasts longer.
//
//   parlino-stepwise FOLDER
#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>

#include "engine/Generator.h"
#include "game/Game.h"
#include "table/window/QtPlatform.h"

namespace {

using Parlino::Forever;

class StepwisePlatform : public Parlino::QtPlatform {
 public:
  explicit StepwisePlatform(const std::filesystem::path& folder) : QtPlatform(folder) {
    Motion().Allow(false);
    QObject::connect(&lines_, &QSocketNotifier::activated, [this] { TakeLines(); });
  }
  std::uint32_t Ticks() override { return ticks_; }
  double ClockSeconds() override { return ticks_ / msInSecond; }  // or each hand would be another

 protected:
  void WaitForQt(std::uint32_t atMostMs) override {
    hasLine_ = false;
    QtPlatform::WaitForQt(Forever);
    if (hasLine_ && atMostMs != Forever) ticks_ += atMostMs;
  }

 private:
  static constexpr double msInSecond = 1000;

  void TakeLines() {
    char lines[100];
    hasLine_ = ::read(STDIN_FILENO, lines, sizeof lines) > 0 && ::write(STDOUT_FILENO, "\n", 1) > 0;
    lines_.setEnabled(hasLine_);
  }

  QSocketNotifier lines_{STDIN_FILENO, QSocketNotifier::Read};
  bool hasLine_ = false;
  std::uint32_t ticks_ = 0;
};

}  // namespace

int main(int, char* arguments[]) {
  int onlyTheProgramsName = 1;
  const QApplication application(onlyTheProgramsName, arguments);
  StepwisePlatform platform(arguments[1]);
  Parlino::SetUpGame(platform);
  Parlino::DealGenerator.Seed(1);
  return Parlino::RunGame();
}
