#include "table/window/painting/CardBody.h"

#include <map>
#include <tuple>
#include <utility>

#include <QApplication>
#include <QMoveEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QResizeEvent>

namespace Parlino {
namespace {

// How far the shadow reaches beyond the card on each side, how far it is moved from the light at
// the upper left, and how dark it is, 0 to 1, under the edge of the card.
struct Shadow {
  int reach;
  QPoint shift;
  double darkness;
};
constexpr Shadow LyingShadow{4, {1, 2}, 0.42};
constexpr Shadow LiftedShadow{9, {3, 6}, 0.36};

const Shadow& ShadowOf(bool isLifted) {
  return isLifted ? LiftedShadow : LyingShadow;
}

// Rounded boxes one in another, each a little darker than the one around it.
QPixmap DrawShadow(QSize body, const Shadow& shadow, qreal ratio) {
  constexpr qreal corner = 5;
  const QSize size = body + 2 * QSize(shadow.reach, shadow.reach);
  QPixmap pixels(size * ratio);
  pixels.setDevicePixelRatio(ratio);
  pixels.fill(Qt::transparent);
  QPainter painter(&pixels);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const int steps = 2 * shadow.reach;
  double covered = 0;
  for (int step = 1; step <= steps; ++step) {
    const double progress = static_cast<double>(step) / steps;
    const double wanted = shadow.darkness * progress * progress;
    const double inset = progress * shadow.reach;
    painter.setBrush(
        QColor::fromRgbF(0, 0, 0, static_cast<float>((wanted - covered) / (1 - covered))));
    painter.drawRoundedRect(QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset),
                            corner + shadow.reach - inset, corner + shadow.reach - inset);
    covered = wanted;
  }
  return pixels;
}

std::map<std::tuple<int, int, bool, qreal>, QPixmap> drawnShadows;

const QPixmap& ShadowPicture(QSize body, bool isLifted, qreal ratio) {
  // Pixmaps must be destroyed before the application is.
  if (drawnShadows.empty()) qAddPostRoutine([] { drawnShadows.clear(); });
  QPixmap& pixels = drawnShadows[{body.width(), body.height(), isLifted, ratio}];
  if (pixels.isNull()) pixels = DrawShadow(body, ShadowOf(isLifted), ratio);
  return pixels;
}

// The cards of the pack lie so close to each other that their shadows are one.
bool AreAsOne(const QRect& one, const QRect& other) {
  constexpr int closest = 2;
  return one.size() == other.size() &&
         (one.topLeft() - other.topLeft()).manhattanLength() <= closest;
}

}  // namespace

void CardBody::Lift(bool isLifted) {
  if (isLifted_ == isLifted) return;
  RepaintGround(geometry());
  isLifted_ = isLifted;
  RepaintGround(geometry());
}

QRect CardBody::ShadowBox(const QRect& body) const {
  const Shadow& shadow = ShadowOf(isLifted_);
  const QMargins reach(shadow.reach, shadow.reach, shadow.reach, shadow.reach);
  return body.marginsAdded(reach).translated(shadow.shift);
}

void CardBody::RepaintGround(const QRect& body) const {
  parentWidget()->update(ShadowBox(body));
}

bool CardBody::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Move:
      RepaintGround({static_cast<QMoveEvent*>(event)->oldPos(), size()});
      RepaintGround(geometry());
      break;
    case QEvent::Resize:
      RepaintGround({pos(), static_cast<QResizeEvent*>(event)->oldSize()});
      RepaintGround(geometry());
      break;
    case QEvent::Hide:
    case QEvent::Show:
    case QEvent::ZOrderChange:
      RepaintGround(geometry());
      break;
    default:
      break;
  }
  return QWidget::event(event);
}

void CardBody::PaintShadowsOnTable(QPainter& painter, const QWidget& table, const QRegion& parts) {
  painter.save();
  for (const QRect& part : parts) PaintShadows(painter, table.children(), 0, {}, part);
  painter.restore();
}

// The children of the table are in their order from the back to the front.
void CardBody::PaintShadowsOn(QPainter& painter, const QWidget& ground, const QRegion& parts) {
  const QObjectList& things = ground.parentWidget()->children();
  const qsizetype first = things.indexOf(&ground) + 1;
  painter.save();
  for (const QRect& part : parts) PaintShadows(painter, things, first, ground.pos(), part);
  painter.restore();
}

// Each of many cards asks for all that lie above it. What is far away is left out first; then what
// the body itself or another one hides. Within a single rectangle Qt copies pixels; elsewhere it
// goes from line to line, with threads to help it that cost more than they bring.
void CardBody::PaintShadows(QPainter& painter, const QObjectList& things, qsizetype first,
                            QPoint origin, const QRect& part) {
  constexpr int furthest = 15;  // a shadow reaches and is shifted, at most
  constexpr int corner = 6;     // where the body is rounded, what lies below is seen
  const QRect near = part.translated(origin).adjusted(-furthest, -furthest, furthest, furthest);
  QRegion seen = part;
  QRect last;
  for (qsizetype place = first; place < things.size() && !seen.isEmpty(); ++place) {
    if (!things[place]->isWidgetType()) continue;
    const auto* widget = static_cast<const QWidget*>(things[place]);
    if (widget->isHidden() || !widget->geometry().intersects(near)) continue;
    const auto* body = dynamic_cast<const CardBody*>(widget);
    if (body == nullptr || !body->IsSolid()) continue;
    const QRect lying = body->geometry().translated(-origin);
    const QRect box = body->ShadowBox(lying);
    const bool isNext = AreAsOne(std::exchange(last, box), box);
    if (isNext) continue;
    seen -= lying.adjusted(corner, corner, -corner, -corner);
    for (const QRect& spot : seen.intersected(box)) {
      painter.setClipRect(spot);
      painter.drawPixmap(box.topLeft(),
                         ShadowPicture(body->size(), body->isLifted_, body->devicePixelRatioF()));
    }
  }
}

void TableGround::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  CardBody::PaintShadowsOnTable(painter, *this, event->region());
}

}  // namespace Parlino
