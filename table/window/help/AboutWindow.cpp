#include "table/window/help/AboutWindow.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "table/TableEvents.h"
#include "table/window/desktop/WindowPlace.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Edges.h"
#include "table/window/painting/FlatButton.h"
#include "table/window/painting/FrameBox.h"
#include "table/window/painting/Named.h"
#include "table/window/painting/Pictures.h"

namespace Parlino {

// Centred text inside a thin border, broken into lines of about the same length.
class BorderedLabel : public QLabel {
 public:
  BorderedLabel(const QRect& place, const QFont& font, QWidget* parent) : QLabel(parent) {
    setGeometry(place);
    setFont(font);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
  }

  void ShowCaption(const std::string& caption) {
    setText(ToText(caption));
    int margin = 4;
    const int height = HeightWithin(margin);
    while (HeightWithin(margin + 1) == height && 4 * margin < width()) ++margin;
    setContentsMargins(margin, 0, margin, 0);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    QPainter painter(this);
    DrawEdges(painter, rect(), Colours::EdgeGrey);
  }

 private:
  [[nodiscard]] int HeightWithin(int margin) const {
    const QRect room(0, 0, width() - 2 * margin, height());
    return fontMetrics().boundingRect(room, Qt::TextWordWrap, text()).height();
  }
};

namespace {

constexpr QSize DesignSize(382, 237);
constexpr double TextPoints = 10.5;

// The icon, set slightly into the window around it.
class IconBox : public QWidget {
 public:
  IconBox(const QRect& place, QWidget* parent) : QWidget(parent) { setGeometry(place); }

 protected:
  void paintEvent(QPaintEvent*) override {
    constexpr int size = 32;
    QPainter painter(this);
    DrawEdges(painter, rect(), Colours::EdgeGrey, Colours::White);
    DrawEdges(painter, rect().adjusted(1, 1, -1, -1), Colours::Black, Colours::LightGrey);
    QPixmap icon = IconPicture(qCeil(size * devicePixelRatioF()));
    icon.setDevicePixelRatio(devicePixelRatioF());
    painter.drawPixmap(2, 2, icon);
  }
};

void AddEtchedLine(QWidget* parent) {
  const int top = ToPixels(2280);
  Named(new FilledBox(Colours::White, parent), "Line1(1)")
      ->setGeometry(0, top, DesignSize.width(), 2);
  Named(new FilledBox(Colours::EdgeGrey, parent), "Line1(0)")
      ->setGeometry(0, top - 1, DesignSize.width(), 1);
}

QPushButton* AddButton(const char* name, const char* caption, const QRect& place, QWidget* parent) {
  constexpr double points = 9;
  auto* button = Named(new FlatButton(caption, parent), name);
  button->setGeometry(place);
  button->setFont(TimesBold(points, Slope::Italic));
  button->setPalette(LightColours(Colours::Grey, Colours::LightGreen));
  return button;
}

}  // namespace

AboutWindow::AboutWindow(PendingEvents& pending, QWidget* table)
    : QDialog(table, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint |
                         Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                         Qt::WindowCloseButtonHint),
      pending_(pending) {
  setObjectName("frmAbout");
  setPalette(LightColours(Colours::Grey));
  setFont(TimesBold(8.25));
  Named(new IconBox(ToPixels(240, 240, 540, 540), this), "picIcon")->setAccessibleName("Icon");
  const auto label = [this](const char* name, const QRect& place, double points) {
    return Named(new BorderedLabel(place, TimesBold(points), this), name);
  };
  title_ = label("lblTitle", ToPixels(1080, 120, 3975, 495), 12);
  version_ = label("lblVersion", ToPixels(1080, 840, 3975, 375), TextPoints);
  description_ = label("lblDescription", ToPixels(840, 1440, 4335, 615), TextPoints);
  AddEtchedLine(this);
  disclaimer_ = label("lblDisclaimer", ToPixels(120, 2640, 3975, 855), TextPoints);
  ok_ = AddButton("cmdOK", "&OK", ToPixels(4200, 2640, 1335, 375), this);
  auto* info = AddButton("cmdSysInfo", "&System Info...", ToPixels(4200, 3120, 1335, 375), this);
  ok_->setDefault(true);
  connect(ok_, &QPushButton::clicked, this, &AboutWindow::reject);
  connect(info, &QPushButton::clicked,
          [&pending] { pending.Append({[](int) { return ClickSysInfo(); }}); });
  PutInMiddleOfScreen(*this, DesignSize, *table->screen());
  setFixedSize(DesignSize);
}

void AboutWindow::ShowModel(const AboutWindowView& about) {
  if (showings_ == about.Showings) return;
  showings_ = about.Showings;
  setWindowTitle(ToText(about.Caption));
  title_->ShowCaption(about.lblTitle);
  version_->ShowCaption(about.lblVersion);
  description_->ShowCaption(about.lblDescription);
  disclaimer_->ShowCaption(about.lblDisclaimer);
  ok_->setFocus();
  ShowInFront(*this);
}

void AboutWindow::reject() {
  pending_.Append({[](int) { return CloseAbout(); }});
}

void AboutWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  reject();
}

}  // namespace Parlino
