#pragma once

// The edit part of a combo box, a window of its own. Private to the platform layer.

#include <functional>

#include "platform/qt/edit_peer.h"

class PathCompletion;
class QKeyEvent;

class ComboEditPeer final : public LineEditPeer {
 public:
  explicit ComboEditPeer(QLineEdit& edit);
  ~ComboEditPeer() override;

  /// The text is the combo's.
  void SetText(const std::wstring& newText) override;
  /// The part is drawn in the font of its combo.
  void SetFont(const QFont&) override {}
  LRESULT DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) override;

  /// Sends the messages of a key that the combo got; `act` is what the combo does with the key, and
  /// runs in the midst of the last of them. The window may be gone afterwards.
  void OnKey(QKeyEvent& event, const std::function<void()>& act);

  void StartCompletion();
  /// Null while nothing completes the text.
  PathCompletion* Completion() const { return completion_.get(); }
  void CloseCompletion() const;

 private:
  bool OnKeyDown(UINT key);
  void Act();

  std::unique_ptr<PathCompletion> completion_;
  std::function<void()> act_;    ///< Of the key whose messages are under way.
  bool characterLater_ = false;  ///< WM_CHAR follows the message under way.
};
