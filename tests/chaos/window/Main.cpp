// parlino-chaos-window: plays hands at the real window while a person does anything at any time,
// and checks at every opportunity that the rules of the table and of its window hold.
//
//   parlino-chaos-window --hands N --seed S
#include <optional>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDrag>
#include <QLoggingCategory>
#include <QScopedValueRollback>

#include "tests/chaos/TableRules.h"
#include "tests/chaos/window/Hands.h"
#include "tests/chaos/window/WindowRules.h"
#include "tests/window/WindowGame.h"

namespace Parlino {
namespace {

// The window's platform with many chances in every wait. Time and clock are virtual.
class ChaosPlatform : public QuickPlatform {
 public:
  ChaosPlatform(const std::filesystem::path& folder, Chaos& chaos)
      : QuickPlatform(folder), chaos_(chaos) {}

  int depth = 0;  // of ProcessEvents inside ProcessEvents

  // What has already been clicked may leave the person no chance to act, so the rules are checked
  // on every call.
  void ProcessEvents(std::uint32_t atMostMs) override {
    const QScopedValueRollback level(depth, depth + 1);
    chaos_.CheckRules(depth);
    QuickPlatform::ProcessEvents(atMostMs);
  }

 protected:
  void WaitForQt(std::uint32_t atMostMs) override {
    QuickPlatform::WaitForQt(chaos_.person.ChooseWait(atMostMs));
  }

 private:
  Chaos& chaos_;
};

// Qt's widgets have timers of their own, which do not follow virtual time; without them a run can
// be repeated.
class TimerStopper : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return event->type() == QEvent::Timer && watched->isWidgetType();
  }
};

class WindowChaos : public Chaos {
 public:
  WindowChaos(int count, const char* const* arguments) : Chaos(count, arguments) {
    qApp->installEventFilter(&timerStopper_);
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

 protected:
  void SetUp() override {
    platform_.reset();
    platform_.emplace(folder.Path(), *this);
    SetUpGame(*platform_);
    platform_->Motion().Allow(person.Once(4));
    isCalm_ = person.Once(2);
    platform_->person = [this] { Act(); };
  }

  bool Click(const std::string& control) override {
    UseByHand(control, *this);
    return false;
  }
  // In every other program it is rare, so that hands come to their ends.
  bool DoAnything() override {
    if (!isCalm_ || person.Once(20)) DoAnythingByHand(*this);
    return false;
  }

  void LookAtEnd() override {
    QCoreApplication::processEvents();
    Require(WindowsThere().isEmpty(), "no window is there after the end of the program");
  }

 private:
  void Act() {
    const bool nothingGlides = platform_->Motion().MsToNextFrame(platform_->Ticks()) == Forever;
    RequireWindowRules(nothingGlides);
    const std::uint64_t changes = Table.Changes;
    isActing_ = true;
    OnChance(platform_->depth);
    isActing_ = false;
    Require(Table.Changes == changes, "Qt alone changes nothing in the model");
    Require(!hasLoopOfItsOwn_, "Qt runs no event loop of its own");
  }

  TimerStopper timerStopper_;
  std::optional<ChaosPlatform> platform_;
  bool isCalm_ = false;
  bool isActing_ = false;
  bool hasLoopOfItsOwn_ = false;
};

}  // namespace
}  // namespace Parlino

int main(int count, char* arguments[]) {
  // Unless the caller chooses a platform, the windows are drawn into memory. Settings of the
  // desktop would make runs differ.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  // Warnings, such as that a spot is outside the window or that a plugin cannot raise one, are of
  // no interest here.
  QLoggingCategory::setFilterRules("*.warning=false");
  int onlyTheProgramsName = 1;
  const QApplication application(onlyTheProgramsName, arguments);
  return Parlino::WindowChaos(count, arguments).Play();
}
