// The keys in the message dialog, and which of its answers they have reached.
#pragma once

#include <vector>

#include <QAbstractButton>
#include <QObject>

class QKeyEvent;

namespace Parlino {

class KeyUse;

// The answer that the keys have reached has the focus. It is marked while `keyUse` is on: the first
// key of who has used the mouse only shows the mark, for no answer can be taken back.
class AnswerKeys : public QObject {
 public:
  AnswerKeys(KeyUse& keyUse, QWidget& dialog);

  // Answers are added in their order.
  void Add(QAbstractButton& caption);

  // To be called when the dialog comes with another question: the keys begin at this answer, and a
  // key or a button of the mouse that is still down means nothing any more.
  void Begin(int answer);

  // The caption of the answer to be marked; nothing while none is.
  [[nodiscard]] const QWidget* MarkedCaption() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeKey(const QKeyEvent& key, const QObject& answer);
  void Move(const QKeyEvent& key, const QObject& from);

  KeyUse& keyUse_;
  QWidget& dialog_;
  std::vector<QAbstractButton*> captions_;
};

}  // namespace Parlino
