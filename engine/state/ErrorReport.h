// The report that a procedure gives of its own failures.
#pragma once

#include <exception>
#include <string_view>
#include <type_traits>

namespace Parlino {

// Shows the player an error caught in `procedure`. Set once, before the rest of the game runs.
inline void (*ShowErrorReport)(std::string_view procedure, const std::exception& error) = nullptr;

// Runs the body of `procedure`. An error in it is shown to the player and ends the procedure, whose
// result, if it has one, is then zero. HandAbandoned and ProgramEnded pass through, because they
// are not errors.
template <class Body>
auto ReportErrors(std::string_view procedure, Body&& body) -> std::invoke_result_t<Body> {
  using Result = std::invoke_result_t<Body>;
  try {
    return body();
  } catch (const std::exception& error) {
    ShowErrorReport(procedure, error);
  }
  if constexpr (!std::is_void_v<Result>) return Result{};
}

}  // namespace Parlino
