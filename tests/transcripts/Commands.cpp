#include "engine/state/Questions.h"
#include "game/Game.h"
#include "headless/South.h"
#include "table/TableEvents.h"
#include "tests/transcripts/Scenes.h"

namespace Parlino {
namespace {

class CommandScene {
 public:
  explicit CommandScene(TranscribedPlatform& platform) : platform_(platform) {
    platform.files["Points.dat"] = "3,7\r\n";
    SetUp(platform, 7);
    platform.script = [this](std::uint32_t) {
      PressAnswer(answer_);
      platform_.Note("> presses and clicks");
      ClickAnswer(answer_);
    };
    Do("start", [] {
      Events.Form_Load();
      return true;
    });
  }

  // `answer` is the button that is clicked in a dialog.
  template <class Deed>
  void Do(const std::string& what, Deed deed, int answer = 0) {
    answer_ = answer;
    platform_.Note("# " + what);
    try {
      if (!deed()) platform_.Note("nothing happens");
    } catch (const ProgramEnded&) {
      platform_.Note("the program ends");
    }
    platform_.Note("");
  }

  void Choose(const std::string& what, MenuItem item, int answer = 0) {
    Do(
        what, [item] { return ChooseMenu(item); }, answer);
  }

 private:
  TranscribedPlatform& platform_;
  int answer_ = 0;
};

void LookAtStatistics(CommandScene& scene) {
  constexpr std::pair<Integer, Integer> records[] = {{0, 0}, {1, 2}, {2, 3}, {3, 7}, {-1, 0}};
  for (const auto& [won, played] : records) {
    GamesWon = won;
    GamesPlayed = played;
    scene.Choose("statistics", MenuItem::MnuView);
  }
  scene.Choose("erasing, no", MenuItem::ErasePoints, 1);
  scene.Choose("statistics", MenuItem::MnuView);
  scene.Choose("erasing, yes", MenuItem::ErasePoints);
  scene.Choose("statistics", MenuItem::MnuView);
}

void OpenHelpAndAbout(TranscribedPlatform& platform, CommandScene& scene) {
  scene.Do("closing what is not open",
           [] { return CloseHelp() || CloseAbout() || ClickSysInfo(); });
  scene.Choose("help without a document", MenuItem::MnuRules);
  for (const char* document : {"{\\rtf1 Old rules}", "{\\rtf1 New rules}", "no such format"}) {
    platform.files["/parlino/ParlinoHelp.rtf"] = document;
    scene.Choose("help", MenuItem::MnuRules);
  }
  scene.Do("closing help", CloseHelp);
  for (const char* folder : {"C:\\Games", "C:\\"}) {
    platform.programFolder = folder;
    platform.files["C:\\Games\\ParlinoHelp.rtf"] = platform.files["C:\\ParlinoHelp.rtf"] =
        "{\\rtf1 Rules}";
    scene.Choose("help", MenuItem::MnuRules);
  }
  scene.Choose("about", MenuItem::MnuAbout);
  scene.Choose("about again", MenuItem::MnuAbout);
  scene.Do("system information", ClickSysInfo);
  scene.Do("closing about", CloseAbout);
  scene.Choose("about", MenuItem::MnuAbout);
}

void Leave(CommandScene& scene) {
  scene.Do("close box, carry on", CloseTableWindow, 1);
  GameInProgress = True;
  scene.Choose("exit, carry on", MenuItem::MnuExit, 1);
  scene.Choose("exit, yes", MenuItem::MnuExit);
  scene.Choose("after the end", MenuItem::MnuNew);
}

}  // namespace

void GiveNames(TranscribedPlatform& platform) {
  CommandScene scene(platform);
  constexpr std::pair<MenuItem, const char*> names[] = {
      {MenuItem::MnuPname, "Ann"},
      {MenuItem::MnuNameBot1, "Bob, \"the\" West"},
      {MenuItem::MnuNameBot2, ""},
      {MenuItem::MnuBot3Name, "Dee"}};
  for (const auto& [item, name] : names) {
    platform.answerInputBox = [name = name](auto, auto, auto) { return name; };
    scene.Choose("names", item);
  }
  platform.answerInputBox = nullptr;
  for (const auto& [item, name] : names) scene.Choose("default names", item);
  platform.filesCanBeWritten = false;
  scene.Choose("a name that cannot be saved", MenuItem::MnuPname);
  platform.filesCanBeWritten = true;
  scene.Do("the welcome panel's button", ClickDontShow);
}

void ChooseCommands(TranscribedPlatform& platform) {
  CommandScene scene(platform);
  scene.Choose("save game", MenuItem::MnuSave);
  LookAtStatistics(scene);
  OpenHelpAndAbout(platform, scene);
  Leave(scene);
  CommandScene second(platform);
  second.Choose("exit without a game", MenuItem::MnuExit);
  CommandScene third(platform);
  third.Do("close box without a game", CloseTableWindow);
}

void StartInTrouble(TranscribedPlatform& platform) {
  const std::pair<const char*, const char*> files[] = {
      {"Names2.dat", nullptr},       {"Names2.dat", "\"Ann\r\n"}, {"Points.dat", "1\r\n"},
      {"SaveGame.dat", "1,2,3\r\n"}, {"Welcome.dat", "TRUE\r\n"}, {"Welcome.dat", "#TRUE#\r\n"}};
  for (const auto& [file, content] : files) {
    TranscribedPlatform fresh;
    fresh.files["Points.dat"] = "3,7\r\n";
    fresh.files.erase(file);
    if (content != nullptr) fresh.files[file] = content;
    SetUp(fresh, 8);
    fresh.Note(std::string("# ") + file + " " + (content == nullptr ? "missing" : Quote(content)));
    Events.Form_Load();
    fresh.Note(JoinText({GamesWon, " of ", GamesPlayed, " won"}));
    platform.transcript.insert(platform.transcript.end(), fresh.transcript.begin(),
                               fresh.transcript.end());
  }
}

}  // namespace Parlino
