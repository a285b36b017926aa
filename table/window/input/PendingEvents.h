// The events that Qt has reported but the game has not been told of yet. Qt's event handlers only
// append here; the events are fired later, where they may leave by an exception.
#pragma once

#include <deque>
#include <optional>

namespace Parlino {

// A door of the table and the number passed through it.
struct PendingEvent {
  bool (*door)(int number);
  int number = 0;
  bool operator==(const PendingEvent&) const = default;
};

class PendingEvents {
 public:
  // For a moving mouse: two identical events in a row count as one.
  void AppendOnce(PendingEvent event) {
    if (events_.empty() || events_.back() != event) events_.push_back(event);
  }
  void Append(PendingEvent event) { events_.push_back(event); }

  std::optional<PendingEvent> TakeFirst() {
    if (events_.empty()) return std::nullopt;
    const PendingEvent first = events_.front();
    events_.pop_front();
    return first;
  }

  void Clear() { events_.clear(); }
  [[nodiscard]] bool IsEmpty() const { return events_.empty(); }

 private:
  std::deque<PendingEvent> events_;
};

}  // namespace Parlino
