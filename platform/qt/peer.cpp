#include "platform/qt/peer.h"

#include <QVariant>

#include "platform/qt/accessible_names.h"
#include "platform/qt/event_filter.h"
#include "platform/qt/message_delivery.h"
#include "platform/qt/modal_run.h"
#include "platform/qt/window_table.h"

namespace {

const char* KindText(ControlKind kind) {
  switch (kind) {
    case ControlKind::Dialog:
      return "dialog";
    case ControlKind::Label:
      return "label";
    case ControlKind::Separator:
      return "separator";
    case ControlKind::Picture:
      return "picture";
    case ControlKind::Frame:
      return "frame";
    case ControlKind::Check:
      return "check";
    case ControlKind::Radio:
      return "radio";
    case ControlKind::Push:
      return "push";
    case ControlKind::Image:
      return "image";
    case ControlKind::Colour:
      return "colour";
    case ControlKind::Edit:
      return "edit";
    case ControlKind::Combo:
      return "combo";
    case ControlKind::ListBox:
      return "listbox";
    case ControlKind::List:
      return "list";
    case ControlKind::Tree:
      return "tree";
    case ControlKind::Slider:
      return "slider";
  }
  return "";
}

void ShowKind(const Peer& peer) {
  peer.widget->setProperty("controlKind", QString::fromLatin1(KindText(peer.kind)));
}

void Describe(const Peer& peer) {
  const Peer* parent = FindPeer(peer.parent);
  // A part of a control is nothing that a person would name.
  if (parent != nullptr && parent->kind != ControlKind::Dialog) return;
  QWidget& widget = *peer.widget;
  const bool topLevel = peer.kind == ControlKind::Dialog && peer.parent == nullptr;
  const QString templateName = QString::number(peer.templateId);
  widget.setObjectName(topLevel ? templateName
                                : templateName + QLatin1Char('/') + QString::number(peer.id));
  widget.setProperty("controlNumber", peer.id);
  widget.setProperty("templateNumber", static_cast<int>(peer.templateId));
  widget.setProperty("templateOrder", peer.order);
  ShowKind(peer);
}

/// The toolkit deletes the children of a widget that somebody deletes; their windows end with them.
void ForgetWindow(HWND window) {
  const std::unique_ptr<Peer> peer = WindowTable::Get().Remove(window);
  if (peer == nullptr) return;
  WindowAttachment::Release(*peer);
  if (Peer* parent = FindPeer(peer->parent))
    std::erase_if(parent->children, [window](const auto& child) { return child.window == window; });
}

}  // namespace

HWND RegisterPeer(std::unique_ptr<Peer> peer) {
  Peer& entered = *peer;
  if (entered.module == nullptr) entered.module = AfxGetResourceHandle();
  entered.modalDepth = ModalRun::Depth();
  const HWND window = WindowTable::Get().Add(std::move(peer));
  if (Peer* parent = FindPeer(entered.parent)) parent->children.push_back({window, entered.id});
  Describe(entered);
  InstallEventFilter(entered);
  QObject::connect(entered.widget, &QObject::destroyed, [window] { ForgetWindow(window); });
  entered.MakeParts();
  return window;
}

void SetPeerKind(Peer& peer, ControlKind kind) {
  peer.kind = kind;
  if (peer.widget == nullptr) return;
  ShowKind(peer);
  UpdateAccessibleName(peer);
}

bool IsInteractive(const Peer& peer) {
  switch (peer.kind) {
    case ControlKind::Dialog:
    case ControlKind::Label:
    case ControlKind::Separator:
    case ControlKind::Picture:
    case ControlKind::Frame:
      return false;
    default:
      return true;
  }
}

LRESULT Peer::DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETFONT: {
      const auto* font = reinterpret_cast<const CFont*>(wParam);
      SetFont(ToQtFont(font != nullptr ? *font : CFont()));
      return 0;
    }
    case WM_SETREDRAW:
      if (widget != nullptr) widget->setUpdatesEnabled(wParam != 0);
      return 0;
    case WM_PAINT:
      defaultReached = true;
      return 0;
    case WM_CONTEXTMENU: {
      // Edits and combos bring their own menu; the others ask the windows around them.
      const bool ownMenu = kind == ControlKind::Edit || kind == ControlKind::Combo;
      if (!ownMenu && FindPeer(parent) != nullptr)
        return ::SendMessage(parent, message, wParam, lParam);
      if (Peer* asked = FindPeer(reinterpret_cast<HWND>(wParam))) asked->defaultReached = true;
      return 0;
    }
    default:
      return 0;
  }
}

std::wstring Peer::Text() const { return text; }
void Peer::SetText(const std::wstring& newText) { text = newText; }

void Peer::SetFont(const QFont& font) {
  if (widget != nullptr && widget->font() != font) widget->setFont(font);
}

LRESULT SendFromToolkit(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  GuardToolkitCall([&] { result = ::SendMessage(window, message, wParam, lParam); });
  return result;
}

LRESULT NotifyCommand(const Peer& peer, UINT code) {
  if (FindPeer(peer.handle) != &peer) return 0;
  return SendFromToolkit(peer.parent, WM_COMMAND,
                         static_cast<WPARAM>(static_cast<DWORD>(MAKELPARAM(peer.id, code))),
                         reinterpret_cast<LPARAM>(peer.handle));
}

LRESULT NotifyParent(const Peer& peer, NMHDR& header, UINT code) {
  if (FindPeer(peer.handle) != &peer) return 0;
  header = {peer.handle, static_cast<UINT_PTR>(peer.id), code};
  return SendFromToolkit(peer.parent, WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}
