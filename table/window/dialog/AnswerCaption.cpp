#include "table/window/dialog/AnswerCaption.h"

#include <QPainter>

#include "table/TableEvents.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/painting/Design.h"

namespace Parlino {

AnswerCaption::AnswerCaption(int answer, PendingEvents& pending, QWidget* parent)
    : KeyButton(parent) {
  setFont(MessageFont());
  setFocusPolicy(Qt::TabFocus);
  connect(this, &QAbstractButton::pressed, [&pending, answer] {
    pending.Append({PressAnswer, answer});
  });
  connect(this, &QAbstractButton::clicked, [&pending, answer] {
    pending.Append({ClickAnswer, answer});
  });
}

void AnswerCaption::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(Colours::Yellow);
  painter.drawText(rect(), Qt::AlignCenter, text());
}

}  // namespace Parlino
