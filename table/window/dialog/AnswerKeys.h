// The keys in the message dialog, and which of its answers the focus is on.
#pragma once

#include <vector>

#include <QAbstractButton>
#include <QObject>

class QKeyEvent;

namespace Parlino {

class KeyUse;

// The answer that the keys have reached has the focus. It is marked while `keyUse` is on: after the
// mouse was used, the first key only shows the mark, because no answer can be taken back.
class AnswerKeys : public QObject {
 public:
  AnswerKeys(KeyUse& keyUse, QWidget& dialog);

  // Answers are added in the order in which Tab goes through them.
  void Add(QAbstractButton& caption);

  // To be called when the dialog appears with another question: the focus starts at this answer,
  // and a key or mouse button that is still held down is ignored.
  void Begin(int answer);

  // The caption of the answer to be marked, or nullptr if none is.
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
