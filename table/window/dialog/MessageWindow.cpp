#include "table/window/dialog/MessageWindow.h"

#include <algorithm>
#include <utility>

#include <QCloseEvent>
#include <QPainter>
#include <QScreen>

#include "table/window/dialog/AnswerCaption.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Edges.h"
#include "table/window/painting/Named.h"
#include "table/window/painting/Pictures.h"

namespace Parlino {
namespace {

QRect ToPixels(const DialogBox& box) {
  return Parlino::ToPixels(box.Left, box.Top, box.Width, box.Height);
}

LabelLook TextLook(int mostLines) {
  return {.colour = Colours::Yellow,
          .font = MessageFont(),
          .align = Qt::AlignLeft,
          .ground = Ground::None,
          .mostLines = mostLines};
}

}  // namespace

AnswerFace::AnswerFace(int answer, PendingEvents& pending, QWidget* parent)
    : QWidget(parent),
      caption_(Named(new AnswerCaption(answer, pending, this), MemberName("Label1", answer))) {
  setObjectName(MemberName("Pic1", answer));
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void AnswerFace::ShowModel(const ButtonFace& face) {
  setGeometry(ToPixels(face.Pic1));
  isPressed_ = face.Pressed;
  caption_->setText(QString::fromStdString(face.Label1));
  caption_->setGeometry(isPressed_ ? rect().adjusted(2, 2, -1, -1) : rect().adjusted(1, 1, -1, -1));
  setVisible(face.Visible);
  update();
}

void AnswerFace::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Colours::Green);
  if (isPressed_)
    DrawEdges(painter, rect(), Colours::EdgeGrey, Colours::EdgeLight);
  else
    DrawEdges(painter, rect(), Colours::EdgeLight, Colours::EdgeGrey);
}

MessageWindow::MessageWindow(KeyUse& keyUse, PendingEvents& pending, QWidget* owner)
    : QWidget(owner, Qt::Dialog | Qt::FramelessWindowHint),
      keys_(keyUse, *this),
      title_(Named(new Speaking<CaptionLabel>(TextLook(1), this), "Label3")),
      prompt_(Named(new Speaking<CaptionLabel>(TextLook(0), this), "Label2")),
      picture_(Named(new Speaking<QLabel>(this), "Picture1")) {
  setObjectName("MFormDeluxe");
  // The dialog itself tells assistive tools its title and its prompt.
  speak = [this] { return Spoken{QAccessible::Dialog, windowTitle()}; };
  setWindowModality(Qt::ApplicationModal);
  setAttribute(Qt::WA_OpaquePaintEvent);
  for (std::size_t answer = 0; answer < faces_.size(); ++answer) {
    faces_[answer] = new AnswerFace(static_cast<int>(answer), pending, this);
    keys_.Add(faces_[answer]->Caption());
  }
}

void MessageWindow::ShowModel(const MessageDialogView& dialog) {
  if (!dialog.Visible) {
    hide();
    return;
  }
  int answer = 0;
  for (AnswerFace* face : faces_) face->ShowModel(dialog.Faces[answer++]);
  title_->ShowCaption(QString::fromStdString(dialog.Label3));
  prompt_->ShowCaption(QString::fromStdString(dialog.Label2));
  Place(dialog);
  // Also needed if one question directly follows another and the window stays open.
  if (std::exchange(showings_, dialog.Showings) != dialog.Showings)
    keys_.Begin(dialog.AnswerToMark);
  if (!isVisible()) show();
}

void MessageWindow::Place(const MessageDialogView& dialog) {
  const QRect screen = window()->screen()->geometry();
  const QRect place = ToPixels({dialog.Left, dialog.Top, dialog.Width, dialog.Height});
  setWindowTitle(title_->text().trimmed());
  // Tools would be told each time, and their queries make the window look at the model again.
  if (accessibleDescription() != prompt_->text()) setAccessibleDescription(prompt_->text());
  setFixedSize(place.size());
  // A prompt much taller than the previous one would push the buttons off the screen.
  const int lowest = std::max(0, screen.height() - place.height());
  move(screen.topLeft() + QPoint(place.left(), std::min(place.top(), lowest)));
  title_->setGeometry(ToPixels(dialog.Label3Place));
  prompt_->setGeometry(ToPixels(dialog.Label2Place));
  picture_->setGeometry(ToPixels(dialog.Picture1));
  picture_->setPixmap(MessagePicture(dialog.Picture, devicePixelRatioF()));
  picture_->setAlignment(Qt::AlignCenter);
}

void MessageWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Colours::Black);
  DrawEdges(painter, rect().adjusted(1, 1, -1, -1), Colours::EdgeLight, Colours::EdgeGrey);
  PaintMark(painter);
}

// A frame around the answer and a pointer above it, as for a card, so that the mark does not depend
// on colour alone.
void MessageWindow::PaintMark(QPainter& painter) const {
  const QWidget* caption = keys_.MarkedCaption();
  if (caption == nullptr) return;
  const QRect face = caption->parentWidget()->geometry();
  DrawEdges(painter, face.adjusted(-1, -1, 1, 1), Colours::Gold);
  DrawEdges(painter, face.adjusted(-2, -2, 2, 2), Colours::Gold);
  constexpr QPointF pointerHeight(0, 9);
  constexpr QPointF halfOfPointer(8, 0);
  const QPointF tip(QRectF(face).center().x(), face.top() - 3);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Colours::Gold);
  painter.drawPolygon(
      QPolygonF{tip, tip - pointerHeight - halfOfPointer, tip - pointerHeight + halfOfPointer});
}

void MessageWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
}

}  // namespace Parlino
