#include "table/window/help/HelpWindow.h"

#include <initializer_list>

#include <QCloseEvent>
#include <QPushButton>
#include <QShortcut>

#include "table/TableEvents.h"
#include "table/window/desktop/WindowPlace.h"
#include "table/window/help/FindLine.h"
#include "table/window/help/HelpText.h"
#include "table/window/input/Keys.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Named.h"

namespace Parlino {
namespace {

constexpr QSize DesignSize(680, 650);
constexpr QSize SmallestSize(480, 240);
constexpr QSize TextSize(649, 589);
constexpr QRect ClosePlace(272, 608, 81, 25);
constexpr QRect FindPlace(8, 608, 256, 25);

QFont ButtonFont() {
  constexpr double points = 8.25;
  QFont font;
  font.setFamilies({"MS Sans Serif", "Microsoft Sans Serif", "Liberation Sans", "sans-serif"});
  font.setPixelSize(TextPixels(points));
  font.setBold(false);
  return font;
}

}  // namespace

HelpWindow::HelpWindow(PendingEvents& pending, const QWidget& table)
    : QWidget(nullptr, Qt::Window),
      pending_(pending),
      text_(Named(new HelpText(this), "rtbHelp")),
      find_(Named(new FindLine(*text_, this), "FindLine")),
      close_(Named(new QPushButton("&Close", this), "btnClose")) {
  setObjectName("frmHelp");
  speak = [this] { return Spoken{QAccessible::Window, windowTitle()}; };
  setWindowTitle("Parlino Help");
  setFont(TimesBold(9.75));
  setPalette(LightColours(Colours::EdgeGrey));
  text_->setAccessibleName("Help text");
  close_->setFont(ButtonFont());
  connect(close_, &QPushButton::clicked, this, &HelpWindow::AskToClose);
  BindKeys();
  setMinimumSize(SmallestSize);
  PutInMiddleOfScreen(*this, DesignSize, *table.screen());
}

void HelpWindow::BindKeys() {
  const auto bind = [this](std::initializer_list<QKeySequence> keys, auto* receiver, auto act) {
    for (const QKeySequence& key : keys)
      connect(new QShortcut(key, this), &QShortcut::activated, receiver, act);
  };
  bind({QKeySequence("Ctrl+F")}, find_, &FindLine::Open);
  bind({QKeySequence("F3")}, find_, &FindLine::FindNext);
  bind({QKeySequence("Shift+F3")}, find_, &FindLine::FindPrevious);
  bind({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")}, text_, &HelpText::ZoomIn);
  bind({QKeySequence("Ctrl+-")}, text_, &HelpText::ZoomOut);
  bind({QKeySequence("Ctrl+0")}, text_, &HelpText::ZoomBack);
}

void HelpWindow::ShowModel(const HelpWindowView& help) {
  if (!help.Visible) return hide();
  if (showings_ == help.Showings) return;
  showings_ = help.Showings;
  text_->ShowText(help.rtbHelp);
  find_->Close();  // gives the focus to the text, so that the keys scroll
  ShowInFront(*this);
}

// Everything keeps its distance from the nearest edge, and the button from the middle.
void HelpWindow::resizeEvent(QResizeEvent*) {
  const QSize growth = size() - DesignSize;
  text_->setGeometry({QPoint(0, 0), TextSize + growth});
  close_->setGeometry(ClosePlace.translated(growth.width() / 2, growth.height()));
  constexpr int gap = 8;
  QRect find = FindPlace.translated(0, growth.height());
  find.setRight(close_->x() - gap);
  QRect note = find;
  note.setLeft(close_->geometry().right() + gap);
  note.setRight(width() - gap);
  find_->Place(find, note);
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && find_->isVisible())
    find_->Close();
  else if (event->key() == Qt::Key_Escape || (IsEnter(*event) && close_->hasFocus()))
    AskToClose();
  else
    QWidget::keyPressEvent(event);
}

void HelpWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  AskToClose();
}

void HelpWindow::AskToClose() {
  pending_.Append({[](int) { return CloseHelp(); }});
}

}  // namespace Parlino
