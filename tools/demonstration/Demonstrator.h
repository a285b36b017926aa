// A person who plays one hand in the real window, as a robot would, and saves pictures along the
// way.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <QElapsedTimer>
#include <QObject>

#include "table/window/QtPlatform.h"
#include "tests/window/PersonAtWindow.h"

namespace Parlino {

// A person looks before every click.
inline constexpr int ThinkingMs = 600;

class Demonstrator : public QObject {
 public:
  // Pictures go into `folder`; if it is empty, none are saved.
  explicit Demonstrator(std::filesystem::path folder, int thinkingMs = ThinkingMs);

  // Prints the lines of the list of cards played and the names of the pictures, and returns whether
  // the hand was played to its end.
  [[nodiscard]] bool Report() const;

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void TakePicture(const char* name);

  PersonAtWindow person_;
  QElapsedTimer clock_;
  std::filesystem::path folder_;
  std::set<std::string> taken_;
  std::vector<std::string> pictures_;
  std::vector<std::string> cardsPlayed_;
};

// Plays a hand worth looking at in the window of the platform, whose folder is the one for the
// pictures. Returns the exit status.
int Demonstrate(QtPlatform& platform, const std::filesystem::path& folder,
                int thinkingMs = ThinkingMs);

}  // namespace Parlino
