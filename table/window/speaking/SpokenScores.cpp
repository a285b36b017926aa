#include "table/window/speaking/SpokenScores.h"

#include <QAccessibleTableCellInterface>
#include <QAccessibleTableInterface>
#include <QAccessibleWidget>

#include "table/window/speaking/ScoreFrame.h"

namespace Parlino {
namespace {

using Voices = QList<QAccessibleInterface*>;

QAccessibleInterface* VoiceOf(QObject* object) {
  return QAccessible::queryAccessibleInterface(object);
}

class SpokenHeader : public QAccessibleWidget {
 public:
  explicit SpokenHeader(ScoreCell* cell)
      : QAccessibleWidget(cell,
                          cell->row == 0 ? QAccessible::ColumnHeader : QAccessible::RowHeader),
        cell_(*cell) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? cell_.text() : QAccessibleWidget::text(kind);
  }

 private:
  const ScoreCell& cell_;
};

// Tools count rows and columns from 0, not including the headers.
class SpokenCount : public QAccessibleWidget, public QAccessibleTableCellInterface {
 public:
  explicit SpokenCount(ScoreCell* cell)
      : QAccessibleWidget(cell, QAccessible::Cell),
        cell_(*cell),
        frame_(dynamic_cast<ScoreFrame*>(cell->parentWidget())) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
    return frame_->Cell(cell_.row, 0)->text() + " " +
           frame_->Cell(0, cell_.column)->text().toLower() + " " + cell_.text();
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableCellInterface)
      return static_cast<QAccessibleTableCellInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  [[nodiscard]] bool isSelected() const override { return false; }
  [[nodiscard]] int rowIndex() const override { return cell_.row - 1; }
  [[nodiscard]] int columnIndex() const override { return cell_.column - 1; }
  [[nodiscard]] int rowExtent() const override { return 1; }
  [[nodiscard]] int columnExtent() const override { return 1; }
  [[nodiscard]] Voices rowHeaderCells() const override {
    return {VoiceOf(frame_->Cell(cell_.row, 0))};
  }
  [[nodiscard]] Voices columnHeaderCells() const override {
    return {VoiceOf(frame_->Cell(0, cell_.column))};
  }
  [[nodiscard]] QAccessibleInterface* table() const override { return VoiceOf(frame_); }

 private:
  const ScoreCell& cell_;
  ScoreFrame* frame_;
};

class SpokenScores : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit SpokenScores(ScoreFrame* frame)
      : QAccessibleWidget(frame, QAccessible::Table), frame_(*frame) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? frame_.title() : QAccessibleWidget::text(kind);
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  // The lines between the rows are hidden from tools.
  [[nodiscard]] int childCount() const override { return static_cast<int>(Children().size()); }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    return VoiceOf(Children().value(index));
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
    return child == nullptr ? -1 : static_cast<int>(Children().indexOf(child->object()));
  }

  [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override {
    if (row < 0 || row >= ScoreFrame::Rows || column < 0 || column >= ScoreFrame::Columns)
      return nullptr;
    return VoiceOf(frame_.Cell(row + 1, column + 1));
  }
  [[nodiscard]] int rowCount() const override { return ScoreFrame::Rows; }
  [[nodiscard]] int columnCount() const override { return ScoreFrame::Columns; }
  [[nodiscard]] QString rowDescription(int row) const override { return HeaderText(row + 1, 0); }
  [[nodiscard]] QString columnDescription(int column) const override {
    return HeaderText(0, column + 1);
  }
  [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

  // Nothing in it can be selected.
  [[nodiscard]] int selectedCellCount() const override { return 0; }
  [[nodiscard]] int selectedColumnCount() const override { return 0; }
  [[nodiscard]] int selectedRowCount() const override { return 0; }
  [[nodiscard]] Voices selectedCells() const override { return {}; }
  [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
  [[nodiscard]] QList<int> selectedRows() const override { return {}; }
  [[nodiscard]] bool isColumnSelected(int) const override { return false; }
  [[nodiscard]] bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }

 private:
  // The counts row by row, as tools number the cells of a table, and then the headers.
  [[nodiscard]] QList<QObject*> Children() const {
    QList<QObject*> cells;
    for (int row = 1; row <= ScoreFrame::Rows; ++row)
      for (int column = 1; column <= ScoreFrame::Columns; ++column)
        cells.append(frame_.Cell(row, column));
    for (int column = 1; column <= ScoreFrame::Columns; ++column)
      cells.append(frame_.Cell(0, column));
    for (int row = 1; row <= ScoreFrame::Rows; ++row) cells.append(frame_.Cell(row, 0));
    return cells;
  }

  [[nodiscard]] QString HeaderText(int row, int column) const {
    const bool isThere = row >= 0 && row <= ScoreFrame::Rows && column >= 0 &&
                         column <= ScoreFrame::Columns && row + column > 0;
    return isThere ? frame_.Cell(row, column)->text() : QString();
  }

  const ScoreFrame& frame_;
};

}  // namespace

QAccessibleInterface* FindVoiceOfScores(QWidget* widget) {
  if (auto* frame = dynamic_cast<ScoreFrame*>(widget)) return new SpokenScores(frame);
  auto* cell = dynamic_cast<ScoreCell*>(widget);
  if (cell == nullptr) return nullptr;
  if (cell->row == 0 || cell->column == 0) return new SpokenHeader(cell);
  return new SpokenCount(cell);
}

}  // namespace Parlino
