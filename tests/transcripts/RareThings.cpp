#include <cerrno>

#include "engine/Deal.h"
#include "engine/RoundDriver.h"
#include "engine/TrickPlay.h"
#include "game/Game.h"
#include "headless/South.h"
#include "table/CardDisplay.h"
#include "table/SystemInfo.h"
#include "table/TableEvents.h"
#include "tests/transcripts/Scenes.h"

namespace Parlino {
namespace {

void ShowDialog(TranscribedPlatform& platform, std::string_view second, std::string_view third,
                int answer) {
  platform.script = [&platform, answer](std::uint32_t) {
    PressAnswer(answer);
    platform.Note(JoinText({"> presses and clicks button ", answer}));
    if (!ClickAnswer(answer)) ClickAnswer(0);
  };
  ShowMessage("A prompt that goes over more than one line of the dialog, or two", "Yes", second,
              third, 3, "Title");
}

// What goes wrong with cards that are none and with a clock that cannot be read.
void RaiseErrors(TranscribedPlatform& platform) {
  Cds_Click(0);
  PlayCard(West, 0);
  for (const auto play : {PlayFirstCard, PlaySecondCard, PlayThirdCard, PlayFourthCard}) play(West);
  JustMoveCardsOut(West);
  platform.clock = []() -> double { throw GameError(EIO, "The clock cannot be read"); };
  GameInProgress = False;
  GetDealer();
  DealCards();
  platform.clock = nullptr;
}

void ReadRegistry(TranscribedPlatform& platform, const std::string& key,
                  const HeadlessPlatform::ScriptedValue& value) {
  platform.registry = {{{key, "PATH"}, value}};
  for (const char* name : {"PATH", "ROUTE"}) {
    std::string text = "as it was";
    const bool isRead = GetKeyValue(RegistryLocalMachine, key, name, text);
    if (text.size() > 100) text = JoinText({"of length ", static_cast<int>(text.size())});
    platform.Note(JoinText({name, isRead ? " is " : " cannot be read: ", Quote(text)}));
  }
}

// Values of a registry, and the ways to the tool for system information.
void LookIntoRegistry(TranscribedPlatform& platform) {
  using namespace std::string_literals;
  const std::string toolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
  const std::string folderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
  constexpr std::uint32_t otherType = 4, readOnly = 0x20019;
  for (const auto& [type, bytes] : {std::pair(RegistryString, "C:\\x\0"s),
                                    {RegistryString, "C:\\x"},
                                    {RegistryString, "a\0\0"s},
                                    {RegistryString, ""},
                                    {RegistryString, std::string(1024, 'x')},
                                    {RegistryString, std::string(1025, 'x')},
                                    {otherType, "1234"}})
    ReadRegistry(platform, toolKey, {type, bytes});
  platform.registryRights = readOnly;
  ReadRegistry(platform, toolKey, {RegistryString, "C:\\x"});
  platform.registryRights = RegistryFullAccess;
  constexpr const char* ways[][3] = {{"D:\\info.exe", "C:\\ms", "D:\\info.exe"},
                                     {nullptr, "C:\\ms", "C:\\ms\\MSINFO32.EXE"},
                                     {nullptr, "C:\\ms", "C:\\ms\\other.exe"},
                                     {"D:\\info.exe", "C:\\ms", "C:\\ms\\MSINFO32.EXE"},
                                     {"", "C:\\ms", ""},
                                     {"D:\\info.exe", nullptr, "D:\\info.exe"}};
  for (const auto& [path, folder, file] : ways) {
    platform.Note("# system information");
    platform.registry.clear();
    if (path != nullptr) platform.registry[{toolKey, "PATH"}] = {RegistryString, path};
    if (folder != nullptr) platform.registry[{folderKey, "MSINFO"}] = {RegistryString, folder};
    platform.registryRaises = folder == nullptr;
    platform.files = {{file, ""}};
    StartSysInfo();
  }
}

}  // namespace

// What no game of today shows: a dialog with three buttons; and who bids first, which the first
// bidder's own line replaces at once.
void ShowRareThings(TranscribedPlatform& platform) {
  SetUp(platform, 10);
  Events.Form_Load();
  for (Dealer = Player; Dealer <= East; ++Dealer) {
    DisplayTrumps();
    platform.Note(JoinText({"trump suit ", TrumpSuit}));
  }
  ShowDialog(platform, "", "", 1);
  ShowDialog(platform, "No", "", 2);
  for (int answer = 0; answer <= 2; ++answer) ShowDialog(platform, "No", "Perhaps", answer);
  ShowDialog(platform, "", "", 0);
  RaiseErrors(platform);
  LookIntoRegistry(platform);
}

}  // namespace Parlino
