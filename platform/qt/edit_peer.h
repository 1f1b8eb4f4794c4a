#pragma once

// Edit controls of one line and of several. Private to the platform layer.

#include "platform/qt/peer.h"

class QLineEdit;

class EditPeer : public Peer {
 public:
  /// Makes the one that the style asks for.
  static std::unique_ptr<Peer> Make(DWORD style, const std::wstring& text, QWidget* parent);

  /// Characters from `start` to `end`, the caret at `end`. (0, -1) selects all, a start of -1
  /// nothing.
  virtual void SetSelection(int start, int end) = 0;
  virtual std::pair<int, int> Selection() const = 0;
  virtual void SetReadOnly(bool readOnly) = 0;
  /// Greatest number of characters that can be typed; 0 takes the limit away.
  virtual void SetLimit(int characters) = 0;
};

/// A field of one line, which the caller has made.
class LineEditPeer : public EditPeer {
 public:
  explicit LineEditPeer(QLineEdit& edit);

  std::wstring Text() const override;
  void SetText(const std::wstring& newText) override;
  void SetSelection(int start, int end) override;
  std::pair<int, int> Selection() const override;
  void SetReadOnly(bool readOnly) override;
  void SetLimit(int characters) override;

 protected:
  QLineEdit& Edit() const;
};
