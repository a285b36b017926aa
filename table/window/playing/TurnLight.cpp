#include "table/window/playing/TurnLight.h"

#include <algorithm>
#include <utility>

#include <QPainter>
#include <QPainterPath>

#include "engine/state/Questions.h"
#include "table/CardDisplay.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Pictures.h"
#include "table/window/parts/PictureView.h"
#include "table/window/parts/TableWidgets.h"

namespace Parlino {
namespace {

QRect BoxOf(Integer card) {
  return {ToPixels(Table.Cds[card].Place), PictureSize(card)};
}

// The cards of the Player's row, each only as far as the next one leaves it visible.
std::vector<QRect> SeenParts(CardSet wanted) {
  std::vector<QRect> parts;
  QRect* last = nullptr;
  std::vector<QRect> all;
  for (const Integer card : PlayersRow()) {
    QRect box = BoxOf(card);
    if (last != nullptr) last->setRight(std::min(last->right(), box.left() - 1));
    all.push_back(box);
    last = &all.back();
  }
  auto box = all.begin();
  for (const Integer card : PlayersRow()) {
    if (wanted.Has(card)) parts.push_back(*box);
    ++box;
  }
  return parts;
}

QRect RowBox() {
  QRect row;
  for (const Integer card : PlayersRow()) row |= BoxOf(card);
  return row;
}

// While a robot's bid is shown, that robot is the last that has bid.
Integer SeatThatBids() {
  Integer last = NoSeat;
  for (int place = 1; place <= SeatsAtTable; ++place) {
    const Integer seat = SeatAfter(Dealer, place);
    if (Bids[seat] != 0) last = seat;
  }
  return last == Player ? NoSeat : last;
}

constexpr QColor Light = Colours::LightYellow;

QColor Faint(int alpha) {
  QColor colour = Light;
  colour.setAlpha(alpha);
  return colour;
}

// A line of light around the box, with a glow that fades to the outside: layers one upon another,
// each a little smaller.
void DrawRing(QPainter& painter, const QRectF& box, int thickness) {
  constexpr int reach = 8;
  constexpr int corner = 7;
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(16));
  for (int out = reach; out > 0; --out) {
    QPainterPath layer;
    layer.addRoundedRect(box.adjusted(-out, -out, out, out), corner + out, corner + out);
    layer.addRoundedRect(box, corner, corner);
    painter.drawPath(layer);
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Light, thickness));
  painter.drawRoundedRect(box, corner, corner);
}

// A triangle whose tip is there, and which lies behind it as seen in this direction.
void DrawPointer(QPainter& painter, QPointF tip, QPointF direction, int size) {
  const QPointF back = tip - direction * size;
  const QPointF side = QPointF(-direction.y(), direction.x()) * size;
  painter.setPen(QPen(Colours::Navy, 1));
  painter.setBrush(Light);
  painter.drawPolygon(QPolygonF{tip, back + side, back - side});
}

}  // namespace

TurnLight::TurnLight(QWidget* table, const TableWidgets& widgets)
    : QWidget(table), widgets_(widgets) {
  setObjectName("TurnLight");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setGeometry(table->rect());
}

void TurnLight::Follow() {
  Lit now = FindLight();
  if (now == lit_) return;
  lit_ = std::move(now);
  DimOthers();
  update();
}

Lit TurnLight::FindLight() const {
  Lit lit;
  if (Table.FramBids.Visible) {
    lit.place = widgets_.biddingPanel->geometry();
  } else if (PlayerTurn != False) {
    lit.place = RowBox();
    lit.cards = SeenParts(CardsHumanMayPlay());
  } else if (HandInProgress && TrumpSuit > 0 && TrickNumber == 0) {
    lit.seat = SeatThatBids();
  } else if (HandInProgress && TrickNumber > 0) {
    LookAtTrick(lit);
  }
  return lit;
}

// By the cards as they are seen: one under way has not been played yet, and a trick that is
// complete stays so until its cards leave.
void TurnLight::LookAtTrick(Lit& lit) const {
  Indexed<const QWidget*, 0, 3> played;
  for (Integer seat = Player; seat <= East; ++seat)
    for (const PictureView* card : widgets_.cards)
      if (!card->isHidden() && card->pos() == ToPixels(PlaceInMiddle(seat))) played[seat] = card;
  if (std::ranges::count(played, nullptr) == 0) {
    lit.winner = played[WinnerOfTrick()]->geometry();
    return;
  }
  for (int place = SeatsAtTable - 1; place >= 0; --place)
    if (const Integer seat = SeatAfter(Leader, place); played[seat] == nullptr) lit.seat = seat;
}

void TurnLight::DimOthers() const {
  const CardSet playable = CardsHumanMayPlay();
  const CardSet row = PlayersRow();
  for (Integer card = 1; card <= CardsInPack; ++card)
    widgets_.cards[card]->Dim(PlayerTurn != False && row.Has(card) && !playable.Has(card));
}

void TurnLight::DrawHandLight(QPainter& painter) const {
  constexpr int around = 7;
  constexpr int roomForPointers = 13;
  constexpr int pointerSize = 6;
  QRectF mat = QRectF(lit_.place).adjusted(-around, -around, around, around);
  if (!lit_.cards.empty()) mat.setBottom(mat.bottom() - around + roomForPointers);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(70));
  painter.drawRoundedRect(mat, around, around);
  DrawRing(painter, mat, 2);
  for (const QRect& card : lit_.cards)
    DrawPointer(painter, {QRectF(card).center().x(), card.bottom() + 4.0}, {0, -1}, pointerSize);
}

// On the green, beside the frame: the middle of the side that the seat sits at.
void TurnLight::DrawSeatLight(QPainter& painter) const {
  constexpr int size = 10;
  constexpr int border = 5;
  const QRectF inner = QRectF(widgets_.top->geometry()).adjusted(border, border, -border, -border);
  const QPointF middle = inner.center();
  switch (lit_.seat) {
    case West:
      return DrawPointer(painter, {inner.left(), middle.y()}, {-1, 0}, size);
    case North:
      return DrawPointer(painter, {middle.x(), inner.top()}, {0, -1}, size);
    case East:
      return DrawPointer(painter, {inner.right(), middle.y()}, {1, 0}, size);
    default:
      return;
  }
}

void TurnLight::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!lit_.place.isEmpty()) DrawHandLight(painter);
  if (lit_.seat != NoSeat) DrawSeatLight(painter);
  if (!lit_.winner.isEmpty()) DrawRing(painter, QRectF(lit_.winner).adjusted(-3, -3, 3, 3), 3);
}

}  // namespace Parlino
