#include "platform/qt/button_peer.h"
#include "platform/qt/combo_peer.h"
#include "platform/qt/edit_peer.h"
#include "platform/qt/list_box_peer.h"
#include "platform/qt/list_peer.h"
#include "platform/qt/slider_peer.h"
#include "platform/qt/static_peer.h"
#include "platform/qt/tree_peer.h"

namespace {

using Maker = std::unique_ptr<Peer> (*)(DWORD style, const std::wstring& text, QWidget* parent);

template <class Kind>
std::unique_ptr<Peer> Make(DWORD style, const std::wstring& text, QWidget* parent) {
  return std::make_unique<Kind>(style, text, parent);
}

std::unique_ptr<Peer> MakeCombo(DWORD style, const std::wstring& text, QWidget* parent) {
  if ((style & CBS_DROPDOWNLIST) == CBS_SIMPLE) return nullptr;  // A list that never closes.
  return Make<ComboPeer>(style, text, parent);
}

struct ControlClass {
  const wchar_t* name;  // As documented; the resource compiler changes the case.
  Maker make;
};

constexpr ControlClass kClasses[] = {
    {L"Static", &Make<StaticPeer>},      {L"Button", &Make<ButtonPeer>},
    {L"Edit", &EditPeer::Make},          {L"ComboBox", &MakeCombo},
    {L"SysTreeView32", &Make<TreePeer>}, {L"msctls_trackbar32", &Make<SliderPeer>},
    {L"ListBox", &Make<ListBoxPeer>},    {L"SysListView32", &Make<ListPeer>},
};

const ControlClass* FindClass(const std::wstring& name) {
  for (const ControlClass& known : kClasses) {
    if (CString(name).CompareNoCase(known.name) == 0) return &known;
  }
  return nullptr;
}

}  // namespace

std::unique_ptr<Peer> MakeControlPeer(const std::wstring& className, DWORD style,
                                      const std::wstring& text, QWidget* parent) {
  const ControlClass* known = FindClass(className);
  if (known == nullptr) return nullptr;
  auto peer = known->make(style, text, parent);
  if (peer == nullptr) return nullptr;
  peer->className = known->name;
  peer->style = style;
  return peer;
}
