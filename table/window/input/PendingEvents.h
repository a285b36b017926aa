// The events that the toolkit has reported and the game has not yet been told of. The toolkit's
// handlers only append here; the events are raised later, where an exception may leave.
#pragma once

#include <deque>
#include <optional>

namespace Parlino {

// A door of the table and the number that goes through it.
struct PendingEvent {
  bool (*door)(int number);
  int number = 0;
  bool operator==(const PendingEvent&) const = default;
};

class PendingEvents {
 public:
  // The same event twice in a row is one when it comes from a mouse that moves.
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
