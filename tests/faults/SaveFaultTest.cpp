// Every system call of every command that saves fails in turn. Whatever happens, each file is the
// old record or the new one whole, the player hears of every record that is not saved, the game
// holds its values, and the next try saves them.
#include <algorithm>
#include <cerrno>
#include <functional>
#include <gtest/gtest.h>
#include <optional>

#include "game/Game.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/faults/FaultySystem.h"
#include "tests/faults/GameOnDisk.h"
#include "tests/support/HeadlessGame.h"
#include "tests/support/RecordFaults.h"

namespace Parlino {
namespace {

// A command with a fault, and the same command again without one.
struct Outcome {
  Disk before;
  Disk afterFault;
  Kept values;  // in memory, after the fault
  std::vector<std::string_view> calls;
  std::vector<std::string> messages;  // of the first try
  std::vector<std::string> laterMessages;
  Disk atEnd;
};

class Try {
 public:
  Try(const Fault& fault, std::string_view savedGame, bool behindLinks)
      : folder({{"SaveGame.dat", std::string(savedGame)}}, behindLinks),
        game(folder),
        fault_(fault) {
    outcome_.before = folder.Files();
  }

  // Between the two the fault is made; what is as it is then is its outcome. Only the first end
  // counts.
  void BeginFault() { system_.emplace(fault_); }
  void EndFault();
  Outcome End();

  void DoTwice(const std::function<void()>& command);
  // The first hand and the dialog after it meet the fault, what comes later does not.
  void PlayAndLeave(int hands);

  TestFolder folder;
  GameOnDisk game;

 private:
  Fault fault_;
  std::optional<FaultySystem> system_;
  Outcome outcome_;
};

void Try::EndFault() {
  if (!outcome_.calls.empty()) return;
  system_->Mend();
  outcome_.calls = system_->Calls();
  outcome_.afterFault = folder.Files();
  outcome_.values = KeptValues();
  outcome_.messages.swap(game.platform.record);
}

Outcome Try::End() {
  EndFault();
  outcome_.laterMessages = game.platform.record;
  outcome_.atEnd = folder.Files();
  EXPECT_TRUE(StartsWell(folder)) << "after the next try";
  return outcome_;
}

void Try::DoTwice(const std::function<void()>& command) {
  Events.Form_Load();
  BeginFault();
  command();
  EndFault();
  command();
}

void Try::PlayAndLeave(int hands) {
  South south(hands);
  south.onDialog = [&] {
    if (south.HandsScored() > 0) EndFault();
  };
  game.platform.script = [&](std::uint32_t atMostMs) {
    if (!system_) BeginFault();
    south.OnEvents(atMostMs);
  };
  EXPECT_EQ(RunGame(), 0);
}

struct Command {
  const char* what;
  const char* savedGame;
  void (*run)(Try& attempt);
  bool savesTwice = false;  // what one save misses the other has
  bool behindLinks = false;
};

void GiveAName(Try& attempt) {
  attempt.game.platform.answerInputBox = [](auto, auto, auto) { return "Ann, the first"; };
  attempt.DoTwice([] { EXPECT_TRUE(ChooseMenu(MenuItem::MnuNameBot1)); });
}

constexpr Command Commands[] = {
    {"a name", "012,034,#TRUE#", GiveAName},
    {"a name behind links", "012,034,#TRUE#", GiveAName, false, true},
    {"erased statistics", "012,034,#TRUE#",
     [](Try& attempt) {
       attempt.game.platform.script = [](std::uint32_t) { ClickAnswer(0); };
       attempt.DoTwice([] { EXPECT_TRUE(ChooseMenu(MenuItem::ErasePoints)); });
     }},
    {"no welcome", "012,034,#TRUE#",
     [](Try& attempt) { attempt.DoTwice([] { EXPECT_TRUE(ClickDontShow()); }); }},
    {"save and exit", "012,034,#TRUE#", [](Try& attempt) { attempt.PlayAndLeave(1); }},
    {"save and exit behind links", "012,034,#TRUE#", [](Try& attempt) { attempt.PlayAndLeave(1); },
     false, true},
    {"game over", "0900,034,#TRUE#", [](Try& attempt) { attempt.PlayAndLeave(2); }, true},
    {"game over and exit", "0900,034,#TRUE#", [](Try& attempt) { attempt.PlayAndLeave(1); }, true},
};

Outcome RunCommand(const Command& command, const Fault& fault) {
  Try attempt(fault, command.savedGame, command.behindLinks);
  command.run(attempt);
  return attempt.End();
}

// Once the record is renamed into its place it is safe, whatever the folder says, until the next
// save looks for its own; its permissions do not matter.
bool IsHarmless(const std::vector<std::string_view>& calls, std::size_t call) {
  if (calls[call - 1] == "fchmod" || calls[call - 1] == "fstat") return true;
  bool isPast = false;
  for (std::size_t place = 0; place + 1 < call; ++place)
    isPast = calls[place] == "rename" || (isPast && calls[place] != "lstat");
  return isPast && calls[call - 1] != "lstat";
}

bool Told(const Outcome& outcome, std::string_view file) {
  const std::string text = std::string(file) + " cannot be written: ";
  return std::ranges::any_of(outcome.messages, [&](const std::string& message) {
    return message.find(text) != std::string::npos;
  });
}

void CheckFiles(const Command& command, const Outcome& good, const Outcome& outcome) {
  for (const auto& [name, old] : outcome.before) {
    ASSERT_TRUE(outcome.afterFault.contains(name)) << name << " is gone";
    const std::string& content = outcome.afterFault.at(name);
    const bool isNew = content == good.afterFault.at(name);
    EXPECT_TRUE(isNew || content == old) << name << " holds " << content;
    EXPECT_TRUE(Told(outcome, name) == !isNew || (command.savesTwice && isNew)) << name;
    EXPECT_EQ(outcome.atEnd.at(name), good.atEnd.at(name)) << name << " after the next try";
  }
}

void TryFault(const Command& command, const Outcome& good, const Fault& fault, bool isHarmless) {
  SCOPED_TRACE(testing::Message() << command.what << ", call " << fault.call << " "
                                  << good.calls[fault.call - 1] << ", error " << fault.number
                                  << ", manner " << static_cast<int>(fault.manner));
  const Outcome outcome = RunCommand(command, fault);
  CheckFiles(command, good, outcome);
  // A temporary file cannot be removed either while the fault lasts.
  const bool lasts = fault.manner == Manner::FromHere;
  EXPECT_TRUE(lasts || outcome.atEnd.size() == outcome.before.size());
  const bool isBrief = fault.manner == Manner::Once || fault.manner == Manner::Bit;
  if (isBrief || (!lasts && !command.savesTwice)) {
    EXPECT_EQ(outcome.afterFault == good.afterFault, isHarmless || command.savesTwice);
  }
  EXPECT_TRUE(outcome.values == good.values) << "the values in memory are others";
  for (const std::string& message : outcome.laterMessages)
    EXPECT_EQ(message.find("cannot be"), std::string::npos) << message;
}

// Returns how many faults were tried.
int TryEveryFault(const Command& command) {
  const Outcome good = RunCommand(command, {});
  EXPECT_TRUE(std::ranges::count(good.calls, "rename") > 0) << "the calls are not counted";
  EXPECT_FALSE(good.afterFault == good.before);
  int faults = 0;
  for (std::size_t call = 1; call <= good.calls.size(); ++call) {
    const bool isSafe = IsHarmless(good.calls, call);
    for (const int number : {ENOSPC, EROFS, EACCES, EIO, ENOENT, EDQUOT})
      for (const Manner manner : {Manner::Once, Manner::FromHere}) {
        const std::string_view name = good.calls[call - 1];
        if (number == ENOENT && name == "lstat") continue;  // there is none: no fault
        TryFault(command, good, {call, number, manner},
                 isSafe || (number == ENOENT && name == "stat"));
        ++faults;
      }
    if (good.calls[call - 1] != "write") continue;
    TryFault(command, good, {call, EINTR, Manner::Once}, true);
    TryFault(command, good, {call, 0, Manner::Bit}, true);
    TryFault(command, good, {call, ENOSPC, Manner::Short}, false);
    TryFault(command, good, {call, 0, Manner::Nothing}, false);
    faults += 4;
  }
  return faults;
}

TEST(SaveFaults, LoseNoRecordAndAreTold) {
  for (const Command& command : Commands)
    std::printf("%s: %d faults\n", command.what, TryEveryFault(command));
}

}  // namespace
}  // namespace Parlino
