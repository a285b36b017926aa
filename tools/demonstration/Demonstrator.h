// An automatic South at the real window: looks at the table, moves and clicks the mouse like a
// person, and saves pictures along the way.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include <QElapsedTimer>
#include <QObject>

class QWidget;

namespace Parlino {

class Demonstrator : public QObject {
 public:
  // Pictures go into `folder`; if it is empty, none are saved.
  explicit Demonstrator(std::filesystem::path folder);

  [[nodiscard]] const std::vector<std::string>& Pictures() const { return pictures_; }
  // The lines of the list of cards played, as they were when the hand was scored.
  [[nodiscard]] const std::vector<std::string>& CardsPlayed() const { return cardsPlayed_; }

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void Act();
  void LeaveWithScore();
  void TakePicture(const char* name);
  bool HasPicture(const char* name) const { return taken_.contains(name); }

  QElapsedTimer clock_;
  std::filesystem::path folder_;
  std::set<std::string> taken_;
  std::vector<std::string> pictures_;
  std::vector<std::string> cardsPlayed_;
};

}  // namespace Parlino
