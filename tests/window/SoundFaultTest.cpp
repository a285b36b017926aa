// What is heard when the files or the device are faulty.
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "table/window/desktop/Sound.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/window/FakeSoundLibrary.h"

namespace Parlino {
namespace {

using Names = std::vector<std::string>;

Names Heard() {
  Names names;
  for (const auto& [number, name] : TheFakeSounds().playing) names.push_back(name);
  return names;
}

class SoundFaults : public testing::Test {
 protected:
  SoundFaults() { TheFakeSounds() = {}; }

  Sound sound_{PARLINO_SOUND_FOLDER};
};

TEST_F(SoundFaults, EverySoundCutsOffTheOneBefore) {
  for (const bool deviceTakesOne : {false, true}) {
    TheFakeSounds().deviceTakesOne = deviceTakesOne;
    for (const char* file : {"Shuffle.wav", "Card.wav", "Card.wav", "ringout.wav", "Card.wav"}) {
      sound_.Start(file);
      EXPECT_EQ(Heard(), Names{file});
    }
  }
}

// All error numbers of the library; most of them may mean the file or the device. On a device for
// one sound, the previous sound has already ended.
TEST_F(SoundFaults, OneThatCannotBePlayedLeavesTheOthersAlone) {
  for (int error = -1; error >= -18; --error) {
    SCOPED_TRACE(error);
    TheFakeSounds().errors = {{"Card.wav", error}};
    sound_.Start("Shuffle.wav");
    sound_.Start("Card.wav");
    EXPECT_EQ(Heard(), error == DeviceIsBusy ? Names{} : Names{"Shuffle.wav"});
    sound_.Start("ringout.wav");
    EXPECT_EQ(Heard(), Names{"ringout.wav"});
    TheFakeSounds().asked.clear();
    sound_.Start("Card.wav");
    EXPECT_EQ(TheFakeSounds().asked, Names{}) << "a device is asked for before every card";
    TheFakeSounds().errors.clear();
    sound_.Start("Shuffle.wav");
    sound_.Start("Card.wav");
    EXPECT_EQ(Heard(), Names{"Card.wav"}) << "it is not tried again at the next deal";
  }
}

// The library would wait for it for ever.
TEST_F(SoundFaults, APipeIsNotOpened) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder.Path() / "Card.wav").c_str(), S_IRUSR | S_IWUSR), 0);
  Sound(folder.Path()).Start("Card.wav");
  EXPECT_EQ(TheFakeSounds().asked, Names{});
}

}  // namespace
}  // namespace Parlino
