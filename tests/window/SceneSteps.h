// The words of which scenes are made; scenes/README.md explains them.
#pragma once

#include <map>

#include <QString>
#include <QStringList>
#include <QWidget>

#include "ScenePlayer.h"
#include "engine/state/GameState.h"

namespace Parlino {

// A step with the words that are still to be read.
class Words {
 public:
  Words(ScenePlayer& player, const QString& line)
      : player(player), words_(line.split(' ', Qt::SkipEmptyParts)) {}

  QString Next() { return words_.isEmpty() ? QString() : words_.takeFirst(); }
  int Number() { return Next().toInt(); }
  std::string Rest() { return words_.join(' ').replace("\\n", "\n").toStdString(); }
  Integer Card();
  Integer Seat();
  // A card or any other part by its name.
  QWidget& Part();
  // Two numbers with a comma between them, or those given here.
  QPoint Point(QPoint otherwise = {});
  [[nodiscard]] bool IsEmpty() const { return words_.isEmpty(); }
  void Tell(const QString& what) { player.Tell(what); }

  ScenePlayer& player;

 private:
  QStringList words_;
};

using Steps = std::map<QString, void (*)(Words& words)>;

// What a person and the desktop do; what the game does; what a scene asks.
extern const Steps StepsOfPerson, StepsOfGame, Questions;

}  // namespace Parlino
