// What a person can do to the windows themselves without any purpose: press any key, click
// anywhere, resize windows, leave menus open and, finally, end the desktop's session.
#pragma once

#include "tools/chaos/window/Fingers.h"

namespace Parlino {

class Pranks {
 public:
  Pranks(ChaosSession& session, Fingers& fingers) : session_(session), fingers_(fingers) {}

  // Plays one of the pranks.
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
