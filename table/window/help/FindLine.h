// The line that finds text in the help. It is closed until it is asked for.
#pragma once

#include <QLabel>
#include <QTextDocument>
#include <QWidget>

#include "table/window/speaking/Speaker.h"

class QLineEdit;
class QTextEdit;

namespace Parlino {

class FindLine : public QWidget {
 public:
  FindLine(QTextEdit& text, QWidget* parent);

  // The line and what it has to say stand on either side of the window's button.
  void Place(const QRect& line, const QRect& note);

  // Opens the line, ready for other words; what is selected in the text is offered.
  void Open();
  // Closes it and gives the focus back to the text.
  void Close();

  // Selects the next place after the one selected, or the one before; goes on at the other end of
  // the text.
  void FindNext() { Find({}); }
  void FindPrevious() { Find(QTextDocument::FindBackward); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void AddButton(const char* name, const char* caption, const char* spoken,
                 void (FindLine::*act)());
  void FindWhileTyping();
  void Find(QTextDocument::FindFlags direction);
  void ShowFound(const char* note);
  void Say(const char* note, bool isFound);

  QTextEdit& text_;
  QLineEdit* words_;
  Speaking<QLabel>* note_;
};

}  // namespace Parlino
