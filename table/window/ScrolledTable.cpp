#include "table/window/ScrolledTable.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

namespace Parlino {

ScrolledTable::ScrolledTable(QWidget* table, QWidget* parent) : QScrollArea(parent) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidget(table);
  // Lets the window's background show through.
  table->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  // The context menu of a scroll bar runs an event loop of Qt's own, and the game would stand
  // still.
  horizontalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
  verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
  // The player's hand and the information line lie at the lower edge.
  connect(verticalScrollBar(), &QScrollBar::rangeChanged, verticalScrollBar(),
          [bar = verticalScrollBar()](int, int lowest) { bar->setValue(lowest); });
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* focus) { ShowFocus(focus); });
}

// The focus moves once more while the table goes, when there is nothing left to scroll.
ScrolledTable::~ScrolledTable() {
  disconnect(qApp, nullptr, this, nullptr);
}

QSize ScrolledTable::WindowSize(QSize around, QSize room) const {
  const QSize whole = widget()->size() + around;
  QSize size = whole;
  if (whole.height() > room.height()) size.rwidth() += verticalScrollBar()->sizeHint().width();
  if (whole.width() > room.width()) size.rheight() += horizontalScrollBar()->sizeHint().height();
  return size.boundedTo(room);
}

// A control that is clicked is already visible, and must stay under the mouse.
void ScrolledTable::ShowFocus(QWidget* focus) {
  const bool isOnTable = focus != nullptr && focus != widget() && widget()->isAncestorOf(focus);
  // Includes what belongs to it, such as the information line below the hand.
  constexpr int aside = 60, above = 110;
  if (isOnTable && QGuiApplication::mouseButtons() == Qt::NoButton)
    ensureWidgetVisible(focus, aside, above);
}

// The arrow keys belong to the game. The page keys scroll, and with Shift they scroll sideways.
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
