// Whether the person plays by keys. A mark on what the next Enter takes is of use to nobody else.
#pragma once

#include <QObject>

namespace Parlino {

class KeyUse : public QObject {
  Q_OBJECT

 public:
  KeyUse();

  // From the first key that moves a mark or uses it until the mouse is pressed, whatever window
  // they come to.
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
