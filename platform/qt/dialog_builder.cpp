#include "platform/qt/dialog_builder.h"

#include <QFontMetrics>
#include <cstdio>

#include "platform/qt/accessible_names.h"
#include "platform/qt/dialog_window.h"
#include "platform/qt/message_delivery.h"
#include "platform/qt/tab_order.h"
#include "platform/qt/window_placement.h"
#include "platform/resource_script.h"

namespace {

constexpr wchar_t kDialogClass[] = L"#32770";

/// The averages of the interface font, which is the font of every dialog here. Kept until the font
/// changes, because every dialog and page asks.
void MeasureUnits(DialogPeer& dialog) {
  static QFont measured;
  static QSize units;
  const QFont font = ToQtFont(CFont());
  if (units.isEmpty() || font != measured) {
    const QFontMetrics metrics(font);
    QString letters;
    for (char letter = 'A'; letter <= 'Z'; ++letter) letters += QLatin1Char(letter);
    for (char letter = 'a'; letter <= 'z'; ++letter) letters += QLatin1Char(letter);
    units = QSize((metrics.horizontalAdvance(letters) / 26 + 1) / 2, metrics.height());
    measured = font;
  }
  dialog.baseX = units.width();
  dialog.baseY = units.height();
}

std::optional<DialogTemplate> LoadTemplate(UINT id) {
  const HINSTANCE module = AfxGetResourceHandle();
  if (module == nullptr || module->Resources() == nullptr) return std::nullopt;
  ResourceError error;
  std::optional<DialogTemplate> loaded = module->Resources()->Dialog(id, error);
  if (!error.reason.empty())
    std::fprintf(stderr, "%s: dialog template %u is damaged at offset %zu: %s\n",
                 ToUtf8(module->Name()).c_str(), id, error.offset, error.reason.c_str());
  return loaded;
}

QWidget* MakeWidget(bool child, QWidget* parent) {
  if (child) return new QWidget(parent);
  auto* window = new DialogWindow(parent);
  window->setAttribute(Qt::WA_QuitOnClose, false);
  return window;
}

void ApplyState(const Peer& peer) {
  if ((peer.style & WS_DISABLED) != 0) peer.widget->setEnabled(false);
}

class DialogBuilder {
 public:
  DialogBuilder(CDialog& dialog, UINT templateId, const DialogTemplate& source)
      : dialog_(dialog), templateId_(templateId), source_(source) {}

  HWND Build(HWND parent, DialogUse use) {
    window_ = MakeDialog(parent, use == DialogUse::Modeless);
    if (!MakeControls()) {
      DestroyPeer(window_);
      return nullptr;
    }
    DialogPeer& peer = *FindPeerAs<DialogPeer>(window_);
    GroupRadioButtons(peer);
    peer.namesLater = true;
    ArrangeTabOrder(window_);
    return window_;
  }

 private:
  HWND MakeDialog(HWND parentWindow, bool childAllowed) {
    const Peer* parent = FindPeer(parentWindow);
    const bool child = childAllowed && parent != nullptr && (source_.style & WS_CHILD) != 0;
    auto made = std::make_unique<DialogPeer>();
    DialogPeer& peer = *made;
    peer.widget = MakeWidget(child, parent != nullptr ? parent->widget.data() : nullptr);
    (child ? peer.parent : peer.owner) = parent != nullptr ? parentWindow : nullptr;
    peer.className = kDialogClass;
    peer.templateId = templateId_;
    peer.style = source_.style;
    peer.exStyle = source_.exStyle;
    peer.order = child ? static_cast<int>(parent->children.size()) : 0;
    MeasureUnits(peer);
    const QRect place = DialogPixels(peer, source_.x, source_.y, source_.cx, source_.cy);
    if (child)
      peer.widget->setGeometry(place);
    else
      peer.widget->resize(place.size());
    if (child) peer.widget->hide();
    ApplyState(peer);
    const HWND window = RegisterPeer(std::move(made));
    WindowAttachment::Attach(peer, dialog_);
    peer.SetText(source_.title);
    return window;
  }

  bool MakeControls() {
    int order = 0;
    for (const DialogItemTemplate& item : source_.items)
      if (!MakeControl(item, order++)) return false;
    return true;
  }

  bool MakeControl(const DialogItemTemplate& item, int order) {
    DialogPeer& dialog = *FindPeerAs<DialogPeer>(window_);
    std::unique_ptr<Peer> made =
        MakeControlPeer(item.className, item.style, item.text, dialog.widget);
    if (made == nullptr) {
      std::fprintf(stderr, "Dialog template %u: no window class is called \"%s\".\n", templateId_,
                   ToUtf8(item.className).c_str());
      return false;
    }
    Peer& control = *made;
    control.parent = window_;
    control.id = item.id;
    control.templateId = templateId_;
    control.order = order;
    control.style = item.style;
    control.exStyle = item.exStyle;
    control.widget->setGeometry(DialogPixels(dialog, item.x, item.y, item.cx, item.cy));
    // A frame lies around other controls, wherever it stands in the template.
    if (control.kind == ControlKind::Frame) control.widget->lower();
    control.widget->setVisible((item.style & WS_VISIBLE) != 0);
    ApplyState(control);
    RegisterPeer(std::move(made));
    ApplyTabStop(control);
    const bool button = std::wstring_view(control.className) == L"Button";
    if (button && (item.style & BS_TYPEMASK) == BS_DEFPUSHBUTTON)
      SetDefaultControl(dialog, item.id);
    return true;
  }

  CDialog& dialog_;
  UINT templateId_;
  const DialogTemplate& source_;
  HWND window_ = nullptr;
};

/// Sends the set-up message and gives the focus where it leaves that to the dialog.
void SetUp(HWND window) {
  const Peer* peer = FindPeer(window);
  const QWidget* first = FirstTabStop(*peer);
  const Peer* firstPeer = FindPeer(first);
  const HWND firstWindow = firstPeer != nullptr ? firstPeer->handle : nullptr;
  const bool takesFocus =
      ::SendMessage(window, WM_INITDIALOG, reinterpret_cast<WPARAM>(firstWindow), 0) != FALSE;
  Peer* dialog = FindPeer(window);
  if (dialog == nullptr) return;
  // Once, with the translated texts and the controls that the set-up made.
  dialog->namesLater = false;
  NameControls(*dialog);
  UpdateTrackSize(*dialog);
  peer = FindPeer(window);
  // The focus of a page stays with the tree or list that chose the page.
  if (peer == nullptr || peer->parent != nullptr || !takesFocus) return;
  // The set-up may have disabled, hidden or made controls.
  if (QWidget* widget = FirstTabStop(*peer)) widget->setFocus(Qt::TabFocusReason);
}

}  // namespace

HWND MakeDialogWindow(CDialog& dialog, UINT templateId, HWND parent, DialogUse use) {
  const std::optional<DialogTemplate> source = LoadTemplate(templateId);
  if (!source) return nullptr;
  const HWND window = DialogBuilder(dialog, templateId, *source).Build(parent, use);
  if (window == nullptr) return nullptr;
  try {
    SetUp(window);
  } catch (...) {
    DestroyPeer(window);
    throw;
  }
  return IsWindow(window) ? window : nullptr;
}

HWND OwnerOf(const CWnd* parent) {
  const Peer* peer = FindPeer(parent != nullptr ? parent->GetSafeHwnd() : nullptr);
  while (peer != nullptr && FindPeer(peer->parent) != nullptr) peer = FindPeer(peer->parent);
  return peer != nullptr ? peer->handle : GetActiveWindow();
}

void MapDialogRect(HWND dialog, CRect& rect) {
  const DialogPeer* peer = FindPeerAs<DialogPeer>(dialog);
  if (peer == nullptr) return;
  const QPoint from = DialogPixels(*peer, rect.left, rect.top, 0, 0).topLeft();
  const QPoint to = DialogPixels(*peer, rect.right, rect.bottom, 0, 0).topLeft();
  rect = CRect(from.x(), from.y(), to.x(), to.y());
}
