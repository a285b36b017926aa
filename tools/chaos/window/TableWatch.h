// Compares the widgets of the table window with the model that they show.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QWidget>

#include "table/TableView.h"

namespace Parlino {

class TableWatch {
 public:
  // The table window is there, and stays as long as this.
  TableWatch();

  // Names the first control that is not shown as it is, or nothing. To be asked when the window has
  // just shown the model; places count only while nothing glides.
  std::string Look(bool nothingGlides) const;
  // Likewise for what is drawn on the widget of this card.
  std::string LookAtFace(int card) const;

 private:
  struct Tie {
    QString name;
    const Control* control;
    QWidget* widget;
    std::function<bool()> isShown;
    bool hasPlace;
  };

  void Tell(const QString& name, const Control& control, bool hasPlace = false);
  void TellCaption(const QString& name, const Label& label, bool hasPlace = false);
  void TellPicture(const QString& name, const PictureBox& box, bool hasPlace);
  void TellCards();
  void TellScores();
  void TellList();
  bool LayersAreInOrder() const;

  std::vector<Tie> ties_;
};

}  // namespace Parlino
