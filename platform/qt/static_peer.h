#pragma once

// Static controls: labels, pictures, frames and rules. Private to the platform layer.

#include <QLabel>
#include <QPixmap>

#include "platform/qt/peer.h"

/// The widget is always a QLabel, so that a label can be given its buddy.
class StaticPeer final : public Peer {
 public:
  StaticPeer(DWORD style, const std::wstring& initialText, QWidget* host);

  void SetText(const std::wstring& newText) override;
  /// Shows the picture in its own size instead of the text.
  void SetPicture(const QPixmap& picture);

 private:
  QLabel& Label() const { return static_cast<QLabel&>(*widget); }
};
