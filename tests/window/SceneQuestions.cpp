// What a scene asks: what is not told after each step.
#include <set>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QMetaEnum>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextTable>
#include <QToolTip>

#include "PersonAtWindow.h"
#include "Pictures.h"
#include "SceneSteps.h"
#include "table/window/painting/Design.h"

namespace Parlino {
namespace {

void TellTip(Words& words) {
  words.Tell(QToolTip::isVisible() ? "a tip is open: " + QToolTip::text() : "no tip is open");
}

void TellTipThatGoes(Words& words) {
  constexpr int lessThanATipStays = 5'000;
  const bool goes = QTest::qWaitFor([] { return !QToolTip::isVisible(); }, lessThanATipStays);
  words.Tell(goes ? "the tip goes" : "the tip stays");
}

void TellWindows(Words& words) {
  std::set<QString> names;
  for (const QWidget* widget : QApplication::allWidgets())
    if (widget->windowHandle() != nullptr && widget->isVisible()) names.insert(NameOfPart(*widget));
  for (const QString& name : names) words.Tell("a window: " + name);
}

void TellBarsWithMenus(Words& words) {
  for (const QWidget* window : QApplication::topLevelWidgets())
    for (const auto* bar : window->findChildren<QScrollBar*>())
      if (bar->isVisible() && bar->contextMenuPolicy() != Qt::NoContextMenu)
        words.Tell("a bar has a menu");
}

void TellLayers(Words& words) {
  std::map<qsizetype, QString> layers;
  while (!words.IsEmpty()) {
    QWidget& part = words.Part();
    layers[part.parentWidget()->children().indexOf(&part)] = NameOfPart(part);
  }
  QStringList names;
  for (const auto& [layer, name] : layers) names << name;
  words.Tell(names.join(" below "));
}

void TellMenu(Words& words, const QString& indent, const QList<QAction*>& entries) {
  for (const QAction* entry : entries) {
    words.Tell(indent + (entry->text() + "  " + entry->shortcut().toString()).trimmed());
    if (entry->menu() != nullptr) TellMenu(words, indent + "  ", entry->menu()->actions());
  }
}

// Qt's own objects that only contain others say nothing.
QString VoiceText(Voice voice) {
  const QString role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(voice->role());
  const QString more = voice->text(QAccessible::Description);
  const QAccessible::State state = voice->state();
  if (NameOf(voice).isEmpty() && more.isEmpty() && role != "Button") return {};
  return role + " '" + NameOf(voice) + "'" +
         (state.focused     ? " (focused)"
          : state.focusable ? " (focusable)"
                            : "") +
         (state.modal ? " (modal)" : "") + (more.isEmpty() ? more : ": " + more);
}

void TellVoices(Words& words) {
  const Voice window = VoiceOf(words.Part().objectName());
  QStringList lines{VoiceText(window)};
  for (const Voice voice : VoicesIn(window)) lines << VoiceText(voice);
  lines.removeAll({});
  if (lines.removeDuplicates() > 0) words.Tell("something is said twice");
  words.player.TellVoices(lines);
}

void TellScores(Words& words) {
  QAccessibleTableInterface& table = *VoiceOf("FramScores")->tableInterface();
  for (int row = -1; row <= table.rowCount(); ++row) {
    for (int column = -1; column <= table.columnCount(); ++column) {
      const Voice voice = table.cellAt(row, column);
      if (voice == nullptr) continue;
      const auto& cell = *voice->tableCellInterface();
      words.Tell(QString("row %1, column %2, child %3: ")
                     .arg(cell.rowIndex())
                     .arg(cell.columnIndex())
                     .arg(cell.table()->indexOfChild(voice)) +
                 QStringList({NameOf(voice), NameOf(cell.rowHeaderCells().value(0)),
                              NameOf(cell.columnHeaderCells().value(0)), table.rowDescription(row),
                              table.columnDescription(column)})
                     .join(" | "));
    }
  }
}

// What is not as usual.
QString FormatText(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  const QTextCharFormat letters = block.begin().fragment().charFormat();
  QStringList text;
  const QStringList families = letters.fontFamilies().toStringList();
  if (families != TextFamilies()) text << families.join("/");
  const auto add = [&text](const char* name, double value, double usual = 0) {
    if (value != usual) text << QString("%1 %2").arg(name).arg(value);
  };
  add("size", letters.font().pixelSize());
  add("weight", letters.fontWeight(), QFont::Normal);
  add("left", format.leftMargin());
  add("first", format.textIndent());
  add("right", format.rightMargin());
  add("above", format.topMargin());
  add("below", format.bottomMargin());
  add("lines", format.lineHeight(), 112);
  add("aligned", format.alignment().toInt(), Qt::AlignLeft);
  add("heading", format.headingLevel());
  for (const QTextOption::Tab& tab : format.tabPositions()) add("tab", tab.position, -1);
  if (letters.foreground().style() != Qt::NoBrush) text << letters.foreground().color().name();
  if (letters.fontItalic()) text << "italic";
  if (letters.fontUnderline()) text << "underlined";
  return text.join(", ");
}

QString TableText(const QTextTable& table) {
  const QTextTableFormat format = table.format();
  QStringList text{"table", format.border() > 0 ? "with lines" : "without lines"};
  for (const double number : {format.width().rawValue(), format.leftMargin(), format.topMargin(),
                              format.bottomMargin(), format.cellPadding()})
    text << QString::number(number, 'f', 1);
  text << "columns";
  for (const QTextLength& width : format.columnWidthConstraints())
    text << QString::number(width.rawValue(), 'f', 1);
  return text.join(' ');
}

// The help as Qt lays it out.
void TellBlocks(Words& words) {
  const QTextDocument& help = *dynamic_cast<QTextEdit&>(WindowGame::Find("rtbHelp")).document();
  constexpr int mostTold = 12;
  words.Tell(QString("%1 paragraphs").arg(help.blockCount()));
  for (QTextBlock block = help.begin(); block.isValid() && block.blockNumber() < mostTold;
       block = block.next()) {
    QString text = block.text().replace(QChar::LineSeparator, "\\n").replace('\t', "\\t");
    if (const QTextTable* table = QTextCursor(block).currentTable()) {
      const QTextTableCell cell = table->cellAt(block.position());
      const QBrush ground = cell.format().background();
      text += QString(" [row %1, column %2, wide %3%4]")
                  .arg(cell.row())
                  .arg(cell.column())
                  .arg(cell.columnSpan())
                  .arg(ground.style() == Qt::NoBrush ? "" : ", on " + ground.color().name());
      if (cell.row() + cell.column() == 0) words.Tell(TableText(*table));
    }
    words.Tell('"' + text + "\": " + FormatText(block));
  }
}

}  // namespace

const Steps Questions = {
    {"picture",
     [](Words& words) {
       QWidget& part = words.Part();
       ExpectAsKept(part, words.Next());
     }},
    {"places?",
     [](Words& words) {
       for (const QString& line : TellPlaces(words.Part())) words.Tell(line);
     }},
    {"tip?", TellTip},
    {"tip-goes?", TellTipThatGoes},
    {"windows?", TellWindows},
    {"bar-menus?", TellBarsWithMenus},
    {"layers?", TellLayers},
    {"menus?",
     [](Words& words) {
       TellMenu(words, "", WindowGame::Find("FrmMain").findChild<QMenuBar*>()->actions());
     }},
    {"voices?", TellVoices},
    {"place-for-tools?",
     [](Words& words) {
       const Voice voice = VoiceOf(words.Part().objectName());
       words.Tell(voice->rect().isEmpty() ? "it has none" : "it has one");
     }},
    {"scores?", TellScores},
    {"blocks?", TellBlocks},
    {"clipboard?", [](Words& words) { words.Tell(QApplication::clipboard()->text()); }},
};

}  // namespace Parlino
