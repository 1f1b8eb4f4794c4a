#pragma once

// The Qt side of a window handle. Private to the platform layer.

#include <QPointer>
#include <QString>
#include <QWidget>
#include <exception>
#include <memory>
#include <vector>

#include "platform/messages.h"
#include "platform/wnd.h"

/// What a control is to a person; the texts are the value of its "controlKind" property.
enum class ControlKind {
  Dialog,
  Label,      // "label"
  Separator,  // "separator"
  Picture,    // "picture"
  Frame,      // "frame"
  Check,      // "check"
  Radio,      // "radio"
  Push,       // "push"
  Image,      // "image"
  Colour,     // "colour"
  Edit,       // "edit"
  Combo,      // "combo"
  ListBox,    // "listbox"
  List,       // "list"
  Tree,       // "tree"
  Slider,     // "slider"
};

/// A direct child window with its number, so that looking a control up touches nothing else.
struct ChildWindow {
  HWND window = nullptr;
  int id = 0;
};

/// One window: its widget, the object attached to it, and what its template said. Owned by the
/// window table until its window is destroyed; the widget dies a little later, when the event loop
/// is reached again, so that it may be destroyed during its own message.
struct Peer {
  virtual ~Peer() = default;

  HWND handle = nullptr;
  HWND parent = nullptr;  ///< The dialog that holds a control, or the parent of a child dialog.
  QPointer<QWidget> widget;
  CWnd* attached = nullptr;         ///< Set by SubclassDlgItem and by dialogs; not owned.
  std::unique_ptr<CWnd> temporary;  ///< Stands in where nothing is attached.
  ControlKind kind = ControlKind::Dialog;
  const wchar_t* className = L"";
  int id = 0;
  UINT templateId = 0;  ///< Of the dialog itself, or of the dialog that holds the control.
  int order = 0;        ///< Place in template order; run-time controls count on.
  DWORD style = 0;
  DWORD exStyle = 0;
  bool toolTips = false;
  HWND owner = nullptr;               ///< Of a top-level dialog; it is destroyed with its owner.
  std::vector<ChildWindow> children;  ///< Direct children in template order.
  HINSTANCE module = nullptr;         ///< Current when the window was made, and in its messages.
  std::wstring spokenName;            ///< Names the control instead of any text; may be empty.
  std::wstring text;                  ///< The text of a window whose widget shows none.
  int modalDepth = 0;                 ///< Number of modal runs when the window was made.
  bool exchanging = false;            ///< Inside UpdateData; the notifications of controls rest.
  bool namesLater = false;  ///< A dialog in its set-up; its controls are named at the end of it.
  bool destroying = false;
  bool defaultReached = false;      ///< WM_PAINT or WM_CONTEXTMENU is left to the widget.
  std::unique_ptr<QObject> events;  ///< Makes messages of the widget's events.

  /// The window's own behaviour, last resort of every message. An override hands what it does not
  /// know to this one.
  virtual LRESULT DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam);
  virtual std::wstring Text() const;
  virtual void SetText(const std::wstring& text);
  virtual void SetFont(const QFont& font);
  /// The style has changed in these bits, of which the widget shows those of its class.
  virtual void OnStyleChanged(DWORD) {}

  /// Called when the window has its handle: a control of several windows makes the others now.
  virtual void MakeParts() {}
  /// Whether a part of the control's own in another window, such as its dropped list, has the focus
  /// now: the control's widget losing it to that part is no loss for the control.
  virtual bool HoldsFocus() const { return false; }
};

/// Null for a stale handle.
Peer* FindPeer(HWND window);
/// Null for a widget that is no window of this layer.
Peer* FindPeer(const QWidget* widget);
/// The window that the widget is or lies in, such as the list of a viewport; null when in none.
Peer* FindPeerAround(const QWidget* widget);
/// The peer of a control class' own kind; null when the window is stale or of another kind.
template <class Kind>
Kind* FindPeerAs(HWND window) {
  return dynamic_cast<Kind*>(FindPeer(window));
}

/// Enters a peer with its widget into the table, sets its handle, the widget's properties
/// (controlNumber, templateNumber, templateOrder, controlKind) and object name
/// "<template>/<control>", and lets the widget's events become messages. The table owns the peer.
HWND RegisterPeer(std::unique_ptr<Peer> peer);

/// Sets the kind and its property, as when a class is attached that shows itself as something else.
void SetPeerKind(Peer& peer, ControlKind kind);

/// Whether a person can act on the control; false for dialogs and for what only shows something.
bool IsInteractive(const Peer& peer);

/// Destroys the window and its descendants: WM_DESTROY, then the handles become stale, then the
/// widget is hidden and deleted at the next turn of the event loop.
void DestroyPeer(HWND window);

/// Ends the innermost modal run, whose DoModal raises the exception again. Without a modal run
/// the exception is reported on standard error.
void EndModalRunWith(std::exception_ptr exception);

/// Runs code of the layers above from inside the toolkit, whose frames no exception may cross.
/// False when the call raised one; the innermost modal run has got it then.
template <class Call>
bool GuardToolkitCall(Call&& call) {
  try {
    call();
    return true;
  } catch (...) {
    EndModalRunWith(std::current_exception());
    return false;
  }
}

/// SendMessage for use inside signals and events of the toolkit: guarded, 0 after an exception.
/// The window may be gone afterwards.
LRESULT SendFromToolkit(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Sends WM_COMMAND with that notification code to the control's parent. Guarded. A control that
/// was destroyed sends nothing any more.
LRESULT NotifyCommand(const Peer& peer, UINT code);
/// Fills the header and sends WM_NOTIFY to the control's parent, likewise.
LRESULT NotifyParent(const Peer& peer, NMHDR& header, UINT code);

/// A control class' object for a window that has none of its own, for as long as it lives; the
/// window's attachment and messages do not change.
template <class Control>
class ControlView {
 public:
  explicit ControlView(HWND window) { control_.m_hWnd = window; }
  ~ControlView() { control_.m_hWnd = nullptr; }
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;
  Control* operator->() { return &control_; }

 private:
  Control control_;
};

/// Offers a key-down to the PreTranslateMessage of the window and of its parents up to the dialog.
/// True when one of them took it; the window may be gone then.
bool PreTranslateKey(HWND window, UINT virtualKey);
/// The virtual key of a Qt key; 0 for one that has none here.
UINT VirtualKey(int qtKey);

/// Makes the peer and widget of a standard window class (compared without regard to case) inside
/// `parent`; null for an unknown class. The caller places, registers and shows it.
std::unique_ptr<Peer> MakeControlPeer(const std::wstring& className, DWORD style,
                                      const std::wstring& text, QWidget* parent);

/// Shows a dialog's text marks ("&") as Qt does; a text with a line break keeps it.
QString ToQt(std::wstring_view text);
std::wstring FromQt(const QString& text);

/// Qt's font of a CFont; the interface font when it is empty.
QFont ToQtFont(const CFont& font);
CFont FromQtFont(const QFont& font);
