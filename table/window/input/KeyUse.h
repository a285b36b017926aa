// Whether the person plays with the keys. Nobody else needs a mark on what the next Enter takes.
#pragma once

#include <QObject>

namespace Parlino {

class KeyUse : public QObject {
  Q_OBJECT

 public:
  KeyUse();

  // On from the first key that moves or uses a mark until a mouse button is pressed, in whichever
  // window that happens.
  [[nodiscard]] bool IsOn() const { return isOn_; }

  // To be called for each such key.
  void Begin() { Set(true); }

 signals:
  void Changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Set(bool isOn);

  bool isOn_ = false;
};

}  // namespace Parlino
