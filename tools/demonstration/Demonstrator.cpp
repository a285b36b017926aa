#include "tools/demonstration/Demonstrator.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

#include "engine/RoundDriver.h"
#include "engine/state/Questions.h"
#include "robots/Bidding.h"
#include "robots/Choices.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr int ThinkingMs = 600;  // a person looks before every click
constexpr int TrickOfPicture = 7;

// If the display lets no click through, the demonstration must still come to an end.
constexpr int LongestMs = 240'000;

// A spot where a card can be clicked although its neighbours in the hand overlap it.
constexpr QPoint SpotOnCard(10, 48);

QWidget* FindWidget(const QString& name) {
  for (QWidget* widget : QApplication::allWidgets())
    if (widget->objectName() == name && widget->isVisible()) return widget;
  return nullptr;
}

QWidget* FindWidget(const char* array, int index) {
  return FindWidget(QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index));
}

void PostMouse(QWidget* widget, QEvent::Type type, QPoint spot, Qt::MouseButtons buttons) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QCoreApplication::postEvent(widget, new QMouseEvent(type, spot, widget->mapToGlobal(spot), button,
                                                      buttons, Qt::NoModifier));
}

void Click(QWidget* widget, QPoint spot) {
  if (widget == nullptr) return;
  PostMouse(widget, QEvent::MouseMove, spot, Qt::NoButton);
  PostMouse(widget, QEvent::MouseButtonPress, spot, Qt::LeftButton);
  PostMouse(widget, QEvent::MouseButtonRelease, spot, Qt::NoButton);
}

void PressKey(QWidget* widget, Qt::Key key) {
  if (widget == nullptr) return;
  widget->activateWindow();  // keys go to the active window; there may be none yet
  for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease})
    QCoreApplication::postEvent(widget, new QKeyEvent(type, key, Qt::NoModifier));
}

}  // namespace

Demonstrator::Demonstrator(std::filesystem::path folder) : folder_(std::move(folder)) {
  clock_.start();
  startTimer(ThinkingMs);
}

void Demonstrator::timerEvent(QTimerEvent*) {
  if (clock_.elapsed() > LongestMs)
    QCoreApplication::quit();
  else
    Act();
}

void Demonstrator::Act() {
  if (MFormDeluxe.Visible) return LeaveWithScore();
  TakePicture("1-welcome");
  if (!HandInProgress) return PressKey(FindWidget("FrmMain"), Qt::Key_F2);
  if (TrumpSuit >= Diamonds) TakePicture("2-dealt");
  if (Table.FramBids.Visible) {
    TakePicture("3-bidding");
    return Click(FindWidget("LblBids", GetBid(Player)), {12, 12});
  }
  if (PlayerTurn == False) return;
  if (TrickNumber == TrickOfPicture) TakePicture("4-middle");
  Click(FindWidget("Cds", ChooseRobotsCard(HumansPosition(), Player)), SpotOnCard);
}

void Demonstrator::LeaveWithScore() {
  if (HasPicture("5-score")) return;
  TakePicture("5-score");
  for (int line = 0; line < Table.LstCardsPlayed.Count(); ++line)
    cardsPlayed_.emplace_back(Table.LstCardsPlayed.Line(line));
  QWidget* saveAndExit = FindWidget("Label1", 1);
  if (saveAndExit != nullptr) Click(saveAndExit, saveAndExit->rect().center());
}

// The first moment of each kind is saved as the screen shows it.
void Demonstrator::TakePicture(const char* name) {
  if (HasPicture(name)) return;
  taken_.insert(name);
  if (folder_.empty()) return;
  const std::filesystem::path file = folder_ / (std::string(name) + ".png");
  if (QApplication::primaryScreen()->grabWindow(0).save(QString::fromStdString(file.string())))
    pictures_.push_back(file.string());
}

}  // namespace Parlino
