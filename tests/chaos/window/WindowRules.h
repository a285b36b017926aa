// What must be true of the program's windows whenever they have just been shown.
#pragma once

#include <string>
#include <vector>

#include <QWidget>

namespace Parlino {

class WindowRules {
 public:
  // The table window must exist for as long as this object.
  WindowRules();

  // The first broken rule, or an empty string if all hold. Positions are compared only while
  // nothing glides; `boxesOpen` is the number of plain boxes that the game is waiting for.
  [[nodiscard]] std::string Broken(bool nothingGlides, int boxesOpen) const;
  // The same for the picture drawn on this card's widget.
  [[nodiscard]] std::string BrokenFace(int card) const;

 private:
  [[nodiscard]] std::string NameOfWrongControl(bool nothingGlides) const;

  std::vector<QWidget*> widgets_;  // of the controls, in the order of LookAtTable
};

}  // namespace Parlino
