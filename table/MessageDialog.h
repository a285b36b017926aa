// The message dialog MFormDeluxe: its model, and the procedure that shows it and waits.
#pragma once

#include <string>
#include <string_view>

#include "engine/state/Errors.h"
#include "engine/state/Indexed.h"

namespace Parlino {

// A box in twips, measured inside the dialog window.
struct DialogBox {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
};

struct ButtonFace {
  DialogBox Pic1;      // the face
  std::string Label1;  // its caption
  bool Visible = false;
  bool Pressed = false;  // drawn pushed in, its caption moved by a pixel
};

struct MessageDialogView {
  bool Visible = false;
  bool IsWaiting = false;  // from being shown until the game goes on with the answer
  int Showings = 0;        // at each the keys begin again at AnswerToMark
  Integer AnswerToMark = 0;
  int Left = 0;  // of the window on the screen, twips
  int Top = 0;
  int Width = 4500;
  int Height = 2000;
  std::string Label3;  // the title strip: three blanks and the title
  DialogBox Label3Place;
  std::string Label2;  // the prompt
  DialogBox Label2Place;
  int Picture = 0;  // 1 smiling, 2 frowning, 3 a small drawing
  DialogBox Picture1;
  Indexed<ButtonFace, 0, 2> Faces;
};

inline MessageDialogView MFormDeluxe;

// Sizes and places everything in the dialog for a prompt `promptHeight` twips high on a screen of
// the given size; the captions must be set already. Nothing is shown.
void LayOutMessageDialog(MessageDialogView& dialog, int promptHeight, int screenWidth,
                         int screenHeight);

// Shows the dialog and waits for the answer, which MessageChoice then holds: 0 for the first
// button, 1 for the second, 2 for the third. A button with an empty caption is not shown, except
// the first; no dialog has a third one yet. `pictureNumber` is 1..3. The table takes no input
// meanwhile. The keys begin at `answerToMark`, which is never an answer that ends the program or
// erases something.
void ShowMessage(std::string_view prompt, std::string_view firstButton,
                 std::string_view secondButton, std::string_view thirdButton, Integer pictureNumber,
                 std::string_view title, Integer answerToMark = 0);

// The dialog's events: the button `index` 0..2 is pressed down; it is clicked, which is the answer.
void Label1_MouseDown(Integer index);
void Label1_Click(Integer index);

}  // namespace Parlino
