#pragma once

// How the person gave the last input; popups open where that input was.

#include <QPoint>

struct LastInput {
  bool byKey = false;
  QPoint pointer;  ///< Global position of the last mouse press or release.
};

/// The last key or mouse event that any window of this process got.
const LastInput& GetLastInput();
