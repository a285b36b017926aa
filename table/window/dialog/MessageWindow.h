// The window of the message dialog. The dialog's model places everything in it, and only its
// buttons close it.
#pragma once

#include <array>

#include <QAbstractButton>
#include <QWidget>

#include "table/MessageDialog.h"
#include "table/window/dialog/AnswerKeys.h"
#include "table/window/painting/CaptionLabel.h"
#include "table/window/speaking/Speaker.h"

namespace Parlino {

class PendingEvents;

// The caption of an answer, which takes the clicks and the keys, and the green face behind it.
class AnswerFace : public QWidget {
 public:
  AnswerFace(int answer, PendingEvents& pending, QWidget* parent);

  void ShowModel(const ButtonFace& face);
  [[nodiscard]] QAbstractButton& Caption() const { return *caption_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QAbstractButton* caption_;
  bool isPressed_ = false;
};

class MessageWindow : public QWidget, public Speaker {
 public:
  MessageWindow(KeyUse& keyUse, PendingEvents& pending, QWidget* owner);

  void ShowModel(const MessageDialogView& dialog);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Place(const MessageDialogView& dialog);
  void PaintMark(QPainter& painter) const;

  AnswerKeys keys_;
  CaptionLabel* title_;
  CaptionLabel* prompt_;
  QLabel* picture_;
  std::array<AnswerFace*, 3> faces_;
  int showings_ = 0;  // as last shown
};

}  // namespace Parlino
