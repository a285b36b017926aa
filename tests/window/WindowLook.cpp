#include "WindowLook.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QWindow>

#include "WindowGame.h"
#include "headless/CardText.h"
#include "table/TableView.h"
#include "table/window/ScrolledTable.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Named.h"
#include "table/window/painting/Pictures.h"
#include "table/window/parts/BidFace.h"
#include "table/window/parts/PictureView.h"

namespace Parlino {
namespace {

QString Quoted(QString text) {
  constexpr int longest = 70;
  if (text.size() > longest) text = text.left(longest / 2) + "..." + text.right(longest / 2);
  return text.isEmpty() ? text : '"' + text.replace('\n', "\\n") + '"';
}

QString PlaceText(QPoint place) {
  return QString("%1,%2").arg(place.x()).arg(place.y());
}

QString SizeText(QSize size) {
  return QString("%1x%2").arg(size.width()).arg(size.height());
}

bool StartsWithAny(const QString& name, std::initializer_list<const char*> beginnings) {
  return std::ranges::any_of(beginnings, [&](const char* begin) { return name.startsWith(begin); });
}

QString TellPointer(const QWidget& widget) {
  if (!widget.testAttribute(Qt::WA_SetCursor)) return {};
  const QImage picture = widget.cursor().pixmap().toImage();
  for (const auto& [number, name] :
       {std::pair(PicturePointerPlay, "play"), {PicturePointerWait, "wait"}})
    if (picture == CardPicture(number, widget.devicePixelRatioF()).toImage())
      return name + QString(" by its ") + PlaceText(widget.cursor().hotSpot());
  return "of another shape";
}

QString TellPicture(const PictureView& view) {
  if (view.Picture() == PictureBackUpright) return "back";
  if (view.Picture() == PictureBackSideways) return "back sideways";
  return QString::number(view.Picture());
}

QString TellBar(const QScrollBar& bar) {
  if (!bar.isVisible() || bar.maximum() == 0) return {};
  if (bar.value() == 0) return "at the start";
  return bar.value() == bar.maximum() ? "at the end" : "in between";
}

// How a part that the game draws itself looks: marked for the keys, pushed in, lit by the mouse.
QString TellDrawing(const QWidget& widget) {
  const auto at = [&widget, shot = ShotOf(*widget.window())](int x, int y) {
    const bool isSeen = widget.visibleRegion().contains(QPoint(x, y));
    return isSeen ? shot.pixelColor(widget.mapTo(widget.window(), QPoint(x, y))) : QColor();
  };
  if (widget.objectName() == "FocusMark" && at(8, widget.height() / 2) != Colours::Gold)
    return "at rest";
  if (widget.objectName() == "FocusMark")
    return at(widget.width() / 2, 3) == Colours::Gold ? "pointing" : "plain";
  if (dynamic_cast<const BidFace*>(&widget) == nullptr || !at(5, 5).isValid()) return {};
  QStringList look;
  const int light = at(5, 5).lightness() - Colours::Olive.lightness();
  if (at(1, 1) == Colours::White) look << "marked";
  if (light != 0) look << (light < 0 ? "pushed in" : "lit");
  return look.join(" and ");
}

PartLook LookAtList(const QListView& list) {
  const QAbstractItemModel& model = *list.model();
  const QModelIndex last = model.index(model.rowCount() - 1, 0);
  const bool isSeen = list.visualRect(last).bottom() <= list.viewport()->height();
  const bool isChosen = list.selectionModel()->hasSelection();
  return {{"lines", QString::number(model.rowCount())},
          {"last",
           last.isValid() ? Quoted(last.data().toString()) + (isSeen ? "" : " out of sight") : ""},
          {"chosen", isChosen ? Quoted(list.currentIndex().data().toString()) : ""}};
}

PartLook LookAtHelp(const QWidget& window) {
  const auto& help = *window.findChild<QTextEdit*>();
  const auto& words = *window.findChild<QLineEdit*>();
  const QColor ground = words.palette().base().color();
  const QTextBlock first = help.document()->firstBlock();
  const QTextBlock top = help.cursorForPosition({30, 0}).block();
  const QTextCursor chosen = help.textCursor();
  const bool isFinding = words.isVisible();
  return {{"title", Quoted(window.windowTitle())},
          {"size", SizeText(window.size())},
          {"text", Quoted(first.text())},
          {"letters", QString::number(first.begin().fragment().charFormat().font().pixelSize())},
          {"page", TellBar(*help.verticalScrollBar())},
          {"page from", help.verticalScrollBar()->value() == 0 ? "" : Quoted(top.text())},
          {"chosen", Quoted(chosen.selectedText())},
          {"chosen in", chosen.hasSelection() ? Quoted(chosen.block().text()) : ""},
          {"find", isFinding ? '"' + words.text() + '"' : ""},
          {"find on", isFinding && ground != Colours::White ? ground.name() : ""},
          {"find chosen", Quoted(words.selectedText())},
          {"note", Quoted(window.findChild<QWidget*>("FindNote")->property("text").toString())}};
}

PartLook LookAtPart(const QWidget& widget) {
  if (const auto* list = qobject_cast<const QListView*>(&widget)) return LookAtList(*list);
  // Their places, texts and tips never change; they stand in pictures and among the tips.
  if (dynamic_cast<const BidFace*>(&widget) != nullptr) return {{"drawn", TellDrawing(widget)}};
  PartLook look{
      {"tip", Quoted(widget.toolTip())},
      {"text", Quoted(widget.property("text").toString() + widget.property("title").toString())},
      {"drawn", TellDrawing(widget)}};
  if (widget.isWindow() || widget.objectName() == "Table") return look;
  look["at"] = PlaceText(widget.pos());
  const auto* view = dynamic_cast<const PictureView*>(&widget);
  const bool sizesItself = StartsWithAny(widget.objectName(), {"LblName", "LblTrumps"});
  if (!sizesItself && (view == nullptr || widget.size() != PictureSize(PictureBackUpright)))
    look["size"] = SizeText(widget.size());
  if (view == nullptr) return look;
  look["picture"] = TellPicture(*view);
  look["pointer"] = TellPointer(widget);
  look["under"] = widget.underMouse() ? "the mouse" : "";
  return look;
}

QString OwnerOf(const QWidget& window) {
  const QWindow* owner = window.windowHandle()->transientParent();
  for (const QWidget* other : QApplication::topLevelWidgets())
    if (owner != nullptr && other->windowHandle() == owner) return other->objectName();
  return {};
}

PartLook LookAtBox(const QDialog& box) {
  PartLook look{{"title", Quoted(box.windowTitle())}, {"belongs to", OwnerOf(box)}};
  if (const auto* input = qobject_cast<const QInputDialog*>(&box)) {
    look["text"] = Quoted(input->labelText());
    look["answer"] = Quoted(input->textValue());
    look["chosen"] = Quoted(input->findChild<QLineEdit*>()->selectedText());
  }
  if (const auto* message = qobject_cast<const QMessageBox*>(&box)) {
    look["text"] =
        Quoted(message->text()) + (message->textFormat() == Qt::PlainText ? "" : " as markup");
    look["sign"] = message->icon() == QMessageBox::Critical ? "of trouble" : "";
  }
  QStringList buttons;
  for (const auto* button : box.findChildren<QAbstractButton*>())
    buttons << button->text() + (button->icon().isNull() ? "" : " with a picture");
  buttons.sort();
  look["buttons"] = buttons.join(", ");
  return look;
}

// The message dialog: its title, its prompt and its answers.
PartLook LookAtMessage(const QWidget& dialog) {
  const QImage shot = ShotOf(dialog);
  const auto textOf = [&dialog](const QString& name) {
    return dialog.findChild<QWidget*>(name)->property("text").toString();
  };
  QStringList answers;
  for (int answer = 0; answer < 3; ++answer) {
    const QWidget& face = *dialog.findChild<QWidget*>(MemberName("Pic1", answer));
    if (!face.isVisible()) continue;
    answers << textOf(MemberName("Label1", answer));
    if (shot.pixelColor(face.pos() - QPoint(1, 1)) == Colours::Gold) answers.last() += " (marked)";
    if (shot.pixelColor(face.pos()) == Colours::EdgeGrey) answers.last() += " (pushed in)";
  }
  return {{"title", Quoted(dialog.windowTitle())},
          {"heading", Quoted(textOf("Label3"))},
          {"text", Quoted(textOf("Label2"))},
          {"answers", answers.join(" / ")},
          {"tip", Quoted(dialog.findChild<QWidget*>("Label2")->toolTip()).left(40)},
          {"belongs to", OwnerOf(dialog)}};
}

bool HasNoName(const QWidget& widget) {
  return widget.objectName().isEmpty() || StartsWithAny(widget.objectName(), {"qt_", "qtooltip"});
}

void LookAtWindow(const QWidget& window, WindowLook& look) {
  const auto* dialog = qobject_cast<const QDialog*>(&window);
  if (dialog != nullptr && window.objectName() != "frmAbout") {
    look["box"] = LookAtBox(*dialog);
    return;
  }
  if (window.objectName() == "MFormDeluxe")
    return look["MFormDeluxe"] = LookAtMessage(window), void();
  if (window.objectName() == "frmHelp") return look["frmHelp"] = LookAtHelp(window), void();
  look[window.objectName()] = {{"title", Quoted(window.windowTitle())}};
  if (const auto* room = window.findChild<ScrolledTable*>())
    look["FrmMain"].merge(PartLook{{"scrolled down", TellBar(*room->verticalScrollBar())},
                                   {"scrolled sideways", TellBar(*room->horizontalScrollBar())}});
  const auto* more = window.findChild<QWidget*>("qt_menubar_ext_button");
  if (more != nullptr && more->isVisible()) look["FrmMain"]["menus"] = "behind a button";
  if (window.objectName() == "frmAbout") return;
  for (const QWidget* widget : window.findChildren<QWidget*>())
    if (widget->window() == &window && widget->isVisible() && !HasNoName(*widget))
      look[NameOfPart(*widget)] = LookAtPart(*widget);
}

QString TellPart(const PartLook& before, const PartLook& now) {
  QStringList words;
  for (const auto& [kind, value] : now) {
    const auto known = before.find(kind);
    const QString was = known == before.end() ? QString() : known->second;
    if (was != value) words << (value.isEmpty() ? "no " + kind : kind + " " + value);
  }
  return words.join(", ");
}

QString TellChange(const PartLook* before, const PartLook* now) {
  if (now == nullptr) return "gone";
  if (before != nullptr) return TellPart(*before, *now);
  const QString rest = TellPart({}, *now);
  return rest.isEmpty() ? "there" : "there, " + rest;
}

const PartLook* PartIn(const WindowLook& look, const QString& name) {
  const auto found = look.find(name);
  return found == look.end() ? nullptr : &found->second;
}

}  // namespace

// The members of an array by their numbers.
bool ByName::operator()(const QString& one, const QString& other) const {
  const auto key = [](const QString& name) {
    const qsizetype number = name.indexOf('(') + 1;
    return std::pair(name.left(number), name.mid(number).chopped(number > 0).toInt());
  };
  return key(one) < key(other) || (key(one) == key(other) && one < other);
}

QString NameOfPart(const QWidget& widget) {
  const QString name = widget.objectName();
  if (name.isEmpty()) return QString("a ") + widget.metaObject()->className();
  if (!name.startsWith("Cds(")) return name;
  return QString::fromStdString(CardText(name.mid(4).chopped(1).toInt()));
}

QStringList TellPlaces(const QWidget& window) {
  QStringList lines;
  for (const QWidget* widget : window.findChildren<QWidget*>())
    if (widget->isVisible() && !HasNoName(*widget))
      lines << NameOfPart(*widget) + ": at " + PlaceText(widget->pos()) + ", size " +
                   SizeText(widget->size());
  return lines;
}

QImage ShotOf(const QWidget& widget) {
  const QRect place(widget.mapTo(widget.window(), QPoint()), widget.size());
  QScreen& screen = *widget.screen();
  return screen
      .grabWindow(widget.window()->winId(), place.x(), place.y(), place.width(), place.height())
      .toImage()
      .convertToFormat(QImage::Format_RGB32);
}

WindowLook LookAtWindows() {
  WindowLook look;
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->objectName() != "qtooltip_label")
      LookAtWindow(*window, look);
  const QWidget* modal = QApplication::activeModalWidget();
  const QWidget* active = modal != nullptr ? modal : QApplication::activeWindow();
  const QWidget* focus = active == nullptr ? nullptr : active->focusWidget();
  const bool isHidden = focus != nullptr && active->isAncestorOf(focus) &&
                        focus->visibleRegion().boundingRect() != focus->rect() &&
                        focus->objectName() != "Table";
  look["focus"] = {{"in", active == nullptr ? "no window" : NameOfPart(*active)},
                   {"on", (focus == nullptr ? "nothing" : NameOfPart(*focus)) +
                              (isHidden ? " (not seen whole)" : "")}};
  return look;
}

QStringList TellChanges(const WindowLook& before, const WindowLook& now) {
  WindowLook both = now;
  both.insert(before.begin(), before.end());
  QStringList lines, names;
  QString textBefore;
  const auto endLine = [&] {
    if (names.size() > 3) names = {names.first(), "to", names.last()};
    if (!textBefore.isEmpty()) lines << names.join(" ") + ": " + textBefore;
    names.clear();
  };
  for (const auto& [name, part] : both) {
    const QString text = TellChange(PartIn(before, name), PartIn(now, name));
    if (text.isEmpty()) continue;
    if (text != textBefore) endLine();
    textBefore = text;
    names << name;
  }
  endLine();
  return lines;
}

}  // namespace Parlino
