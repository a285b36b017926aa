#include "table/window/parts/PictureView.h"

#include <utility>

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

#include "table/window/painting/Design.h"
#include "table/window/painting/Pictures.h"
#include "table/window/painting/ToolTips.h"

namespace Parlino {
namespace {

// The point of the picture that points: the tip of the finger, or the middle of the sign. X11
// counts in pixels of the picture, other platforms in device-independent pixels.
QPoint HotSpot(Integer pointer, qreal ratio) {
  const QPoint spot = pointer == PicturePointerPlay ? QPoint(11, 2) : QPoint(16, 16);
  return QGuiApplication::platformName() == "xcb" ? (spot * ratio) : spot;
}

}  // namespace

PictureView::PictureView(QWidget* parent) : CardBody(parent) {
  setMouseTracking(true);
}

void PictureView::ShowModel(const PictureBox& box) {
  if (picture_ != box.Picture) {
    picture_ = box.Picture;
    if (picture_ != 0) resize(PictureSize(picture_));
    update();
  }
}

void PictureView::ShowHint(Integer pointer, const std::string& tip) {
  ShowPointer(pointer);
  ChangeToolTip(*this, PlainToolTip(QString::fromStdString(tip)));
}

void PictureView::ShowPointer(Integer picture) {
  if (pointer_ == picture) return;
  pointer_ = picture;
  if (picture == 0) return unsetCursor();
  const qreal ratio = devicePixelRatioF();
  const QPoint spot = HotSpot(picture, ratio);
  setCursor(QCursor(CardPicture(picture, ratio), spot.x(), spot.y()));
}

void PictureView::Dim(bool isDimmed) {
  if (std::exchange(isDimmed_, isDimmed) != isDimmed) update();
}

void PictureView::paintEvent(QPaintEvent* event) {
  if (picture_ == 0) return;
  QPainter painter(this);
  const qreal ratio = devicePixelRatioF();
  painter.drawPixmap(0, 0,
                     isDimmed_ ? DimmedPicture(picture_, ratio) : CardPicture(picture_, ratio));
  PaintShadowsOn(painter, *this, event->region());
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pressed_ = true;
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !pressed_) return;
  pressed_ = false;
  const bool isOnSeenPart = parentWidget()->childAt(mapToParent(event->pos())) == this;
  if (isOnSeenPart && onClick) onClick();
}

void PictureView::mouseMoveEvent(QMouseEvent*) {
  if (onHover) onHover();
}

TrickBack::TrickBack(QWidget* parent) : CardBody(parent) {}

void TrickBack::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.drawPixmap(2, 2, SmallBack(devicePixelRatioF()));
  PaintShadowsOn(painter, *this, event->region());
}

}  // namespace Parlino
