#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <tuple>

#include "engine/StartUp.h"
#include "persistence/DataFiles.h"
#include "persistence/Records.h"
#include "platform/FolderFiles.h"
#include "table/MessageDialog.h"
#include "table/TableEvents.h"
#include "table/TableView.h"
#include "tests/support/HeadlessGame.h"
#include "tests/support/TemporaryFolder.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

TEST(DataFiles, KeepNamesButForWhatARecordCannotHold) {
  struct {
    std::string given;
    std::string kept;
  } const cases[] = {
      {"West Bot", "West Bot"},
      {"Smith, John", "Smith, John"},
      {"", ""},
      {"J\xC3\xBCrgen \xE2\x99\xA5", "J\xC3\xBCrgen \xE2\x99\xA5"},
      {"a \"quoted\" one", "a quoted one"},
      {"two\r\nlines\t\x7F", "twolines"},
      {"line\xE2\x80\xA8separator\xC2\x85", "lineseparator"},
      {"one \xE2\x80\xC2\x85\xA9 in another", "one  in another"},
      {std::string(5000, 'x'), std::string(5000, 'x')},
  };
  for (const auto& example : cases) {
    HeadlessGame game;
    HeadlessGame::Load();
    game.platform.answerInputBox = [&](auto, auto, auto) { return example.given; };
    ChooseMenu(MenuItem::MnuNameBot2);
    EXPECT_EQ(SeatNames[North], example.kept);
    SeatNames[North] = "forgotten";
    ReadRecord(NamesFile);
    EXPECT_EQ(SeatNames[North], example.kept);
    EXPECT_EQ(Table.LblName[2].Caption, example.kept + " - Hello and Welcome Player");
  }
}

struct StartCase {
  const char* what;
  const char* file;
  const char* content;  // nullptr removes the file
  const char* report;
};

TEST(StartUp, ReportsABadFileAndGoesOnWithItsFirstValues) {
  for (const StartCase& example :
       {StartCase{"missing names", "Names2.dat", nullptr, "Names2.dat cannot be read"},
        StartCase{"bad names", "Names2.dat", "\"Ann", "Names2.dat cannot be understood: a double"},
        StartCase{"bad points", "Points.dat", "1\r\n", "Points.dat cannot be understood: field 2"},
        StartCase{"bad game", "SaveGame.dat", "1,2,3\r\n", "SaveGame.dat cannot be understood"},
        StartCase{"bad wish", "Welcome.dat", "TRUE", "Welcome.dat cannot be understood"}}) {
    HeadlessGame game;
    game.platform.files["Points.dat"] = "3,7\r\n";
    if (example.content == nullptr)
      game.platform.files.erase(example.file);
    else
      game.platform.files[example.file] = example.content;
    Form_Load();
    EXPECT_TRUE(Recorded(game.platform, "Unexpected error in procedure: Form_Load\nError #"));
    EXPECT_TRUE(Recorded(game.platform, example.report)) << example.what;
    EXPECT_EQ(PlayerName, "Player") << example.what;
    EXPECT_EQ(GamesPlayed, std::string_view(example.file) == "Points.dat" ? 0 : 7);
    EXPECT_TRUE(Table.FrmMain.Visible && Table.Cds[52].Picture != 0) << example.what;
    EXPECT_EQ(PauseMs, 150) << example.what;
    EXPECT_FALSE(game.platform.files.contains(example.file)) << "nothing is repaired at start-up";
  }
}

TEST(StartUp, GreetsAndShowsOrSkipsTheWelcomePanel) {
  for (const bool hidden : {false, true}) {
    HeadlessGame game;
    game.platform.files["Welcome.dat"] = hidden ? "#TRUE#\r\n" : "#FALSE#\r\n";
    game.platform.files["Names2.dat"] = "\"Ann\",\"Bob\",\"Cid\",\"Dee\"\r\n";
    Form_Load();
    EXPECT_EQ(Table.LblName[0].Caption, "Ann");
    EXPECT_EQ(Table.LblName[1].Caption, "Bob- Welcome Ann");
    EXPECT_EQ(Table.LblName[2].Caption, "Cid - Hello and Welcome Ann");
    EXPECT_EQ(Table.LblName[3].Caption, "Dee - Hi ");
    EXPECT_EQ(Table.LblName[1].Place, (TablePoint{1815, 2400}));
    EXPECT_EQ(SeatNames[0], "Ann");
    EXPECT_EQ(Table.lblTitle.Visible, !hidden);
    EXPECT_EQ(Table.LblIntro.Visible && Table.CmdDontShow.Visible, !hidden);
    EXPECT_EQ(Table.FramScores.Visible, hidden);
    EXPECT_EQ(Table.Shape1.Visible, hidden);
    EXPECT_EQ(Table.LblInfo.Caption, hidden ? " Press F2 for new game" : "");
    ClickDontShow();
    EXPECT_EQ(game.platform.files["Welcome.dat"], "#TRUE#\r\n");
  }
}

class CommandTest : public testing::Test {
 protected:
  CommandTest() {
    HeadlessGame::Load();
    game_.platform.script = [this](std::uint32_t) {
      title_ = MFormDeluxe.Label3;
      marked_ = MFormDeluxe.Faces[MFormDeluxe.AnswerToMark].Label1;
      ClickAnswer(answer_);
    };
  }

  HeadlessGame game_;
  std::string title_;
  std::string marked_;  // the answer at which the keys begin
  int answer_ = 0;
};

TEST_F(CommandTest, ViewsTheStatistics) {
  struct {
    Integer won;
    Integer played;
    const char* title;
  } const cases[] = {
      {0, 0, "   They are Winning"}, {1, 2, "   They are Winning"}, {2, 3, "   Beating 'Em"}};
  for (const auto& example : cases) {
    GamesWon = example.won;
    GamesPlayed = example.played;
    ChooseMenu(MenuItem::MnuView);
    EXPECT_EQ(title_, example.title);
  }
  EXPECT_EQ(MFormDeluxe.Label2, "Player You are now winning 2 out of  3");
}

TEST_F(CommandTest, ErasesTheStatisticsOnlyOnYes) {
  for (const int answer : {1, 0}) {
    GamesWon = 3;
    GamesPlayed = 7;
    game_.platform.files["Points.dat"] = "3,7\r\n";
    answer_ = answer;
    ChooseMenu(MenuItem::ErasePoints);
    EXPECT_EQ(GamesPlayed, answer == 0 ? 0 : 7);
    EXPECT_EQ(game_.platform.files["Points.dat"], answer == 0 ? "0,0\r\n" : "3,7\r\n");
  }
}

// Only a file that is there is spoken of; the dialog comes in every case, and then a hand.
TEST_F(CommandTest, LoadSaysWhatBecameOfAFileItCannotRead) {
  struct {
    const char* content;  // nullptr removes the file
    const char* box;
  } const cases[] = {
      {nullptr, nullptr},
      {"0,0,#FALSE#\r\n", nullptr},
      {"150,-20,TRUE\r\n",
       "box: Parlino: SaveGame.dat cannot be understood: field 3 is neither #TRUE# nor #FALSE#. "
       "The file is kept as /parlino/SaveGame.dat.bad"}};
  for (const auto& example : cases) {
    game_.platform.record.clear();
    OurPoints = 5;
    if (example.content == nullptr)
      game_.platform.files.erase("SaveGame.dat");
    else
      game_.platform.files["SaveGame.dat"] = example.content;
    EXPECT_THROW(ChooseMenu(MenuItem::MnuLoad), ScriptHasNothingToSay);
    EXPECT_EQ(title_, "   No saved game");
    EXPECT_EQ(Recorded(game_.platform, "box: "), example.box != nullptr);
    if (example.box != nullptr) {
      EXPECT_EQ(game_.platform.record.front(), example.box);
      EXPECT_EQ(game_.platform.files["SaveGame.dat.bad"], example.content);
      EXPECT_EQ(OurPoints, 5) << "a record is taken whole or not at all";
    }
  }
}

// Whoever presses Enter without a look loses nothing.
TEST_F(CommandTest, TheKeysBeginAtTheAnswerThatChangesNothing) {
  answer_ = 1;
  GameInProgress = True;
  constexpr std::pair<MenuItem, const char*> cases[] = {{MenuItem::MnuExit, "Carry On"},
                                                        {MenuItem::ErasePoints, "Ooops No"}};
  for (const auto& [item, marked] : cases) {
    ChooseMenu(item);
    EXPECT_EQ(marked_, marked);
  }
  CloseTableWindow();
  EXPECT_EQ(marked_, "Carry On");
  answer_ = 0;
  ChooseMenu(MenuItem::MnuView);
  EXPECT_EQ(marked_, "O.K");
}

TEST_F(CommandTest, AFileThatCannotBeWrittenIsSaidAndTheGameGoesOn) {
  game_.platform.filesCanBeWritten = false;
  game_.platform.answerInputBox = [](auto, auto, auto) { return "Ann"; };
  ChooseMenu(MenuItem::MnuPname);
  EXPECT_TRUE(Recorded(game_.platform, "Names2.dat cannot be written: Read-only file system"));
  EXPECT_FALSE(Recorded(game_.platform, "critical box"));
  EXPECT_EQ(Table.LblName[0].Caption, "Ann");
}

TEST(FirstRecords, AreWhatTheProgramIsInstalledWith) {
  for (const FirstRecord& first : FirstRecords) {
    std::ifstream file(fs::path(PARLINO_SOURCE_FOLDER) / "assets/data" / first.file,
                       std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(content, first.record) << first.file;
  }
}

class FolderFilesTest : public testing::Test {
 protected:
  int CountFiles() { return static_cast<int>(std::distance(fs::directory_iterator(folder_), {})); }

  TemporaryFolder temporary_;
  const fs::path& folder_ = temporary_.Path();
};

TEST_F(FolderFilesTest, ReplaceAFileWholeAndLeaveNothingBeside) {
  FolderFiles files(folder_);
  files.Replace("Points.dat", "100,200\r\n");
  files.Replace("Points.dat", "1,2\r\n");
  EXPECT_EQ(files.Read("Points.dat"), "1,2\r\n");
  EXPECT_EQ(CountFiles(), 1);
}

// A killed program leaves its temporary file behind; it goes once no game can be writing it.
TEST_F(FolderFilesTest, RemoveOnlyTemporaryFilesThatAreOldAndTheirOwn) {
  const auto now = fs::file_time_type::clock::now();
  for (const char* name : {"Points.dat.saving-AbCdEf", "Points.dat.saving-GhIjKl",
                           "Names2.dat.saving-AbCdEf", "Points.dat.backup", "Points.dat.bad"}) {
    std::ofstream(folder_ / name) << "1,2";
    fs::last_write_time(folder_ / name, now - std::chrono::minutes(61));
  }
  fs::last_write_time(folder_ / "Points.dat.saving-GhIjKl", now - std::chrono::minutes(59));
  FolderFiles(folder_).Replace("Points.dat", "1,2\r\n");
  EXPECT_FALSE(fs::exists(folder_ / "Points.dat.saving-AbCdEf"));
  EXPECT_EQ(CountFiles(), 5);
}

TEST_F(FolderFilesTest, NameTheFileAndTheReasonOfAFailure) {
  FolderFiles files(folder_ / "gone");
  for (const auto& attempt :
       {std::function<void()>([&] { files.Replace("Points.dat", "1,2"); }),
        std::function<void()>([&] { std::ignore = files.Read("Points.dat"); })}) {
    try {
      attempt();
      FAIL() << "a folder that is gone was written or read";
    } catch (const GameError& error) {
      EXPECT_EQ(error.Number(), ENOENT);
      EXPECT_TRUE(std::string_view(error.what()).starts_with("Points.dat cannot be "));
    }
  }
  fs::create_directory(folder_ / "Names2.dat");
  EXPECT_THROW(FolderFiles(folder_).Replace("Names2.dat", "x"), GameError);
  EXPECT_EQ(CountFiles(), 1) << "the temporary file is taken away again";
}

TEST_F(FolderFilesTest, RefuseWhatIsNoOrdinaryFileWithoutWaitingForIt) {
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), S_IRUSR | S_IWUSR), 0);
  fs::create_directory(folder_ / "folder");
  for (const char* name : {"pipe", "folder"})
    EXPECT_THROW(static_cast<void>(FolderFiles(folder_).Read(name)), GameError) << name;
}

TEST_F(FolderFilesTest, SetAFileAsideWithoutLosingAnOlderOne) {
  FolderFiles files(folder_);
  for (const char* content : {"first", "second", "third"}) {
    files.Replace("Names2.dat", content);
    files.SetAside("Names2.dat");
  }
  EXPECT_FALSE(files.Exists("Names2.dat"));
  EXPECT_EQ(files.Read("Names2.dat.bad"), "first");
  EXPECT_EQ(files.Read("Names2.dat.bad2"), "second");
  EXPECT_EQ(files.Read("Names2.dat.bad3"), "third");
}

}  // namespace
}  // namespace Parlino
