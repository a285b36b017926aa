#include "table/window/speaking/AssistiveTools.h"

#include <utility>

#include <QAccessibleWidget>
#include <QWidget>

#include "table/window/speaking/SpokenScores.h"

namespace Parlino {
namespace {

class SpokenPart : public QAccessibleWidget {
 public:
  SpokenPart(QWidget* widget, const Speaker& speaker)
      : QAccessibleWidget(widget), speaker_(speaker) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? speaker_.speak().name : QAccessibleWidget::text(kind);
  }
  [[nodiscard]] QAccessible::Role role() const override { return speaker_.speak().role; }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const Spoken spoken = speaker_.speak();
    state.focusable = spoken.canBePressed || widget()->focusPolicy() != Qt::NoFocus;
    state.modal = widget()->isModal();
    state.invisible = state.invisible || spoken.isOnlyForEyes;
    return state;
  }

  // The position of a card that lies face down would reveal whose it is.
  [[nodiscard]] QRect rect() const override {
    return speaker_.speak().isOnlyForEyes ? QRect() : QAccessibleWidget::rect();
  }

  [[nodiscard]] QStringList actionNames() const override {
    if (!speaker_.speak().canBePressed) return {};
    return {pressAction(), setFocusAction()};
  }

  void doAction(const QString& action) override {
    if (action == pressAction() && speaker_.speak().canBePressed)
      speaker_.press();
    else
      QAccessibleWidget::doAction(action);
  }

 private:
  const Speaker& speaker_;
};

QAccessibleInterface* FindVoice(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  if (const auto* speaker = dynamic_cast<const Speaker*>(object))
    return new SpokenPart(widget, *speaker);
  return FindVoiceOfScores(widget);
}

}  // namespace

void IntroduceSpeakers() {
  QAccessible::installFactory(FindVoice);
}

void TellTools(QWidget* widget, QAccessible::Event what) {
  QAccessibleEvent event(widget, what);
  QAccessible::updateAccessibility(&event);
}

void SpokenChanges::MeetSpeakers() {
  for (QWidget* widget : table_.findChildren<QWidget*>())
    if (const auto* speaker = dynamic_cast<const Speaker*>(widget))
      told_.push_back({widget, speaker, speaker->speak()});
}

void SpokenChanges::Tell() {
  if (!isHeard()) return told_.clear();
  if (told_.empty()) return MeetSpeakers();
  for (auto& [widget, speaker, last] : told_) {
    const Spoken before = std::exchange(last, speaker->speak());
    const bool saysMore = last.name != before.name && last.role == QAccessible::Notification;
    if (last.name != before.name) report(widget, QAccessible::NameChanged);
    if (last.isOnlyForEyes && !before.isOnlyForEyes)
      report(widget, QAccessible::ObjectHide);
    else if (last.isOnlyForEyes != before.isOnlyForEyes || (saysMore && !last.isOnlyForEyes))
      report(widget, QAccessible::ObjectShow);  // tools read a notification when it appears
  }
}

}  // namespace Parlino
