// Things made of card, which lie on the table and cast a soft shadow on what is below them.
#pragma once

#include <QWidget>

namespace Parlino {

class CardBody : public QWidget {
 public:
  using QWidget::QWidget;

  // A card under way is a little higher above the table than one that lies there.
  void Lift(bool isLifted);

  // Paint the shadows that fall on parts of the table, and on parts of a widget of the table: of
  // the bodies above it. The ground paints them, so that a shadow falls on the next card as well as
  // on the table, and the body keeps the place and size of the card.
  static void PaintShadowsOnTable(QPainter& painter, const QWidget& table, const QRegion& parts);
  static void PaintShadowsOn(QPainter& painter, const QWidget& ground, const QRegion& parts);

 protected:
  bool event(QEvent* event) override;

  // Whether there is something that casts a shadow.
  [[nodiscard]] virtual bool IsSolid() const { return true; }

 private:
  static void PaintShadows(QPainter& painter, const QObjectList& things, qsizetype first,
                           QPoint origin, const QRect& part);
  [[nodiscard]] QRect ShadowBox(const QRect& body) const;
  void RepaintGround(const QRect& body) const;

  bool isLifted_ = false;
};

// The table on which everything lies, in whatever colour is behind it.
class TableGround : public QWidget {
 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace Parlino
