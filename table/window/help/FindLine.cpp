#include "table/window/help/FindLine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextEdit>
#include <QToolButton>

#include "table/window/input/Keys.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Named.h"
#include "table/window/speaking/AssistiveTools.h"

namespace Parlino {
namespace {

constexpr int ButtonSize = 25;

void SetGround(QWidget& widget, const QColor& ground) {
  QPalette colours = widget.palette();
  colours.setColor(QPalette::Base, ground);
  colours.setColor(QPalette::Text, Colours::Black);
  colours.setColor(QPalette::PlaceholderText, Colours::EdgeGrey);
  widget.setPalette(colours);
}

}  // namespace

FindLine::FindLine(QTextEdit& text, QWidget* parent)
    : QWidget(parent),
      text_(text),
      words_(Named(new QLineEdit(this), "FindWords")),
      note_(Named(new Speaking<QLabel>(parent), "FindNote")) {
  constexpr double points = 9;
  words_->setPlaceholderText("Find in the help");
  words_->setAccessibleName("Find in the help");
  words_->setMinimumWidth(0);
  words_->setFixedHeight(ButtonSize);
  words_->setFont(TextFont(points));
  note_->speak = [this] {
    return Spoken{QAccessible::Notification, note_->text(), note_->text().isEmpty()};
  };
  note_->setFont(TimesBold(points));
  note_->setTextFormat(Qt::PlainText);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addWidget(words_);
  AddButton("FindPrevious", "\u25B2", "Find previous (Shift+Enter)", &FindLine::FindPrevious);
  AddButton("FindNext", "\u25BC", "Find next (Enter)", &FindLine::FindNext);
  AddButton("FindClose", "\u2715", "Close (Esc)", &FindLine::Close);
  connect(words_, &QLineEdit::textEdited, this, &FindLine::FindWhileTyping);
  Say("", true);
  hide();
}

void FindLine::Place(const QRect& line, const QRect& note) {
  setGeometry(line);
  note_->setGeometry(note);
}

void FindLine::AddButton(const char* name, const char* caption, const char* spoken,
                         void (FindLine::*act)()) {
  auto* button = Named(new QToolButton(this), name);
  button->setText(caption);
  button->setToolTip(spoken);
  button->setAccessibleName(spoken);
  button->setFixedSize(ButtonSize, ButtonSize);
  connect(button, &QToolButton::clicked, this, act);
  layout()->addWidget(button);
}

void FindLine::Open() {
  const QString selected = text_.textCursor().selectedText();
  if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
    words_->setText(selected);
  Say("", true);
  show();
  words_->setFocus();
  words_->selectAll();
}

// The focus goes first: otherwise Qt would give it to the next button, which tools would read out.
void FindLine::Close() {
  text_.setFocus();
  hide();
  note_->clear();
}

// While the player is typing, each search starts again at the place found so far.
void FindLine::FindWhileTyping() {
  QTextCursor cursor = text_.textCursor();
  cursor.setPosition(cursor.selectionStart());
  text_.setTextCursor(cursor);
  FindNext();
}

void FindLine::Find(QTextDocument::FindFlags direction) {
  if (!isVisible()) return Open();
  const QString words = words_->text();
  if (words.isEmpty()) return Say("", true);
  if (text_.find(words, direction)) return ShowFound("");
  const bool isBackward = direction.testFlag(QTextDocument::FindBackward);
  const QTextCursor before = text_.textCursor();
  text_.moveCursor(isBackward ? QTextCursor::End : QTextCursor::Start);
  if (text_.find(words, direction))
    return ShowFound(isBackward ? "Reached top, continued from end"
                                : "Reached end, continued from top");
  text_.setTextCursor(before);
  Say("Nothing found", false);
}

// Scrolls so that what was found is shown with the text above and below it.
void FindLine::ShowFound(const char* note) {
  QScrollBar& bar = *text_.verticalScrollBar();
  const int height = text_.viewport()->height();
  const int top = text_.cursorRect().top();
  if (top < height / 6 || top > height * 2 / 3) bar.setValue(bar.value() + top - height / 3);
  Say(note, true);
}

void FindLine::Say(const char* note, bool isFound) {
  note_->setText(note);
  if (!note_->text().isEmpty()) TellTools(note_, QAccessible::ObjectShow);
  SetGround(*words_, isFound ? Colours::White : Colours::Pink);
}

void FindLine::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    Close();
  else if (IsEnter(*event) && event->modifiers().testFlag(Qt::ShiftModifier))
    FindPrevious();
  else if (IsEnter(*event))
    FindNext();
  else
    QWidget::keyPressEvent(event);
}

}  // namespace Parlino
