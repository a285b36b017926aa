#include "table/SystemInfo.h"

#include <array>
#include <exception>
#include <optional>
#include <span>
#include <string_view>

#include "engine/state/ErrorReport.h"
#include "platform/Platform.h"
#include "table/TableView.h"

namespace Parlino {
namespace {

constexpr std::size_t LongestValue = 1024;

// A key of the registry, open for the lifetime of this object if it could be opened.
class OpenKey {
 public:
  OpenKey(std::uint32_t root, std::string_view name)
      : key_(ThePlatform().OpenRegistryKey(root, name, RegistryFullAccess)) {}
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;
  ~OpenKey() {
    if (key_) ThePlatform().CloseRegistryKey(*key_);
  }

  [[nodiscard]] std::optional<RegistryValue> Read(std::string_view name,
                                                  std::span<char> buffer) const {
    return key_ ? ThePlatform().ReadRegistryValue(*key_, name, buffer) : std::nullopt;
  }

 private:
  std::optional<RegistryKey> key_;
};

// The full path of the tool, or empty text where there is none.
std::string FindTool() {
  std::string found;
  if (GetKeyValue(RegistryLocalMachine, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", found))
    return found;
  if (!GetKeyValue(RegistryLocalMachine, "SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO",
                   found))
    return {};
  std::string path = JoinText({found, "\\MSINFO32.EXE"});
  return ThePlatform().FileExists(path) ? path : std::string();
}

bool StartTool() {
  try {
    const std::string path = FindTool();
    if (path.empty()) return false;
    ThePlatform().StartProgram(path);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

void StartSysInfo() {
  if (!StartTool())
    ThePlatform().MsgBox("System Information Is Unavailable At This Time", ApplicationTitle, false);
}

bool GetKeyValue(const std::uint32_t& KeyRoot, const std::string& KeyName,
                 const std::string& SubKeyRef, std::string& KeyVal) {
  const OpenKey key(KeyRoot, KeyName);
  std::array<char, LongestValue> buffer{};
  const auto value = key.Read(SubKeyRef, buffer);
  if (!value) {
    KeyVal.clear();
  } else if (value->type == RegistryString) {
    std::string_view text(buffer.data(), value->length);
    if (text.ends_with('\0')) text.remove_suffix(1);
    KeyVal = text;
  }
  return value.has_value();
}

}  // namespace Parlino
