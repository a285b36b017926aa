#include "table/window/dialog/AnswerKeys.h"

#include <algorithm>
#include <iterator>

#include "table/window/input/KeyUse.h"
#include "table/window/input/Keys.h"

namespace Parlino {
namespace {

bool MovesMark(const QKeyEvent& key) {
  return IsTab(key) || IsArrow(key);
}

bool GoesForward(const QKeyEvent& key) {
  return key.key() == Qt::Key_Tab || key.key() == Qt::Key_Right || key.key() == Qt::Key_Down;
}

}  // namespace

AnswerKeys::AnswerKeys(KeyUse& keyUse, QWidget& dialog) : keyUse_(keyUse), dialog_(dialog) {
  connect(&keyUse, &KeyUse::Changed, &dialog, qOverload<>(&QWidget::update));
}

void AnswerKeys::Add(QAbstractButton& caption) {
  captions_.push_back(&caption);
  caption.installEventFilter(this);
}

void AnswerKeys::Begin(int answer) {
  for (QAbstractButton* caption : captions_) caption->setDown(false);
  captions_.at(static_cast<std::size_t>(answer))->setFocus();
}

const QWidget* AnswerKeys::MarkedCaption() const {
  const auto marked = std::ranges::find_if(captions_, &QWidget::hasFocus);
  return keyUse_.IsOn() && marked != captions_.end() ? *marked : nullptr;
}

bool AnswerKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) dialog_.update();
  if (event->type() != QEvent::KeyPress) return false;
  return TakeKey(static_cast<QKeyEvent&>(*event), *watched);
}

// Returns false for a key that is left to the answer, which it presses. A key that is still held
// down was meant for the table or for the previous question.
bool AnswerKeys::TakeKey(const QKeyEvent& key, const QObject& answer) {
  const bool isMeant = IsPlain(key) && !key.isAutoRepeat();
  if (!isMeant || !(MovesMark(key) || IsEnterOrSpace(key))) return true;
  if (!keyUse_.IsOn()) {
    keyUse_.Begin();
    return true;
  }
  if (MovesMark(key)) Move(key, answer);
  return MovesMark(key);
}

// Tab goes round; an arrow key stops at the last answer in its direction.
void AnswerKeys::Move(const QKeyEvent& key, const QObject& from) {
  std::vector<QAbstractButton*> shown;
  std::ranges::copy_if(captions_, std::back_inserter(shown), &QWidget::isVisible);
  const auto count = std::ssize(shown);
  auto place = std::ranges::find(shown, &from) - shown.begin() + (GoesForward(key) ? 1 : -1);
  if (IsTab(key)) place = (place + count) % count;
  if (place >= 0 && place < count) shown[static_cast<std::size_t>(place)]->setFocus();
}

}  // namespace Parlino
