#include <gtest/gtest.h>

#include "engine/state/GameState.h"
#include "table/MessageDialog.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

struct FaceCase {
  const char* first;
  const char* second;
  const char* third;
  int lefts[3];  // of the faces that are shown; 0 for a hidden one
};

TEST(MessageDialog, PlacesItsButtonsByTheirNumber) {
  HeadlessGame game;
  for (const FaceCase& example :
       {FaceCase{"O.K", "", "", {1613, 0, 0}}, FaceCase{"Yes", "No", "", {952, 2273, 0}},
        FaceCase{"A", "B", "C", {293, 1613, 2932}}, FaceCase{"O.K", "", "", {1613, 0, 0}}}) {
    game.platform.script = [&](std::uint32_t) {
      for (int face = 0; face < 3; ++face) {
        const ButtonFace& button = MFormDeluxe.Faces[face];
        EXPECT_EQ(button.Visible, example.lefts[face] != 0) << example.first << face;
        if (button.Visible) {
          EXPECT_EQ(button.Pic1.Left, example.lefts[face]) << example.first;
        }
        EXPECT_FALSE(button.Pressed);
        EXPECT_EQ(button.Pic1.Top, MFormDeluxe.Height - 300 - 90);
      }
      Label1_MouseDown(0);
      Label1_Click(0);
    };
    ShowMessage("prompt", example.first, example.second, example.third, 3, "Title");
  }
}

TEST(MessageDialog, GrowsByItsPromptAndStandsInTheMiddleOfTheScreen) {
  MessageDialogView dialog;
  LayOutMessageDialog(dialog, 225, 12000, 9000);
  EXPECT_EQ(dialog.Height, 225 + 1140);
  EXPECT_EQ(dialog.Left, (12000 - 4500) / 2);
  const int heightBefore = dialog.Height;
  LayOutMessageDialog(dialog, 1125, 12000, 9000);
  EXPECT_EQ(dialog.Height, heightBefore + 900);
  EXPECT_EQ(dialog.Top, (9000 - heightBefore) / 2) << "placed by the height before";
  EXPECT_EQ(dialog.Picture1.Top, dialog.Height / 2 - 255);
  EXPECT_EQ(dialog.Label3Place.Width, 4410);
}

TEST(MessageDialog, TellsTheButtonAndRings) {
  HeadlessGame game;
  for (Integer button = 0; button <= 2; ++button) {
    game.platform.script = [button](std::uint32_t) { Label1_Click(button); };
    ShowMessage("prompt", "A", "B", "C", 1, "Title");
    EXPECT_EQ(MessageChoice, button);
    EXPECT_FALSE(MFormDeluxe.Visible);
    EXPECT_EQ(MFormDeluxe.Label3, "   Title");
  }
  EXPECT_TRUE(Recorded(game.platform, "sound: ringout.wav"));
}

}  // namespace
}  // namespace Parlino
