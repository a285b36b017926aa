#include "table/MessageDialog.h"

#include "engine/state/GameState.h"
#include "platform/Platform.h"
#include "table/CardDisplay.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr int PromptWidth = 3375;
constexpr int PromptTop = 450;
constexpr int HeightAroundPrompt = 1140;
constexpr int FaceWidth = 1275;
constexpr int FaceHeight = 300;
constexpr int FaceMargin = 90;    // below the row of buttons
constexpr int GapOfThree = 45;    // between the buttons when there are three
constexpr int HalfGapOfTwo = 23;  // on each side of the centre line when there are two
constexpr int PictureSize = 510;
constexpr int PictureLeft = 3870;

void PlaceFaces(MessageDialogView& dialog) {
  const int centre = dialog.Width / 2;
  const int top = dialog.Height - FaceHeight - FaceMargin;
  for (ButtonFace& face : dialog.Faces) {
    face.Pressed = false;
    face.Visible = !face.Label1.empty();
    face.Pic1 = {centre - FaceWidth / 2, top, FaceWidth, FaceHeight};
  }
  dialog.Faces[0].Visible = true;
  if (dialog.Faces[1].Visible && dialog.Faces[2].Visible) {
    dialog.Faces[0].Pic1.Left = centre - FaceWidth - FaceWidth / 2 - GapOfThree;
    dialog.Faces[2].Pic1.Left = centre + FaceWidth / 2 + GapOfThree;
  } else if (dialog.Faces[1].Visible) {
    dialog.Faces[0].Pic1.Left = centre - FaceWidth - HalfGapOfTwo;
    dialog.Faces[1].Pic1.Left = centre + HalfGapOfTwo;
  }
}

}  // namespace

void LayOutMessageDialog(MessageDialogView& dialog, int promptHeight, int screenWidth,
                         int screenHeight) {
  dialog.Top = (screenHeight - dialog.Height) / 2;  // by the height it had the last time
  dialog.Height = promptHeight + HeightAroundPrompt;
  dialog.Left = (screenWidth - dialog.Width) / 2;
  dialog.Label2Place = {90, PromptTop, PromptWidth, promptHeight};
  dialog.Label3Place = {45, 60, dialog.Width - 90, 300};
  dialog.Picture1 = {PictureLeft, dialog.Height / 2 - PictureSize / 2, PictureSize, PictureSize};
  PlaceFaces(dialog);
}

void ShowMessage(std::string_view prompt, std::string_view firstButton,
                 std::string_view secondButton, std::string_view thirdButton, Integer pictureNumber,
                 std::string_view title, Integer answerToMark) {
  MFormDeluxe.Label2 = prompt;
  MFormDeluxe.Label3 = JoinText({"   ", title});
  MFormDeluxe.Faces[0].Label1 = firstButton;
  MFormDeluxe.Faces[1].Label1 = secondButton;
  MFormDeluxe.Faces[2].Label1 = thirdButton;
  MFormDeluxe.Picture = pictureNumber;
  MFormDeluxe.AnswerToMark = answerToMark;
  ++MFormDeluxe.Showings;
  const ScreenSize screen = ThePlatform().Screen();
  LayOutMessageDialog(MFormDeluxe, ThePlatform().PromptHeight(prompt, PromptWidth), screen.width,
                      screen.height);
  StartSound(RingSound);
  struct Wait {
    Wait() { MFormDeluxe.Visible = MFormDeluxe.IsWaiting = true; }
    ~Wait() { MFormDeluxe.IsWaiting = false; }
  } const wait;
  while (MFormDeluxe.Visible) WaitForEvents();
}

void Label1_MouseDown(Integer index) {
  MFormDeluxe.Faces[index].Pressed = true;
}

void Label1_Click(Integer index) {
  MFormDeluxe.Visible = false;
  MessageChoice = index;
}

}  // namespace Parlino
