#include "table/window/help/HelpText.h"

#include <iterator>

#include <QKeyEvent>
#include <QScrollBar>
#include <QTextCursor>
#include <QWheelEvent>

#include "table/window/help/DocumentWriter.h"
#include "table/window/painting/Design.h"

namespace Parlino {
namespace {

constexpr double Zooms[] = {0.5, 0.67, 0.8, 0.9, 1, 1.1, 1.25, 1.5, 1.75, 2, 2.5, 3};
constexpr int PlainSize = 4;
constexpr int WheelStep = 120;
constexpr int Margin = 30;

// Sets its own colours, so that a dark desktop does not make the text on the paper light.
QPalette PaperColours(QPalette colours) {
  colours.setColor(QPalette::Base, Colours::Paper);
  colours.setColor(QPalette::Text, Colours::Ink);
  colours.setColor(QPalette::Highlight, Colours::Green);
  colours.setColor(QPalette::HighlightedText, Colours::White);
  return colours;
}

QTextCursor::MoveOperation SelectingMove(const QKeyEvent& event) {
  static constexpr struct {
    QKeySequence::StandardKey keys;
    QTextCursor::MoveOperation move;
  } moves[] = {
      {QKeySequence::SelectNextChar, QTextCursor::NextCharacter},
      {QKeySequence::SelectPreviousChar, QTextCursor::PreviousCharacter},
      {QKeySequence::SelectNextWord, QTextCursor::NextWord},
      {QKeySequence::SelectPreviousWord, QTextCursor::PreviousWord},
      {QKeySequence::SelectNextLine, QTextCursor::Down},
      {QKeySequence::SelectPreviousLine, QTextCursor::Up},
      {QKeySequence::SelectStartOfLine, QTextCursor::StartOfLine},
      {QKeySequence::SelectEndOfLine, QTextCursor::EndOfLine},
      {QKeySequence::SelectStartOfDocument, QTextCursor::Start},
      {QKeySequence::SelectEndOfDocument, QTextCursor::End},
  };
  for (const auto& [keys, move] : moves)
    if (event.matches(keys)) return move;
  return QTextCursor::NoMove;
}

}  // namespace

// There is no caret: it would blink, and wake the program each time. The keys scroll, and with
// Shift they select.
HelpText::HelpText(QWidget* parent) : QTextEdit(parent), level_(PlainSize) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setFocusPolicy(Qt::StrongFocus);
  setTabChangesFocus(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  // The context menu of a scroll bar runs an event loop of Qt's own, and the game would stand
  // still.
  verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
  horizontalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
  setPalette(PaperColours(palette()));
  document()->setDefaultFont(TextFont(12));
  document()->setDocumentMargin(Margin);
}

void HelpText::ShowText(const RichText::Document& text) {
  text_ = &text;
  Write();
  moveCursor(QTextCursor::Start);
}

void HelpText::Write() {
  WriteDocument(*text_, Zooms[level_], *document());
}

void HelpText::ZoomBack() {
  Zoom(PlainSize);
}

// Keeps the line at the top of the page and the selection.
void HelpText::Zoom(int level) {
  level = qBound(0, level, static_cast<int>(std::ssize(Zooms)) - 1);
  if (level == level_) return;
  const int top = verticalScrollBar()->value() == 0 ? 0 : cursorForPosition({Margin, 0}).position();
  const int anchor = textCursor().anchor();
  const int position = textCursor().position();
  level_ = level;
  Write();
  QTextCursor cursor(document());
  cursor.setPosition(anchor);
  cursor.setPosition(position, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  cursor.setPosition(top);
  QScrollBar& bar = *verticalScrollBar();
  bar.setValue(top == 0 ? 0 : bar.value() + cursorRect(cursor).top());
}

bool HelpText::Scroll(const QKeyEvent& event) {
  QScrollBar& bar = *verticalScrollBar();
  if (event.matches(QKeySequence::MoveToStartOfDocument) ||
      event.matches(QKeySequence::MoveToStartOfLine))
    bar.setValue(bar.minimum());
  else if (event.matches(QKeySequence::MoveToEndOfDocument) ||
           event.matches(QKeySequence::MoveToEndOfLine))
    bar.setValue(bar.maximum());
  else
    return false;
  return true;
}

bool HelpText::Select(const QKeyEvent& event) {
  const QTextCursor::MoveOperation move = SelectingMove(event);
  if (move == QTextCursor::NoMove) return false;
  QTextCursor cursor = textCursor();
  // A new selection begins on the visible page.
  if (!cursor.hasSelection() && !viewport()->rect().intersects(cursorRect(cursor)))
    cursor = cursorForPosition({Margin, 0});
  cursor.movePosition(move, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  return true;
}

void HelpText::keyPressEvent(QKeyEvent* event) {
  if (!Scroll(*event) && !Select(*event)) QTextEdit::keyPressEvent(event);
}

void HelpText::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QTextEdit::wheelEvent(event);
  event->accept();
  wheel_ += event->angleDelta().y();
  Zoom(level_ + wheel_ / WheelStep);
  wheel_ %= WheelStep;
}

}  // namespace Parlino
