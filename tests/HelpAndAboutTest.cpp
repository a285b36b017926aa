// The help and the about window without a window, and the way to the system-information tool.
#include <algorithm>
#include <gtest/gtest.h>

#include "game/Game.h"
#include "table/HelpAndAbout.h"
#include "table/MessageDialog.h"
#include "table/SystemInfo.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/support/HeadlessGame.h"

namespace Parlino {
namespace {

constexpr const char* Unavailable = "box: Parlino: System Information Is Unavailable At This Time";
const std::string ToolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
const std::string FolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";

std::string FirstText() {
  const auto& first = std::get<RichText::Paragraph>(frmHelp.rtbHelp.Blocks.at(0));
  return first.Runs.at(0).Text;
}

TEST(Help, IsLookedForInTheProgramsFolder) {
  const struct {
    const char* folder;
    const char* path;
  } examples[] = {{"C:\\Games\\Parlino", "C:\\Games\\Parlino\\ParlinoHelp.rtf"},
                  {"C:\\", "C:\\ParlinoHelp.rtf"},
                  {"/opt/parlino/", "/opt/parlino/ParlinoHelp.rtf"},
                  {"", "\\ParlinoHelp.rtf"}};
  for (const auto& [folder, path] : examples) {
    HeadlessGame game;
    game.platform.programFolder = folder;
    game.platform.files[path] = "{\\rtf1 Rules}";
    MnuRules_Click();
    EXPECT_TRUE(frmHelp.Visible) << folder;
    EXPECT_EQ(frmHelp.FileName, path);
  }
}

TEST(Help, IsLoadedAfreshEachTimeAndStaysWhenThatFails) {
  HeadlessGame game;
  MnuRules_Click();
  EXPECT_FALSE(frmHelp.Visible);
  EXPECT_EQ(game.platform.record.at(0), "box: Parlino: Helpfile is not available");
  std::string& document = game.platform.files["/parlino/ParlinoHelp.rtf"];
  document = "{\\rtf1 Old rules}";
  MnuRules_Click();
  btnClose_Click();
  EXPECT_FALSE(frmHelp.Visible);
  EXPECT_EQ(FirstText(), "Old rules") << "only hidden";
  document = "{\\rtf1 New rules}";
  MnuRules_Click();
  document = "no such format";
  MnuRules_Click();
  EXPECT_TRUE(Recorded(game.platform, "Unexpected error in procedure: MnuRules_Click"));
  EXPECT_TRUE(frmHelp.Visible);
  EXPECT_EQ(FirstText(), "New rules");
  EXPECT_EQ(frmHelp.Showings, 2);
}

TEST(About, IsFilledWhenItIsLoadedAndGoneWhenItIsUnloaded) {
  const HeadlessGame game;
  MnuAbout_Click();
  EXPECT_EQ(frmAbout.Caption, "About Parlino");
  EXPECT_EQ(frmAbout.lblTitle, "Parlino");
  EXPECT_EQ(frmAbout.lblDescription, "Parlino - a  challenging and enjoyable card game .");
  EXPECT_TRUE(frmAbout.lblVersion.starts_with("Version "));
  frmAbout.lblTitle.clear();
  MnuAbout_Click();
  EXPECT_EQ(frmAbout.lblTitle, "") << "loaded a second time";
  EXPECT_EQ(frmAbout.Showings, 2);
  cmdOK_Click();
  EXPECT_FALSE(frmAbout.Loaded);
  MnuAbout_Click();
  EXPECT_EQ(frmAbout.lblTitle, "Parlino");
  EXPECT_EQ(VersionCaption(2, 0, 5), "Version 2.0.5");
}

TEST(About, DoorsOpenOnlyForAWindowThatCanBeReached) {
  HeadlessGame game;
  game.Load();
  game.platform.files["/parlino/ParlinoHelp.rtf"] = "{\\rtf1 Rules}";
  EXPECT_FALSE(CloseHelp() || CloseAbout() || ClickSysInfo());
  ChooseMenu(MenuItem::MnuRules);
  ChooseMenu(MenuItem::MnuAbout);
  MFormDeluxe.IsWaiting = true;
  EXPECT_FALSE(CloseHelp() || CloseAbout() || ClickSysInfo()) << "behind a dialog";
  MFormDeluxe.IsWaiting = false;
  EXPECT_TRUE(CloseHelp() && ClickSysInfo() && CloseAbout());
  EXPECT_FALSE(CloseHelp() || ClickSysInfo() || CloseAbout());
}

TEST(Registry, AValueIsReadAndItsKeyClosed) {
  using namespace std::string_literals;
  constexpr std::uint32_t number = 4;  // another type
  const std::string longest(1024, 'x');
  const std::optional<std::string> failure;
  const struct {
    HeadlessPlatform::ScriptedValue value;
    std::optional<std::string> text;
  } examples[] = {
      {{RegistryString, "C:\\x\0"s}, "C:\\x"}, {{RegistryString, "C:\\x"}, "C:\\x"},
      {{RegistryString, "a\0\0"s}, "a\0"s},    {{RegistryString, ""}, ""},
      {{RegistryString, longest}, longest},    {{RegistryString, longest + "x"}, failure},
      {{number, "1234"}, "as it was"}};
  for (const auto& [value, expected] : examples) {
    HeadlessGame game;
    game.platform.registry[{ToolKey, "PATH"}] = value;
    std::string text = "as it was";
    EXPECT_EQ(GetKeyValue(RegistryLocalMachine, ToolKey, "PATH", text), expected.has_value());
    EXPECT_EQ(text, expected.value_or("")) << value.bytes;
    EXPECT_FALSE(GetKeyValue(RegistryLocalMachine, ToolKey, "ROUTE", text));
    EXPECT_EQ(text, "");
    const std::string opened = "key opened: " + ToolKey;
    const std::string closed = "key closed: " + ToolKey;
    EXPECT_EQ(game.platform.record, (std::vector{opened, closed, opened, closed})) << value.bytes;
  }
}

TEST(Registry, AKeyThatCannotBeOpenedIsNotClosed) {
  constexpr std::uint32_t currentUser = 0x80000001;
  constexpr std::uint32_t readOnly = 0x20019;
  HeadlessGame game;
  game.platform.registry[{ToolKey, "PATH"}] = {RegistryString, "C:\\x"};
  std::string text = "before";
  EXPECT_FALSE(GetKeyValue(currentUser, ToolKey, "PATH", text));
  EXPECT_EQ(text, "");
  game.platform.registryRights = readOnly;
  EXPECT_FALSE(GetKeyValue(RegistryLocalMachine, ToolKey, "PATH", text));
  EXPECT_TRUE(game.platform.record.empty());
}

TEST(Registry, AFailureOfItsOwnClosesTheKeyAndMakesTheToolUnavailable) {
  HeadlessGame game;
  game.platform.registry[{ToolKey, "PATH"}] = {RegistryString, "C:\\x"};
  game.platform.registryRaises = true;
  StartSysInfo();
  EXPECT_EQ(
      game.platform.record,
      (std::vector<std::string>{"key opened: " + ToolKey, "key closed: " + ToolKey, Unavailable}));
}

TEST(Registry, TheSystemInformationToolIsFoundOrUnavailable) {
  const struct {
    const char* path;    // listed for the tool; nullptr for none
    const char* folder;  // likewise
    const char* file;    // that exists
    std::string outcome;
  } examples[] = {
      {"D:\\info.exe", "C:\\ms", "D:\\info.exe", "started: D:\\info.exe"},
      {nullptr, "C:\\ms", "C:\\ms\\MSINFO32.EXE", "started: C:\\ms\\MSINFO32.EXE"},
      {nullptr, "C:\\ms", "C:\\ms\\other.exe", Unavailable},
      {nullptr, nullptr, "C:\\ms\\MSINFO32.EXE", Unavailable},
      {"D:\\info.exe", "C:\\ms", "C:\\ms\\MSINFO32.EXE", Unavailable},  // cannot be started
      {"", "C:\\ms", "C:\\ms\\MSINFO32.EXE", Unavailable},
  };
  for (const auto& [path, folder, file, outcome] : examples) {
    HeadlessGame game;
    auto& registry = game.platform.registry;
    if (path != nullptr) registry[{ToolKey, "PATH"}] = {RegistryString, path};
    if (folder != nullptr) registry[{FolderKey, "MSINFO"}] = {RegistryString, folder};
    game.platform.files[file] = "";
    StartSysInfo();
    EXPECT_EQ(game.platform.record.back(), outcome);
    EXPECT_EQ(std::ranges::count(game.platform.record, outcome), 1);
  }
}

}  // namespace
}  // namespace Parlino
