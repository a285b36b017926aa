// Keys as a player thinks of them.
#pragma once

#include <optional>

#include <QKeyEvent>

#include "engine/state/Errors.h"

namespace Parlino {

// Enter on the main keyboard or on the number pad.
inline bool IsEnter(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

// The keys that accept what is marked.
inline bool IsEnterOrSpace(const QKeyEvent& key) {
  return IsEnter(key) || key.key() == Qt::Key_Space;
}

// Tab in either direction.
inline bool IsTab(const QKeyEvent& key) {
  return key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
}

inline bool IsArrow(const QKeyEvent& key) {
  return key.key() >= Qt::Key_Left && key.key() <= Qt::Key_Down;
}

// A key pressed together with others is a command, except with Shift, which some keyboards need for
// digits.
inline bool IsPlain(const QKeyEvent& key) {
  return (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
}

std::optional<int> DigitOf(const QKeyEvent& key);

// The suit whose name begins with this letter.
std::optional<Integer> SuitOf(const QKeyEvent& key);

}  // namespace Parlino
