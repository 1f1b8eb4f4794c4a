#pragma once

// The process' user-interface toolkit.

#include <memory>

/// Starts the toolkit; exactly one object, made before the first window and destroyed after the
/// last. Without a display it works on an offscreen platform. One pixel of this layer is one
/// physical pixel: the toolkit's own scaling is switched off, and dialogs scale with the logical
/// pixels per inch as their units say.
class ToolkitApplication {
 public:
  /// `argv` must outlive the object. `dpi` replaces the screen's logical pixels per inch when it is
  /// not 0.
  ToolkitApplication(int& argc, char** argv, int dpi = 0);
  ~ToolkitApplication();

  /// Handles all events that are waiting.
  static void ProcessEvents();

 private:
  struct Implementation;
  std::unique_ptr<Implementation> implementation_;
};
