// The text box of the help window: shows a document that can be read, selected and copied.
#pragma once

#include <QTextEdit>

#include "richtext/RichText.h"

namespace Parlino {

class HelpText : public QTextEdit {
 public:
  explicit HelpText(QWidget* parent);

  // Shows the text from its beginning. Keeps a reference to it, in order to write it again at
  // another size.
  void ShowText(const RichText::Document& text);

  // One size larger, one size smaller, or back to the document's own size.
  void ZoomIn() { Zoom(level_ + 1); }
  void ZoomOut() { Zoom(level_ - 1); }
  void ZoomBack();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void Zoom(int level);
  void Write();
  bool Scroll(const QKeyEvent& event);
  bool Select(const QKeyEvent& event);

  const RichText::Document* text_ = nullptr;
  int level_;
  int wheel_ = 0;  // turned, but not yet far enough for one size
};

}  // namespace Parlino
