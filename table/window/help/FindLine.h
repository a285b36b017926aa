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

  // The line and its message go on either side of the Close button.
  void Place(const QRect& line, const QRect& note);

  // Opens the line, ready for new words; text that is selected in the help is offered.
  void Open();
  // Closes it and returns the focus to the text.
  void Close();

  // Selects the next match after the selected one, or the previous one; continues at the other end
  // of the text.
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
