// Every system call of a saving fails in turn, as every record is saved in the same way. Whatever
// happens, the file is the old record or the new one whole, the player hears of a record that is
// not saved, the game holds its values, and the next try saves them.
#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>

#include "engine/state/GameState.h"
#include "table/TableEvents.h"
#include "tests/faults/FaultySystem.h"
#include "tests/faults/GameOnDisk.h"

namespace Parlino {
namespace {

using Calls = std::vector<std::string_view>;

// Once the record is renamed into its place it is safe, whatever the folder says, until the next
// save looks for its own; its permissions do not matter.
bool IsHarmless(const Calls& calls, const Fault& fault) {
  const auto call = calls.begin() + static_cast<std::ptrdiff_t>(fault.call) - 1;
  if (*call == "fchmod" || *call == "fstat") return true;
  if (fault.manner == Manner::Bit || fault.number == EINTR) return true;
  return std::find(calls.begin(), call, "rename") != call ||
         (fault.number == ENOENT && *call == "stat");
}

// Gives a name with the fault, and once more without it. Returns the calls of the first try.
Calls GiveANameTwice(bool behindLinks, const Fault& fault, bool isHarmless) {
  const TestFolder folder({}, behindLinks);
  const Disk before = folder.Files();
  const std::string newRecord = "\"Bo\",\"Ann, the first\",\"Nor\",\"Eve\"\r\n";
  GameOnDisk game(folder);
  Events.Form_Load();
  game.platform.answerInputBox = [](auto, auto, auto) { return "Ann, the first"; };
  FaultySystem system(fault);
  EXPECT_TRUE(ChooseMenu(MenuItem::MnuNameBot1));
  system.Mend();
  const std::string content = folder.Files().at("Names2.dat");
  const bool isSaved = content == newRecord;
  EXPECT_TRUE(isSaved || content == before.at("Names2.dat")) << content;
  EXPECT_NE(isSaved, game.Said("Names2.dat cannot be written: "));
  EXPECT_TRUE(fault.manner == Manner::FromHere || isSaved == isHarmless);
  EXPECT_EQ(SeatNames[West], "Ann, the first");
  EXPECT_TRUE(ChooseMenu(MenuItem::MnuNameBot1));
  Disk expected = before;
  expected["Names2.dat"] = newRecord;
  Disk atEnd = folder.Files();
  // A temporary file cannot be removed either while the fault lasts.
  if (fault.manner == Manner::FromHere)
    std::erase_if(atEnd,
                  [](const auto& file) { return file.first.find(".saving-") != file.first.npos; });
  EXPECT_TRUE(atEnd == expected);
  EXPECT_TRUE(StartsWell(folder));
  return system.Calls();
}

TEST(SaveFaults, LoseNoRecordAndAreTold) {
  for (const bool behindLinks : {false, true}) {
    const Calls calls = GiveANameTwice(behindLinks, {}, true);
    ASSERT_EQ(std::ranges::count(calls, "rename"), 1) << "the calls are not counted";
    const auto tryFault = [&](const Fault& fault) {
      SCOPED_TRACE(testing::Message()
                   << "call " << fault.call << " " << calls[fault.call - 1] << ", error "
                   << fault.number << ", manner " << static_cast<int>(fault.manner));
      GiveANameTwice(behindLinks, fault, IsHarmless(calls, fault));
    };
    for (std::size_t call = 1; call <= calls.size(); ++call) {
      for (const int number : {ENOSPC, EROFS, EACCES, EIO, ENOENT, EDQUOT})
        for (const Manner manner : {Manner::Once, Manner::FromHere})
          if (number != ENOENT || calls[call - 1] != "lstat")  // there is none: no fault
            tryFault({call, number, manner});
      if (calls[call - 1] != "write") continue;
      for (const Fault& fault :
           {Fault{call, EINTR, Manner::Once}, Fault{call, 0, Manner::Bit},
            Fault{call, ENOSPC, Manner::Short}, Fault{call, 0, Manner::Nothing}})
        tryFault(fault);
    }
  }
}

}  // namespace
}  // namespace Parlino
