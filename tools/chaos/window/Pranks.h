// What a person can do to the windows themselves and does to no purpose: any key, any spot, sizes,
// menus left open, and at last the end of the desktop's session.
#pragma once

#include "tools/chaos/window/Fingers.h"

namespace Parlino {

class Pranks {
 public:
  Pranks(ChaosSession& session, Fingers& fingers) : session_(session), fingers_(fingers) {}

  // Plays one of them.
  void Play();

 private:
  void StrikeAnyKey();
  void WriteAnything();
  void FumbleAnywhere();
  void DragAnywhere();
  void TurnWheel();
  void ReshapeWindow();
  void ShowWindowAgain();
  void MoveFocus();
  void OpenAnyMenu();
  void AskForContextMenu();
  void UseHelp();
  void EndSession();

  ChaosSession& session_;
  Fingers& fingers_;
};

}  // namespace Parlino
