#include "table/window/playing/RestingPointer.h"

#include <utility>

#include <QCoreApplication>
#include <QCursor>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include "engine/TrickPlay.h"
#include "table/CardDisplay.h"
#include "table/TableEvents.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/painting/Design.h"
#include "table/window/parts/PictureView.h"

namespace Parlino {
namespace {

// The card of the Player's hand that the widget shows; 0 for any other widget.
Integer PlayersCard(const QWidget& widget) {
  const auto* view = dynamic_cast<const PictureView*>(&widget);
  return view != nullptr && PlayersRow().Has(view->Picture()) ? view->Picture() : Integer{0};
}

}  // namespace

void RestingPointer::Follow() {
  if (!IsOnTable()) return;
  const QPoint place = QCursor::pos();
  const QWidget* seen = window_.childAt(window_.mapFromGlobal(place));
  if (seen == nullptr) return;
  const Integer card = PlayersCard(*seen);
  if (card != 0 && seen->pos() != ToPixels(Table.Cds[card].Place)) return;
  const QWidget* before = std::exchange(card_, card != 0 ? seen : nullptr);
  const bool isUnnoticed =
      card_ != before && (card_ != nullptr ? !card_->underMouse() : before->underMouse());
  if (isUnnoticed) EnterAgain(place);
  if (card != 0 && !HintHolds(card)) pending_.AppendOnce({HoverCard, card});
}

// False if another window is in front there, or while a button is held down and Qt sends every
// movement to the widget on which it was pressed.
bool RestingPointer::IsOnTable() const {
  return window_.underMouse() && TableTakesInput() &&
         QGuiApplication::mouseButtons() == Qt::NoButton;
}

// This makes Qt find the widget and show its pointer. A mouse move would do so too, but would also
// open a tool tip for a player who does nothing.
void RestingPointer::EnterAgain(QPoint place) {
  const QPoint spot = window_.mapFromGlobal(place);
  QEvent leave(QEvent::Leave);
  QEnterEvent enter(spot, spot, place);
  QCoreApplication::sendEvent(window_.windowHandle(), &leave);
  QCoreApplication::sendEvent(window_.windowHandle(), &enter);
}

}  // namespace Parlino
