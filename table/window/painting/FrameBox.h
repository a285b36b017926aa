// The plain shapes of the table: frames with a caption in their top line, filled boxes and lines.
#pragma once

#include <QColor>
#include <QFont>
#include <QGroupBox>

namespace Parlino {

struct FrameLook {
  QColor colour;
  QColor ground;
  QFont font;
};

// A frame in the classic look: an etched line all round, its title set into it at the top. The
// title is given once the frame is there: tools are told of it and would not know the frame yet.
class FrameBox : public QGroupBox {
 public:
  FrameBox(const FrameLook& look, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  FrameLook look_;
};

// A box in one colour, with a border of another when `borderWidth` is above 0.
class FilledBox : public QWidget {
 public:
  FilledBox(const QColor& fill, QWidget* parent);
  void SetBorder(const QColor& colour, int width);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor fill_;
  QColor border_;
  int borderWidth_ = 0;
};

}  // namespace Parlino
