// The plain shapes of the table: frames with a caption in their top line, and filled boxes.
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

// A frame in the classic look: an etched line all round, with its title set into it at the top. Set
// the title after creating the frame: assistive tools are told of the title and must already know
// the frame.
class FrameBox : public QGroupBox {
 public:
  FrameBox(const FrameLook& look, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  FrameLook look_;
};

// A box in one colour.
class FilledBox : public QWidget {
 public:
  FilledBox(const QColor& fill, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor fill_;
};

}  // namespace Parlino
