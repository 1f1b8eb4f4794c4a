#include "platform/qt/slider_peer.h"

#include "platform/qt/control_parts.h"

namespace {

// The thumb's place travels with the message of a drag.
constexpr WORD kThumbTrack = 5;

}  // namespace

SliderPeer::SliderPeer(DWORD, const std::wstring&, QWidget* host) {
  kind = ControlKind::Slider;
  auto* slider = new QSlider(Qt::Horizontal, host);
  widget = slider;
  slider->setFocusPolicy(Qt::StrongFocus);
  slider->setSingleStep(1);
  slider->setPageStep(1);
  slider->setTickInterval(1);
  slider->setTickPosition(QSlider::TicksBelow);
  QObject::connect(slider, &QSlider::valueChanged, slider, [slider] {
    if (auto* peer = PeerOf<SliderPeer>(slider)) peer->OnMoved();
  });
}

void SliderPeer::SetRange(int minimum, int maximum) {
  moving_ = true;
  Slider().setRange(minimum, maximum);
  moving_ = false;
}

void SliderPeer::SetPosition(int position) {
  moving_ = true;
  Slider().setValue(position);
  moving_ = false;
}

void SliderPeer::OnMoved() {
  if (moving_) return;
  const auto place = static_cast<WORD>(Position());
  SendFromToolkit(parent, WM_HSCROLL, WPARAM{place} << 16 | kThumbTrack,
                  reinterpret_cast<LPARAM>(handle));
}
