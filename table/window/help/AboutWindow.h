// The about window. It is created when it is loaded and deleted when it is unloaded.
#pragma once

#include <QDialog>

#include "table/HelpAndAbout.h"

class QPushButton;

namespace Parlino {

class BorderedLabel;
class PendingEvents;

class AboutWindow : public QDialog {
 public:
  AboutWindow(PendingEvents& pending, QWidget* table);

  void ShowModel(const AboutWindowView& about);

  // Esc and the close box act like the OK button.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  PendingEvents& pending_;
  BorderedLabel* title_;
  BorderedLabel* version_;
  BorderedLabel* description_;
  BorderedLabel* disclaimer_;
  QPushButton* ok_;
  int showings_ = 0;  // as last shown
};

}  // namespace Parlino
