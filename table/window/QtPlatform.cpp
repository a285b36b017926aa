#include "table/window/QtPlatform.h"

#include <algorithm>
#include <cerrno>
#include <chrono>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTime>
#include <QWindow>

#include "engine/state/Errors.h"
#include "table/CardDisplay.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Pictures.h"
#include "table/window/painting/WrappedText.h"

namespace Parlino {
namespace {

// An open menu would keep the mouse and the keys from the box in front of it.
void CloseMenus() {
  while (QWidget* menu = QApplication::activePopupWidget()) menu->close();
}

// The window that was active, be it the table or another, gets the keys again after the box.
void PutBefore(const QWidget* window, QWidget& box) {
  // The box becomes a window of the desktop, which is told. Without the attribute the menu bar and
  // the table would become such windows too, and leave lines of moving cards behind them at scales
  // that are not whole.
  QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
  box.winId();
  if (window != nullptr) box.windowHandle()->setTransientParent(window->windowHandle());
}

}  // namespace

QtPlatform::QtPlatform(const std::filesystem::path& folder)
    : files_(folder), sound_(folder), table_(keyUse_, pending_), helpAndAbout_(pending_, table_) {}

void QtPlatform::ProcessEvents(std::uint32_t atMostMs) {
  ShowModel(atMostMs);
  if (pending_.IsEmpty()) WaitForQt(std::min(atMostMs, table_.Motion().MsToNextFrame(Ticks())));
  FirePendingEvents();
}

void QtPlatform::ShowModel(std::uint32_t pauseMs) {
  table_.ShowModel(Ticks(), pauseMs);
  helpAndAbout_.ShowModel();
  if (message_ == nullptr && MFormDeluxe.Visible)
    message_ = std::make_unique<MessageWindow>(keyUse_, pending_, &table_);
  if (message_ == nullptr) return;
  if (MFormDeluxe.Visible && !message_->isVisible()) MakeRoomForMessage();
  message_->ShowModel(MFormDeluxe);
}

// It is used again and again, and may still belong to a window that has gone.
void QtPlatform::MakeRoomForMessage() {
  CloseMenus();
  const QWidget* active = QApplication::activeWindow();
  const bool isThere = active != nullptr && active->isVisible();
  PutBefore(isThere ? active : &table_, *message_);
}

void QtPlatform::WaitForQt(std::uint32_t atMostMs) {
  pump_.Wait(atMostMs);
  if (pump_.EndIsWanted()) UnloadAllForms();
}

// An event is taken off before it is fired: its handler may process events in turn, or never
// return here.
void QtPlatform::FirePendingEvents() {
  while (const auto event = pending_.TakeFirst()) event->door(event->number);
}

std::uint32_t QtPlatform::Ticks() {
  using std::chrono::milliseconds;
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(std::chrono::duration_cast<milliseconds>(now).count());
}

double QtPlatform::ClockSeconds() {
  constexpr double msInSecond = 1000;
  return QTime::currentTime().msecsSinceStartOfDay() / msInSecond;
}

// The first sound of a deal loads the library or looks for a device, which takes longer than a
// frame. The player sees before that what the key or the click has done.
void QtPlatform::StartSound(std::string_view fileName) {
  if (fileName == ShuffleSound) {
    ShowModel(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
  }
  sound_.Start(fileName);
}

// What was clicked before the box opened was meant for the table as it was; it is dropped.
void QtPlatform::ShowAndWait(QDialog& box) {
  CloseMenus();
  GiveWindowsIcon();
  for (QAbstractButton* button : box.findChildren<QAbstractButton*>()) button->setIcon({});
  box.setWindowModality(Qt::ApplicationModal);
  PutBefore(QApplication::activeWindow(), box);
  box.show();
  while (box.isVisible()) {
    ShowModel(Forever);
    WaitForQt(table_.Motion().MsToNextFrame(Ticks()));
  }
  pending_.Clear();
}

QWidget* QtPlatform::OwnerOfBoxes() {
  return table_.isVisible() ? &table_ : nullptr;
}

std::string QtPlatform::InputBox(std::string_view prompt, std::string_view title,
                                 std::string_view defaultAnswer) {
  constexpr int widthOfTitle = 360;
  QInputDialog box(OwnerOfBoxes());
  box.setWindowTitle(ToText(title));
  box.setLabelText(ToText(prompt));
  box.setTextValue(ToText(defaultAnswer));
  box.setOkButtonText("OK");  // makes the buttons, which would otherwise come with the showing
  box.setCancelButtonText("Cancel");
  box.findChild<QLineEdit*>()->setMinimumWidth(widthOfTitle);
  ShowAndWait(box);
  return box.result() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

void QtPlatform::MsgBox(std::string_view text, std::string_view title, bool critical) {
  QMessageBox box(critical ? QMessageBox::Critical : QMessageBox::NoIcon, ToText(title),
                  ToText(text), QMessageBox::Ok, OwnerOfBoxes());
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Ok)->setText("OK");
  ShowAndWait(box);
}

// A prompt that would push the buttons off the screen ends before that, cut short.
int QtPlatform::PromptHeight(std::string_view prompt, int width) {
  constexpr int pixelsAroundPrompt = 120;
  const QFont font = MessageFont();
  const int mostLines = LinesThatFit(ToPixels(Screen().height) - pixelsAroundPrompt, font);
  const auto lines = WrapText(ToText(prompt), font, ToPixels(width), mostLines);
  return TextHeight(lines.size(), font) * TwipsInPixel;
}

ScreenSize QtPlatform::Screen() {
  const QSize size = table_.screen()->size();
  return {size.width() * TwipsInPixel, size.height() * TwipsInPixel};
}

void QtPlatform::CloseWindow(WindowName window) {
  if (window == WindowName::FrmMain) {
    CloseMenus();
    table_.hide();
  }
  if (window == WindowName::MFormDeluxe) message_.reset();
  helpAndAbout_.Close(window);
}

std::string QtPlatform::ReadFile(std::string_view fileName) {
  return files_.Read(fileName);
}

std::string QtPlatform::ReplaceFile(std::string_view fileName, std::string_view content) {
  return files_.Replace(fileName, content);
}

std::string QtPlatform::SetFileAside(std::string_view fileName) {
  return files_.SetAside(fileName);
}

bool QtPlatform::FileExists(std::string_view fileName) {
  return files_.Exists(fileName);
}

std::string QtPlatform::ProgramFolder() {
  return (std::filesystem::absolute(files_.Folder()) / "").string();
}

std::string QtPlatform::ReadDocument(std::string_view fileName) {
  return files_.Read(fileName, LongestDocument);
}

void QtPlatform::StartProgram(std::string_view path) {
  if (!QProcess::startDetached(ToText(path), {}))
    throw GameError(ENOENT, JoinText({path, " cannot be started"}));
}

}  // namespace Parlino
