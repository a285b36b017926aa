// The table window: the menu bar and, below it, the table of a fixed size. The window may be
// resized; nothing on the table moves.
#pragma once

#include <cstdint>
#include <optional>

#include <QWidget>

#include "table/window/desktop/DesktopMotion.h"
#include "table/window/mirror/Glides.h"
#include "table/window/mirror/TableMirror.h"
#include "table/window/parts/CardHints.h"
#include "table/window/parts/TableWidgets.h"
#include "table/window/playing/RestingPointer.h"
#include "table/window/playing/TableKeys.h"
#include "table/window/playing/TurnLight.h"
#include "table/window/speaking/AssistiveTools.h"
#include "table/window/speaking/Speaker.h"

namespace Parlino {

class KeyUse;
class PendingEvents;
class ScrolledTable;

class TableWindow : public QWidget, public Speaker {
 public:
  TableWindow(KeyUse& keyUse, PendingEvents& pending);

  // Shows what has changed in the model, the window itself included, and the cards on their way.
  // `now` is a tick of the platform, `pauseMs` how long the game is about to pause.
  void ShowModel(std::uint32_t now, std::uint32_t pauseMs);

  // How the cards move.
  Glides& Motion() { return glides_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  // The game is asked; only the game closes the window.
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildTable(KeyUse& keyUse);
  void FitToScreen();
  void FollowDesktop();

  PendingEvents& pending_;
  Glides glides_;
  TableMirror mirror_{glides_, [this] { focus_->Follow(); }};
  TableWidgets widgets_;
  CardHints hints_{widgets_};
  QWidget* table_;
  TurnLight* light_ = nullptr;
  ScrolledTable* room_;
  SpokenChanges spoken_;
  std::optional<TableFocus> focus_;
  std::optional<TableKeys> keys_;
  RestingPointer pointer_{*this, pending_};
  bool wasPainted_ = false;
  std::optional<DesktopMotion> desktop_;
};

}  // namespace Parlino
