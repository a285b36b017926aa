// The light on the table that shows whose turn it is: on the hand or the bidding panel while the
// game waits for the person, in front of the robot whose card or bid is awaited, and around the
// card that wins the trick.
#pragma once

#include <vector>

#include <QWidget>

#include "engine/state/GameState.h"

namespace Parlino {

struct TableWidgets;

// What is lit now, as far as the game can be asked. Boxes are pixels of the table.
struct Lit {
  QRect place;               // what the person is to use, or empty
  std::vector<QRect> cards;  // the visible parts of the cards that may be played
  Integer seat = NoSeat;     // of the robot whose turn it is
  QRect winner;              // the winning card of a trick that is complete, or empty
  bool operator==(const Lit&) const = default;
};

// A triangle: its tip, and the direction in which it points.
struct LightPointer {
  QPointF tip;
  QPointF direction;
};

// Lies on the table under the cards. It stands still and changes only when the turn does. Cards of
// the hand that may not be played are dimmed while one is awaited.
class TurnLight : public QWidget {
 public:
  TurnLight(QWidget* table, const TableWidgets& widgets);

  // To be called when the table shows a change.
  void Follow();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] Lit FindLight() const;
  void LookAtTrick(Lit& lit) const;
  // What is dimmed changes only with what is lit.
  void DimOthers() const;
  [[nodiscard]] QRect Mat() const;
  [[nodiscard]] LightPointer SeatPointer() const;
  [[nodiscard]] QRegion Reach() const;
  void DrawHandLight(QPainter& painter) const;

  const TableWidgets& widgets_;
  Lit lit_;
};

}  // namespace Parlino
