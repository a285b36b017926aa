// Games in processes of their own, which save at the same time or are killed at any system call of
// a saving: the record is an old or a new one, whole, and what a dead game has left behind goes in
// time.
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/FolderFiles.h"
#include "tests/faults/FaultySystem.h"
#include "tests/support/TemporaryFolder.h"

namespace Parlino {
namespace {

namespace fs = std::filesystem;

constexpr const char* File = "Names2.dat";

// Of many lengths.
std::string Record(char letter) {
  return std::string(static_cast<std::size_t>(letter) * 1931 % 9000, letter);
}

Calls SaveAndDie(const Fault& fault) {
  const TemporaryFolder folder;
  FolderFiles files(folder.Path());
  files.Replace(File, Record('a'));
  const pid_t saver = fault.call == 0 ? 0 : ::fork();
  BeginFault(fault);
  if (saver == 0) files.Replace(File, Record('b'));
  Calls calls = EndFault();
  EXPECT_TRUE(saver == 0 || ::waitpid(saver, nullptr, 0) == saver);
  const std::string content = files.Read(File);
  EXPECT_TRUE(content == Record('b') || (fault.call != 0 && content == Record('a')));
  for (const auto& entry : fs::directory_iterator(folder.Path()))
    fs::last_write_time(entry.path(), entry.last_write_time() - std::chrono::hours(2));
  files.Replace(File, Record('c'));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 1) << "files are left";
  return calls;
}

TEST(Kills, LeaveEachRecordWholeAndNothingForEver) {
  TryAtEveryCall({{0, Manner::Killed}}, SaveAndDie);
}

[[noreturn]] void SaveInTurn(const fs::path& folder, char first) {
  for (int round = 0; round < 300; ++round)
    for (char letter = first; letter <= 'i'; letter = static_cast<char>(letter + 2))
      FolderFiles(folder).Replace(File, Record(letter));
  std::_Exit(EXIT_SUCCESS);
}

TEST(TwoGames, LeaveEachRecordWholeAtAnyMoment) {
  const TemporaryFolder folder;
  FolderFiles reader(folder.Path());
  reader.Replace(File, Record('a'));
  for (const char first : {'a', 'b'})
    if (::fork() == 0) SaveInTurn(folder.Path(), first);
  for (int saversLeft = 2; saversLeft > 0;) {
    const std::string content = reader.Read(File);
    ASSERT_EQ(content, Record(content.at(0)));
    int status = 0;
    if (::waitpid(-1, &status, WNOHANG) <= 0) continue;
    --saversLeft;
    EXPECT_EQ(status, EXIT_SUCCESS);
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 1) << "files are left";
}

}  // namespace
}  // namespace Parlino
