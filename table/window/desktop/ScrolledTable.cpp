#include "table/window/desktop/ScrolledTable.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

namespace Parlino {

ScrolledTable::ScrolledTable(QWidget* table, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidget(table);
  // The window's ground is seen through.
  table->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  // A bar's menu would run a loop of the toolkit's own, and the game would stand still meanwhile.
  horizontalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
  verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
  // The player's hand and the information line lie at the lower edge.
  connect(verticalScrollBar(), &QScrollBar::rangeChanged, verticalScrollBar(),
          [bar = verticalScrollBar()](int, int lowest) { bar->setValue(lowest); });
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* focus) { ShowFocus(focus); });
}

QSize ScrolledTable::WindowSize(QSize around, QSize room) const {
  const QSize whole = widget()->size() + around;
  QSize size = whole;
  if (whole.height() > room.height()) size.rwidth() += verticalScrollBar()->sizeHint().width();
  if (whole.width() > room.width()) size.rheight() += horizontalScrollBar()->sizeHint().height();
  return size.boundedTo(room);
}

// A control that is clicked is seen, and stays under the mouse.
void ScrolledTable::ShowFocus(QWidget* focus) {
  const bool isOnTable = focus != nullptr && focus != widget() && widget()->isAncestorOf(focus);
  // With what is said around it, such as the information line below the hand.
  constexpr int aside = 60, above = 110;
  if (isOnTable && QGuiApplication::mouseButtons() == Qt::NoButton)
    ensureWidgetVisible(focus, aside, above);
}

// The arrows belong to the game. The page keys scroll, sideways with Shift.
void ScrolledTable::keyPressEvent(QKeyEvent* event) {
  const bool isSideways = event->modifiers().testFlag(Qt::ShiftModifier);
  QScrollBar& bar = isSideways ? *horizontalScrollBar() : *verticalScrollBar();
  if (event->key() == Qt::Key_PageUp)
    bar.triggerAction(QScrollBar::SliderPageStepSub);
  else if (event->key() == Qt::Key_PageDown)
    bar.triggerAction(QScrollBar::SliderPageStepAdd);
  else
    event->ignore();
}

}  // namespace Parlino
