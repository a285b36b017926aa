// The window's platform with a person who may do anything. Time and clock are virtual.
#pragma once

#include "tests/chaos/ChaosSession.h"
#include "tests/window/WindowGame.h"

namespace Parlino {

class ChaosPlatform : public QuickPlatform {
 public:
  // The caller sets `person`, which is called when everything is shown as it is in the model.
  ChaosPlatform(const std::filesystem::path& folder, ChaosSession& session)
      : QuickPlatform(folder), session_(session) {}

  // How many waits are nested inside each other, and how many of them are boxes.
  [[nodiscard]] int Depth() const { return depth_; }
  [[nodiscard]] int BoxesOpen() const { return boxesOpen_; }

  void ProcessEvents(std::uint32_t atMostMs) override;
  std::string InputBox(std::string_view prompt, std::string_view title,
                       std::string_view defaultAnswer) override;
  void MsgBox(std::string_view text, std::string_view title, bool critical) override;

 protected:
  void WaitForQt(std::uint32_t atMostMs) override;

 private:
  ChaosSession& session_;
  int depth_ = 0;
  int boxesOpen_ = 0;
};

}  // namespace Parlino
