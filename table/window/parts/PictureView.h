// The picture boxes of the table: cards, the trumps picture and the small backs of the trick piles.
#pragma once

#include <functional>
#include <string>

#include "table/TableView.h"
#include "table/window/painting/CardBody.h"

namespace Parlino {

// Shows a picture of the image list and takes on its size. A click is the left button pressed on
// this picture and released over a visible part of it.
class PictureView : public CardBody {
 public:
  explicit PictureView(QWidget* parent);

  std::function<void()> onClick;
  std::function<void()> onHover;

  // Shows the picture that the model gives, but not its hint.
  void ShowModel(const PictureBox& box);
  // Shows the picture of the image list as the mouse pointer (0 for the ordinary one), and a tool
  // tip, or none if it is empty.
  void ShowHint(Integer pointer, const std::string& tip);
  // Shows the picture darker than it is, or no longer so.
  void Dim(bool isDimmed);
  // The picture of the image list that is shown; 0 for none.
  [[nodiscard]] Integer Picture() const { return picture_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  [[nodiscard]] bool IsSolid() const override { return picture_ != 0; }

 private:
  void ShowPointer(Integer picture);

  Integer picture_ = 0;
  Integer pointer_ = 0;
  bool pressed_ = false;
  bool isDimmed_ = false;
};

// One trick taken: the small back, inside a border that shows as the edges of its cards.
class TrickBack : public CardBody {
 public:
  explicit TrickBack(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace Parlino
