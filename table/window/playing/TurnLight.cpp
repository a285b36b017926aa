#include "table/window/playing/TurnLight.h"

#include <algorithm>
#include <utility>

#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include "engine/state/Questions.h"
#include "table/CardDisplay.h"
#include "table/TableEvents.h"
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

constexpr int SeatPointerSize = 10;
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

void DrawPointer(QPainter& painter, const LightPointer& pointer, int size) {
  const QPointF back = pointer.tip - pointer.direction * size;
  const QPointF side = QPointF(-pointer.direction.y(), pointer.direction.x()) * size;
  painter.setPen(QPen(Colours::Navy, 1));
  painter.setBrush(Light);
  painter.drawPolygon(QPolygonF{pointer.tip, back + side, back - side});
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
  const QRegion before = Reach();
  lit_ = std::move(now);
  DimOthers();
  update(before + Reach());
}

Lit TurnLight::FindLight() const {
  Lit lit;
  if (!TableTakesInput()) return lit;
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
  if (lit.seat == Player || HandOf(lit.seat).IsEmpty()) lit.seat = NoSeat;
}

void TurnLight::DimOthers() const {
  const CardSet playable = CardsHumanMayPlay();
  const CardSet row = PlayersRow();
  for (Integer card = 1; card <= CardsInPack; ++card)
    widgets_.cards[card]->Dim(PlayerTurn != False && row.Has(card) && !playable.Has(card));
}

// The mat on which the hand or the bidding panel lies.
QRect TurnLight::Mat() const {
  constexpr int around = 7;
  constexpr int roomForPointers = 13;
  if (lit_.place.isEmpty()) return {};
  return lit_.place.adjusted(-around, -around, around,
                             lit_.cards.empty() ? around : roomForPointers);
}

// On the green, beside the frame: the tip at the middle of the side that the seat sits at.
LightPointer TurnLight::SeatPointer() const {
  constexpr int border = 5;
  const QRectF inner =
      QRectF(widgets_.tableTop->geometry()).adjusted(border, border, -border, -border);
  const QPointF middle = inner.center();
  switch (lit_.seat) {
    case West:
      return {{inner.left(), middle.y()}, {-1, 0}};
    case North:
      return {{middle.x(), inner.top()}, {0, -1}};
    default:
      return {{inner.right(), middle.y()}, {1, 0}};
  }
}

// Everything that is drawn on.
QRegion TurnLight::Reach() const {
  constexpr int glow = 12;
  QRegion reach;
  for (const QRect& box : {Mat(), lit_.winner})
    if (!box.isEmpty()) reach += box.adjusted(-glow, -glow, glow, glow);
  if (lit_.seat == NoSeat) return reach;
  const int around = SeatPointerSize + 2;
  const QPoint tip = SeatPointer().tip.toPoint();
  return reach + QRect(tip, QSize(1, 1)).adjusted(-around, -around, around, around);
}

void TurnLight::DrawHandLight(QPainter& painter) const {
  constexpr int corner = 7;
  constexpr int pointerSize = 6;
  const QRectF mat = Mat();
  painter.setPen(Qt::NoPen);
  painter.setBrush(Faint(70));
  painter.drawRoundedRect(mat, corner, corner);
  DrawRing(painter, mat, 2);
  for (const QRect& card : lit_.cards)
    DrawPointer(painter, {{QRectF(card).center().x(), card.bottom() + 4.0}, {0, -1}}, pointerSize);
}

void TurnLight::paintEvent(QPaintEvent* event) {
  if (!event->region().intersects(Reach())) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!lit_.place.isEmpty()) DrawHandLight(painter);
  if (lit_.seat != NoSeat) DrawPointer(painter, SeatPointer(), SeatPointerSize);
  if (!lit_.winner.isEmpty()) DrawRing(painter, QRectF(lit_.winner).adjusted(-3, -3, 3, 3), 3);
}

}  // namespace Parlino
