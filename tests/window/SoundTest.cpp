// Sounds never stop the game, whatever is missing.
#include <filesystem>
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "table/window/desktop/Sound.h"

namespace Parlino {
namespace {

std::ptrdiff_t ThreadsOfThisProgram() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

TEST(Sounds, StartWithoutComplaintAndLeaveNoThreadBehind) {
  const std::ptrdiff_t before = ThreadsOfThisProgram();
  const QTemporaryDir empty;
  for (const std::string& folder : {std::string(PARLINO_SOUND_FOLDER), empty.path().toStdString(),
                                    std::string("/no/such/folder")}) {
    Sound sound(folder);
    for (const char* file : {"Card.wav", "Card.wav", "Shuffle.wav", "ringout.wav", "missing.wav"})
      EXPECT_NO_THROW(sound.Start(file)) << folder << " " << file;
  }
  EXPECT_EQ(ThreadsOfThisProgram(), before);
}

}  // namespace
}  // namespace Parlino
