#pragma once

// Horizontal sliders. Private to the platform layer.

#include <QSlider>

#include "platform/qt/peer.h"

class SliderPeer final : public Peer {
 public:
  SliderPeer(DWORD style, const std::wstring& initialText, QWidget* host);

  void SetRange(int minimum, int maximum);
  int Position() const { return Slider().value(); }
  /// Moves the thumb without telling the parent.
  void SetPosition(int position);

 private:
  QSlider& Slider() const { return static_cast<QSlider&>(*widget); }
  void OnMoved();

  bool moving_ = false;  ///< The program moves the thumb, not the user.
};
