#include "table/window/TableWindow.h"

#include <cmath>

#include <QCloseEvent>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/Platform.h"
#include "table/TableEvents.h"
#include "table/window/ScrolledTable.h"
#include "table/window/desktop/WindowPlace.h"
#include "table/window/input/PendingEvents.h"
#include "table/window/painting/CardBody.h"
#include "table/window/painting/Design.h"
#include "table/window/painting/Pictures.h"
#include "table/window/parts/Builders.h"
#include "table/window/parts/TableMenus.h"

namespace Parlino {

TableWindow::TableWindow(KeyUse& keyUse, PendingEvents& pending)
    : pending_(pending),
      table_(new TableGround),
      room_(new ScrolledTable(table_, this)),
      spoken_(*table_) {
  IntroduceSpeakers();
  speak = [this] { return Spoken{QAccessible::Window, windowTitle()}; };
  setObjectName("FrmMain");
  setWindowTitle(ToText(ApplicationTitle));
  setAttribute(Qt::WA_OpaquePaintEvent);
  auto* menus = new QMenuBar(this);
  BuildMenus(*menus, pending);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSizeConstraint(QLayout::SetNoConstraint);
  layout->setMenuBar(menus);
  layout->addWidget(room_);
  BuildTable(keyUse);
  // In less room the bar would put menus behind a button, whose menu runs an event loop of
  // its own: the game would stand still meanwhile.
  setMinimumWidth(menus->sizeHint().width());
}

void TableWindow::BuildTable(KeyUse& keyUse) {
  table_->setObjectName("Table");
  table_->setAccessibleName("Card table");
  table_->setFixedSize(ClientSize);
  // Without this the first control in the order of the Tab key would hold the focus from the start,
  // and a stray Space would press it.
  table_->setFocusPolicy(Qt::ClickFocus);
  table_->setFocus();
  const BuildSite site{*table_, mirror_, pending_, widgets_};
  BuildTableTop(site);
  light_ = new TurnLight(table_, widgets_);
  BuildTrickPiles(site);
  BuildTrumps(site);
  BuildCards(site);
  BuildWelcomePanel(site);
  BuildNames(site);
  BuildInfoLine(site);
  BuildWelcomeButton(site);
  BuildBiddingPanel(site);
  BuildPlayedList(site);
  BuildScoreFrame(site);
  BuildStatusBar(site);
  focus_.emplace(*table_, widgets_, keyUse);
  keys_.emplace(*table_, *focus_, keyUse, pending_);
  mirror_.KeepInFront(focus_->Mark());
}

void TableWindow::ShowModel(std::uint32_t now, std::uint32_t pauseMs) {
  mirror_.ShowChanges(now, pauseMs);
  hints_.Follow();
  spoken_.Tell();
  glides_.DrawFrame(now);
  light_->Follow();
  if (Table.FrmMain.Visible && !isVisible()) {
    FitToScreen();
    show();
  }
  pointer_.Follow();
  if (wasPainted_ && !desktop_) FollowDesktop();
}

void TableWindow::FitToScreen() {
  layout()->activate();  // gives the menu bar its height
  // A scale that is not whole may cost a pixel, for which there must be no scroll bars.
  const int spare = devicePixelRatioF() == std::floor(devicePixelRatioF()) ? 0 : 1;
  const QSize around = size() - room_->size() + QSize(spare, spare);
  PutInMiddleOfScreen(*this, room_->WindowSize(around, RoomForWindow(*screen())), *screen());
}

// Comes after the table has been seen for the first time: nobody waits for it.
void TableWindow::FollowDesktop() {
  GiveWindowsIcon();
  desktop_.emplace([this](bool wantsMotion) { glides_.Allow(wantsMotion); });
}

void TableWindow::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), Colours::Navy);
  wasPainted_ = true;
}

void TableWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  pending_.Append({[](int) { return CloseTableWindow(); }});
}

}  // namespace Parlino
