// parlino-kill-saves: kills a game that saves without end, and looks at what is on the disk.
//
//   parlino-kill-saves --kills N --seed S
//
// Each record must be the last one whose saving ended or the one under way, whole, and a new game
// must start with them. Ends with status 1 at the first fault and leaves the folder as it is then.

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "game/Game.h"
#include "headless/HeadlessInFolder.h"
#include "table/TableEvents.h"
#include "tools/CommandLine.h"
#include "tools/kill-saves/States.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

struct Options {
  int kills = 0;
  std::uint32_t seed = 0;
};

// The numbers of the states whose saving has begun and ended, by record. The killed process leaves
// them in memory that both share.
struct Progress {
  std::atomic<std::uint32_t> begun[RecordCount];
  std::atomic<std::uint32_t> ended[RecordCount];
};

struct Figures {
  int kills = 0;
  int amidSaving = 0;
  int records = 0;
};

struct KillFault : std::runtime_error {
  using runtime_error::runtime_error;
};

Progress& ShareProgress() {
  void* memory =
      ::mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) throw KillFault("no memory can be shared");
  return *new (memory) Progress{};
}

void SaveState(std::uint32_t number, Progress& progress) {
  PutState(number);
  for (std::size_t record = 0; record < RecordCount; ++record) {
    progress.begun[record] = number;
    if (!SavedRecords[record].save()) std::_Exit(EXIT_FAILURE);
    progress.ended[record] = number;
  }
}

// The life of the process that is killed. It ends by itself only when nobody is left to kill it.
[[noreturn]] void SaveWithoutEnd(const fs::path& folder, Progress& progress, pid_t killer) {
  HeadlessInFolder platform(folder);
  UsePlatform(platform);
  for (std::uint32_t number = progress.begun[0] + 1; ::getppid() == killer; ++number)
    SaveState(number, progress);
  std::_Exit(EXIT_FAILURE);
}

void KillASaver(const fs::path& folder, Progress& progress, useconds_t afterMicroseconds) {
  const pid_t killer = ::getpid();
  const pid_t saver = ::fork();
  if (saver < 0) throw KillFault("no process can be started");
  if (saver == 0) SaveWithoutEnd(folder, progress, killer);
  ::usleep(afterMicroseconds);
  ::kill(saver, SIGKILL);
  int status = 0;
  ::waitpid(saver, &status, 0);
  if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL)
    throw KillFault("a record could not be saved");
}

// A record that was in its place when the process died counts as saved from then on.
void CheckRecords(const fs::path& folder, Progress& progress, Figures& figures) {
  bool amidSaving = false;
  for (std::size_t place = 0; place < RecordCount; ++place) {
    const SavedRecord& record = SavedRecords[place];
    const std::string content = FolderFiles(folder).Read(record.file);
    amidSaving = amidSaving || progress.begun[place] != progress.ended[place];
    if (content == ContentInState(record, progress.begun[place]))
      progress.ended[place] = progress.begun[place].load();
    else if (content != ContentInState(record, progress.ended[place]))
      throw KillFault(std::string(record.file) + " is of no state that was saved");
    ++figures.records;
  }
  figures.amidSaving += amidSaving ? 1 : 0;
}

void StartAGame(const fs::path& folder) {
  HeadlessInFolder platform(folder);
  platform.onMsgBox = [](std::string_view text) { throw KillFault(std::string(text)); };
  SetUpGame(platform);
  Events.Form_Load();
}

int CountTemporaries(const fs::path& folder) {
  const auto files = std::distance(fs::directory_iterator(folder), {});
  return static_cast<int>(files) - static_cast<int>(RecordCount);
}

// A day later every record is saved once more; returns how many temporary files are left then.
int SaveADayLater(const fs::path& folder, Progress& progress) {
  for (const auto& entry : fs::directory_iterator(folder))
    fs::last_write_time(entry.path(), entry.last_write_time() - std::chrono::hours(24));
  HeadlessInFolder platform(folder);
  UsePlatform(platform);
  SaveState(progress.begun[0] + 1, progress);
  return CountTemporaries(folder);
}

void KillAndCheck(const Options& options, const fs::path& folder) {
  constexpr useconds_t longestLife = 40'000;
  Progress& progress = ShareProgress();
  Figures figures;
  std::mt19937 random(options.seed);
  {
    HeadlessInFolder platform(folder);
    UsePlatform(platform);
    SaveState(1, progress);
  }
  while (figures.kills < options.kills) {
    KillASaver(folder, progress, static_cast<useconds_t>(random() % longestLife));
    ++figures.kills;
    CheckRecords(folder, progress, figures);
    StartAGame(folder);
  }
  const int left = CountTemporaries(folder);
  std::printf("kills               %d, %d amid a saving\nstates saved        %u\n", figures.kills,
              figures.amidSaving, progress.ended[RecordCount - 1].load());
  std::printf("records checked     %d, all whole\ntemporaries left    %d\n", figures.records, left);
  const int leftNextDay = SaveADayLater(folder, progress);
  std::printf("left a day later    %d\n", leftNextDay);
  if (leftNextDay != 0) throw KillFault("old temporary files are not removed");
}

}  // namespace
}  // namespace Parlino

int main(int count, char** arguments) {
  Parlino::Options options;
  if (!Parlino::ParseCommandLine(count, arguments,
                                 {{"--kills", Parlino::TakeNumber(options.kills, 1)},
                                  {"--seed", Parlino::TakeNumber(options.seed)}})) {
    std::fputs("usage: parlino-kill-saves --kills N --seed S\n", stderr);
    return 2;
  }
  std::string folder = std::filesystem::temp_directory_path() / "parlino-kill-saves-XXXXXX";
  if (::mkdtemp(folder.data()) == nullptr) return 2;
  try {
    Parlino::KillAndCheck(options, folder);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "fault: %s\nsee %s\n", fault.what(), folder.c_str());
    return 1;
  }
  std::filesystem::remove_all(folder);
  return 0;
}
