#include "ScenePlayer.h"

#include <utility>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QStyle>

#include "PersonAtWindow.h"
#include "SceneSteps.h"
#include "table/TableEvents.h"
#include "table/window/speaking/Speaker.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

ScenePlayer* thePlayer = nullptr;
TableEvents theGames;  // the game's own handlers

bool Hears(const QString& event) {
  thePlayer->Tell("> " + event);
  return !thePlayer->isDeaf;
}

template <std::size_t item>
void ChooseItem() {
  static constexpr const char* names[] = {"MnuNew",      "MnuLoad",     "MnuSave",  "MnuExit",
                                          "MnuRules",    "MnuAbout",    "MnuPname", "MnuNameBot1",
                                          "MnuNameBot2", "MnuBot3Name", "MnuView",  "ErasePoints"};
  if (Hears(names[item]) && theGames.MenuClick[item] != nullptr) theGames.MenuClick[item]();
}

template <std::size_t... items>
void ListenToMenus(std::index_sequence<items...>) {
  ((Events.MenuClick[items] = ChooseItem<items>), ...);
}

void ListenToTable() {
  theGames = Events;
  Events.Cds_Click = [](Integer card) {
    if (Hears(QString("card %1").arg(card))) theGames.Cds_Click(card);
  };
  Events.Cds_MouseMove = [](Integer card) {
    Hears(QString("over card %1").arg(card));
    theGames.Cds_MouseMove(card);
  };
  Events.LblBids_Click = [](Integer tricks) {
    if (Hears(QString("bid %1").arg(tricks))) theGames.LblBids_Click(tricks);
  };
  Events.CmdDontShow_Click = [] {
    if (Hears("CmdDontShow")) theGames.CmdDontShow_Click();
  };
  ListenToMenus(std::make_index_sequence<std::size(TableEvents{}.MenuClick)>());
}

bool IsAnyButtonDown() {
  return std::ranges::any_of(QApplication::allWidgets(), [](const QWidget* widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button != nullptr && button->isVisible() && button->isDown();
  });
}

}  // namespace

ScenePlayer::ScenePlayer(const QStringList& lines)
    : lines_(lines),
      style_(QApplication::style()->name()),
      palette_(QApplication::palette()),
      font_(QApplication::font()) {
  thePlayer = this;
  game.platform.cardsGlide = false;
  ListenToTable();
  game.platform.onSound = [this](const std::string& file) {
    Tell("sound " + QString::fromStdString(file));
  };
  QObject::connect(qApp, &QApplication::focusChanged, &focusWatch_,
                   [this](QWidget*, QWidget* focus) {
                     if (focus != nullptr) way_ << NameOfPart(*focus);
                   });
}

ScenePlayer::~ScenePlayer() {
  thePlayer = nullptr;
  if (QApplication::style()->name() != style_) QApplication::setStyle(style_);
  QApplication::setPalette(palette_);
  QApplication::setFont(font_);
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

QStringList ScenePlayer::Play() {
  if (game.Run([this] { OnWait(); }) == 0) out_ << "  the program ends";
  return out_ + lines_;
}

void ScenePlayer::OnWait() {
  if (waits_-- > 0) return;
  waits_ = 0;
  if (isPressed_ && IsAnyButtonDown()) return;
  if (tools_) tools_->Tell();
  ReturnKeys();
  if (steps_.isEmpty()) {
    EndStep();
    BeginLine();
  }
  waits_ = pace_;
  isPressed_ = false;
  for (const QString& step : steps_.takeFirst().split(" + ")) {
    isPressed_ |= step.startsWith("press ") || step.startsWith("tool-press ");
    if (!DoStep(*this, step)) out_ << "  there is no such step: " + step;
  }
}

// The desktop gives the keys to the window that had them before a box, or to the table.
void ScenePlayer::ReturnKeys() {
  QWidget* active = QApplication::activeWindow();
  if (active != nullptr && !active->isModal()) withKeys_ = active;
  if (active != nullptr || !keysReturn) return;
  QWidget& table = WindowGame::Find("FrmMain");
  QWidget* next = withKeys_ != nullptr && withKeys_->isVisible() ? withKeys_.data() : &table;
  if (next->isVisible()) QApplication::setActiveWindow(next);
}

// In full at the first time, and then what has come and what has gone.
void ScenePlayer::TellVoices(const QStringList& now) {
  const QStringList before = std::exchange(voices_, now);
  for (const QString& line : before)
    if (!now.contains(line)) Tell("no more " + line);
  for (const QString& line : now)
    if (!before.contains(line)) Tell(line);
}

void ScenePlayer::ListenToTools(bool listens) {
  if (!tools_) tools_.emplace(game.Find("Table"));
  tools_->isHeard = [listens] { return listens; };
  tools_->report = [this](QWidget* widget, QAccessible::Event what) {
    const QString name = NameOf(QAccessible::queryAccessibleInterface(widget));
    Tell(QString("tools: %1 is %2")
             .arg(name, what == QAccessible::ObjectShow   ? "shown"
                        : what == QAccessible::ObjectHide ? "hidden"
                                                          : "the name now"));
  };
  tools_->Tell();
}

void ScenePlayer::EndStep() {
  const QStringList way = std::exchange(way_, {});
  if (way.size() > 1) Tell("focus by way of " + way.join(" "));
  QStringList told = std::exchange(told_, {});
  const WindowLook before = std::exchange(look_, LookAtWindows());
  if (isSilent_) return;
  told += TellChanges(before, look_);
  for (qsizetype line = 0; line < told.size(); ++line)
    if (line == 0 || told[line] != told[line - 1] || told[line].startsWith('>'))
      out_ << "  " + told[line];
}

// Goes on to the next line with steps.
void ScenePlayer::BeginLine() {
  while (steps_.isEmpty()) {
    if (lines_.isEmpty()) throw SeenEnough{};
    const QString line = lines_.takeFirst();
    out_ << line;
    if (line.isEmpty() || line.startsWith('#') || line.startsWith("==")) continue;
    isSilent_ = line.startsWith("given ");
    steps_ = (isSilent_ ? line.mid(6) : line).split("; ");
  }
}

Integer Words::Card() {
  return ToInteger(CardOf(Next().toStdString()));
}

Integer Words::Seat() {
  return ToInteger(static_cast<int>(QString("PWNE").indexOf(Next()[0])));
}

QWidget& Words::Part() {
  const QString name = Next();
  const bool isCard = name.size() == 2;
  return isCard ? WindowGame::FindMember("Cds", CardOf(name.toStdString()))
                : WindowGame::Find(name);
}

QPoint Words::Point(QPoint otherwise) {
  const QStringList numbers = Next().split(',');
  return numbers.size() == 2 ? QPoint(numbers[0].toInt(), numbers[1].toInt()) : otherwise;
}

bool DoStep(ScenePlayer& player, const QString& line) {
  Words words(player, line);
  const QString name = words.Next();
  for (const Steps* steps : {&StepsOfPerson, &StepsOfGame, &Questions}) {
    const auto step = steps->find(name);
    if (step == steps->end()) continue;
    step->second(words);
    return true;
  }
  return false;
}

QStringList PlayScenes(const QStringList& lines) {
  QStringList out, scene;
  for (const QString& line : lines) {
    if (line.startsWith("  ")) continue;
    if (line.startsWith("== ") && !scene.isEmpty()) {
      out += ScenePlayer(scene).Play();
      scene.clear();
    }
    scene << line;
  }
  return out + ScenePlayer(scene).Play();
}

}  // namespace Parlino
