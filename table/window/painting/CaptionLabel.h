// A label of the table: text in a colour of its own, without a background, on a box, or on a strip
// just as large as the text.
#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>

#include "table/TableView.h"

namespace Parlino {

enum class Ground { None, Box, Strip };

struct LabelLook {
  QColor colour;
  QFont font;
  Qt::AlignmentFlag align = Qt::AlignHCenter;
  Ground ground = Ground::None;
  QColor groundColour = Qt::transparent;
  int mostLines = 1;
};

class CaptionLabel : public QLabel {
 public:
  CaptionLabel(const LabelLook& look, QWidget* parent);

  // Makes the label size itself to its text, up to this width; other labels keep the size of their
  // box.
  void SizeToCaption(int mostWidth);
  // Text wider than this is wrapped or shortened; without a limit, the width of the box applies.
  void LimitTextWidth(int width) { textWidth_ = width; }

  // Shows the text, shortened if it does not fit; the tool tip then has all of it.
  void ShowCaption(const QString& caption);
  void ShowModel(const Label& label) { ShowCaption(QString::fromStdString(label.Caption)); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BreakLines();
  [[nodiscard]] int WidthForText() const;
  [[nodiscard]] QRect LineBox(int line) const;

  LabelLook look_;
  QStringList lines_;
  int lineHeight_;
  int mostWidth_ = 0;  // 0 for a label that does not size itself
  int textWidth_ = 0;  // 0 for the width of the box
};

}  // namespace Parlino
