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
  // The table window must exist for as long as this object.
  TableWatch();

  // The name of the first control that is not shown as in the model, or an empty string. To be
  // called when the window has just shown the model; positions are compared only while nothing
  // glides.
  std::string Look(bool nothingGlides) const;
  // The same for the picture drawn on this card's widget.
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
