#include "table/window/parts/PictureView.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

#include "table/window/painting/Design.h"
#include "table/window/painting/Edges.h"
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

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
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

void PictureView::paintEvent(QPaintEvent*) {
  if (picture_ == 0) return;
  QPainter(this).drawPixmap(0, 0, CardPicture(picture_, devicePixelRatioF()));
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

TrickBack::TrickBack(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void TrickBack::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Colours::Navy);
  DrawEdges(painter, rect(), Colours::Black);
  painter.drawPixmap(2, 2, SmallBack(devicePixelRatioF()));
}

}  // namespace Parlino
