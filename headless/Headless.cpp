#include "headless/Headless.h"

#include <algorithm>
#include <cerrno>

#include "engine/state/Errors.h"
#include "persistence/DataFiles.h"
#include "table/MessageDialog.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr std::uint64_t MsInDay = 86'400'000;

std::string_view NameOf(WindowName window) {
  switch (window) {
    case WindowName::frmAbout:
      return "frmAbout";
    case WindowName::MFormDeluxe:
      return "MFormDeluxe";
    case WindowName::FrmMain:
      return "FrmMain";
    default:
      return "frmHelp";
  }
}

}  // namespace

HeadlessPlatform::HeadlessPlatform() {
  for (const FirstRecord& first : FirstRecords) files.emplace(first.file, first.record);
}

void HeadlessPlatform::ProcessEvents(std::uint32_t atMostMs) {
  struct Level {
    explicit Level(int& depth) : depth_(depth) { ++depth_; }
    Level(const Level&) = delete;
    Level& operator=(const Level&) = delete;
    ~Level() { --depth_; }
    int& depth_;
  } const level(depth);
  deepest = std::max(deepest, depth);

  if (atMostMs == Forever) return WaitForScript();
  const std::uint32_t start = ticks;
  script(atMostMs);
  if (ticks - start < atMostMs) ticks = start + atMostMs;
}

void HeadlessPlatform::WaitForScript() {
  const std::uint64_t changesBefore = Table.Changes;
  const bool dialogBefore = MFormDeluxe.Visible;
  script(Forever);
  const bool nothingHappened =
      Table.Changes == changesBefore && MFormDeluxe.Visible == dialogBefore;
  idleCalls_ = nothingHappened ? idleCalls_ + 1 : 0;
  if (idleCalls_ > mostIdleCalls) throw ScriptHasNothingToSay{};
}

double HeadlessPlatform::ClockSeconds() {
  if (clock) return clock();
  return static_cast<double>((std::uint64_t{clockAtStart} + ticks) % MsInDay) * 0.001;
}

void HeadlessPlatform::Record(Pieces line) {
  if (keepsRecord) record.push_back(JoinText(line));
}

void HeadlessPlatform::StartSound(std::string_view fileName) {
  Record({"sound ", fileName});
}

std::string HeadlessPlatform::InputBox(std::string_view prompt, std::string_view title,
                                       std::string_view defaultAnswer) {
  Record({"asks \"", prompt, "\" titled \"", title, "\" offering \"", defaultAnswer, "\""});
  std::string answer =
      answerInputBox ? answerInputBox(prompt, title, defaultAnswer) : std::string(defaultAnswer);
  Record({"> \"", answer, "\""});
  return answer;
}

void HeadlessPlatform::MsgBox(std::string_view text, std::string_view title, bool critical) {
  Record({critical ? "critical box \"" : "box \"", text, "\" titled \"", title, "\""});
  onMsgBox(text);
}

// An estimate: 34 characters of the dialog's font fill a line 3375 twips wide.
int HeadlessPlatform::PromptHeight(std::string_view prompt, int width) {
  constexpr int twipsOfCharacter = 99;
  constexpr int twipsOfLine = 225;
  const int perLine = width / twipsOfCharacter;
  return twipsOfLine * std::max(1, (static_cast<int>(prompt.size()) + perLine - 1) / perLine);
}

ScreenSize HeadlessPlatform::Screen() {
  return {1280 * 15, 1024 * 15};
}

void HeadlessPlatform::CloseWindow(WindowName window) {
  Record({"closes ", NameOf(window)});
}

std::string HeadlessPlatform::ReadFile(std::string_view fileName) {
  Record({"reads ", fileName});
  const auto file = files.find(fileName);
  if (file == files.end())
    throw GameError(ENOENT, JoinText({fileName, " cannot be read: No such file or directory"}));
  return file->second;
}

std::string HeadlessPlatform::ReplaceFile(std::string_view fileName, std::string_view content) {
  Record({"writes ", fileName, " \"", content, "\""});
  if (!filesCanBeWritten || fileName == fileThatCannotBeWritten)
    throw GameError(EROFS, JoinText({fileName, " cannot be written: Read-only file system"}));
  files.insert_or_assign(std::string(fileName), std::string(content));
  return {};
}

std::string HeadlessPlatform::SetFileAside(std::string_view fileName) {
  Record({"sets aside ", fileName});
  std::string content = ReadFile(fileName);
  const std::string aside = std::string(fileName) + ".bad";
  std::string name = aside;
  for (int number = 2; files.contains(name); ++number) name = aside + std::to_string(number);
  files.emplace(name, std::move(content));
  files.erase(files.find(fileName));
  return programFolder + name;
}

bool HeadlessPlatform::FileExists(std::string_view fileName) {
  return files.contains(fileName);
}

std::optional<RegistryKey> HeadlessPlatform::OpenRegistryKey(std::uint32_t root,
                                                             std::string_view name,
                                                             std::uint32_t rights) {
  const bool isThere = std::ranges::any_of(
      registry, [name](const auto& value) { return value.first.first == name; });
  const bool isOpened = isThere && root == RegistryLocalMachine && (rights & ~registryRights) == 0;
  Record({isOpened ? "opens key " : "cannot open key ", name});
  if (!isOpened) return std::nullopt;
  openKeys_.emplace(++lastKey_, name);
  return lastKey_;
}

std::optional<RegistryValue> HeadlessPlatform::ReadRegistryValue(RegistryKey key,
                                                                 std::string_view name,
                                                                 std::span<char> buffer) {
  if (registryRaises) throw GameError(EIO, "The registry cannot be read");
  const auto value = registry.find({openKeys_.at(key), std::string(name)});
  if (value == registry.end() || value->second.bytes.size() > buffer.size()) return std::nullopt;
  const auto& [type, bytes] = value->second;
  std::ranges::copy(bytes, buffer.begin());
  return RegistryValue{type, static_cast<std::uint32_t>(bytes.size())};
}

void HeadlessPlatform::CloseRegistryKey(RegistryKey key) {
  Record({"closes key"});
  openKeys_.erase(key);
}

void HeadlessPlatform::StartProgram(std::string_view path) {
  if (!files.contains(path))
    throw GameError(ENOENT, JoinText({path, " cannot be started: No such file or directory"}));
  Record({"starts ", path});
}

}  // namespace Parlino
