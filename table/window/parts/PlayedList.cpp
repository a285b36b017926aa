#include "table/window/parts/PlayedList.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>

#include "table/window/painting/Design.h"
#include "table/window/painting/Edges.h"
#include "table/window/painting/WrappedText.h"
#include "table/window/speaking/SpokenNames.h"

namespace Parlino {

// The lines as they were when the list was last shown; each line is copied once, when it is new.
class PlayedLines : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
  }

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    // The view also asks for the current line when there is none.
    if (!index.isValid()) return {};
    if (role == Qt::AccessibleTextRole) return SpokenLine(index.row(), lines_.at(index.row()));
    return role == Qt::DisplayRole ? lines_.at(index.row()) : QVariant();
  }

  void Follow(const ListBox& list) {
    if (list.Count() < lines_.size()) {
      beginResetModel();
      lines_.clear();
      endResetModel();
    }
    if (list.Count() == lines_.size()) return;
    beginInsertRows({}, static_cast<int>(lines_.size()), list.Count() - 1);
    while (lines_.size() < list.Count())
      lines_.append(ToText(list.Line(static_cast<int>(lines_.size()))));
    endInsertRows();
  }

 private:
  QStringList lines_;
};

namespace {

// A name too long for the list is shortened, but never the card played; the line between two tricks
// is simply cut off at the edge.
class LineDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->text.startsWith('=')) option->textElideMode = Qt::ElideNone;
    const qsizetype nameLength = option->text.lastIndexOf(" played ");
    const int room = option->rect.width() - 2 * Margin(*option->widget);
    if (nameLength > 0) option->text = ShortenName(option->text, nameLength, option->font, room);
  }

 private:
  // The space that the style leaves on each side of a line.
  static int Margin(const QWidget& list) {
    return list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
  }
};

}  // namespace

PlayedList::PlayedList(QWidget* parent) : QListView(parent), lines_(new PlayedLines(this)) {
  setModel(lines_);
  setItemDelegate(new LineDelegate(this));
  setFont(WindowFont());
  setFrameStyle(static_cast<int>(Box) | static_cast<int>(Plain));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTabKeyNavigation(false);
  QPalette colours = palette();
  colours.setColor(QPalette::Base, Colours::Navy);
  colours.setColor(QPalette::Text, Colours::White);
  colours.setColor(QPalette::Highlight, Colours::Gold);
  colours.setColor(QPalette::HighlightedText, Colours::Navy);
  setPalette(colours);
  verticalScrollBar()->setPalette(QPalette(Colours::Slate, Colours::Navy));
  // The context menu of a scroll bar runs an event loop of Qt's own, and the game would stand
  // still.
  verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
}

// Draws the frame; the lines are painted by the viewport inside it.
bool PlayedList::event(QEvent* event) {
  if (event->type() != QEvent::Paint) return QListView::event(event);
  QPainter painter(this);
  DrawEdges(painter, rect(), hasFocus() ? Colours::Gold : Colours::EdgeGrey);
  return true;
}

// A player who comes here by key starts at the newest line.
void PlayedList::focusInEvent(QFocusEvent* event) {
  if (!currentIndex().isValid() && event->reason() != Qt::MouseFocusReason)
    setCurrentIndex(lines_->index(lines_->rowCount({}) - 1));
  QListView::focusInEvent(event);
  update();
}

// Only while it has the focus does the list mark a line.
void PlayedList::focusOutEvent(QFocusEvent* event) {
  QListView::focusOutEvent(event);
  const bool comesBack =
      event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (!comesBack) selectionModel()->clear();
  update();
}

void PlayedList::ShowModel(const ListBox& list) {
  lines_->Follow(list);
  scrollToBottom();
}

}  // namespace Parlino
