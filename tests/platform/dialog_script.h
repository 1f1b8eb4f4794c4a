#pragma once

// Dialogs for tests: compiled resource scripts made in memory, a module that carries them, and
// modal runs in which a test acts as the user.

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/dialog.h"
#include "platform/module.h"
#include "platform/qt/peer.h"

constexpr DWORD kPlain = WS_CHILD | WS_VISIBLE;
constexpr DWORD kStop = kPlain | WS_TABSTOP;

struct ItemSource {
  const wchar_t* className;
  const wchar_t* text;
  int id;
  DWORD style = kStop;
  int x = 7, y = 7, cx = 50, cy = 14;
};

struct DialogSource {
  UINT id;
  std::vector<ItemSource> items;
  DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU;
  int cx = 200, cy = 120;
  const wchar_t* title = L"Title";
};

/// A module with these dialogs and strings, current for as long as the object lives.
class TestModule {
 public:
  TestModule(const std::vector<DialogSource>& dialogs, const std::map<UINT, std::wstring>& strings)
      : script_(Script(dialogs, strings)), module_(L"tests", script_) {}
  explicit TestModule(const std::vector<DialogSource>& dialogs) : TestModule(dialogs, {}) {}

 private:
  using Bytes = std::vector<std::byte>;

  static void Word(Bytes& out, unsigned value) {
    out.push_back(std::byte(value & 0xFF));
    out.push_back(std::byte(value >> 8 & 0xFF));
  }
  static void Dword(Bytes& out, unsigned value) {
    Word(out, value & 0xFFFF), Word(out, value >> 16);
  }
  static void Align(Bytes& out) {
    while (out.size() % 4 != 0) out.push_back(std::byte(0));
  }
  /// Texts of the tests stay inside the basic plane.
  static void Text(Bytes& out, const std::wstring& text) {
    for (const wchar_t unit : text) Word(out, static_cast<unsigned>(unit));
    Word(out, 0);
  }
  static void Resource(Bytes& out, unsigned type, unsigned id, const Bytes& data) {
    Dword(out, static_cast<unsigned>(data.size())), Dword(out, 32);
    for (const unsigned value : {0xFFFFU, type, 0xFFFFU, id}) Word(out, value);
    for (int i = 0; i < 4; ++i) Dword(out, 0);
    out.insert(out.end(), data.begin(), data.end());
    Align(out);
  }
  static Bytes Dialog(const DialogSource& source) {
    Bytes out;
    Word(out, 1), Word(out, 0xFFFF);
    Dword(out, 0), Dword(out, 0), Dword(out, source.style);
    for (const int value :
         {static_cast<int>(source.items.size()), 0, 0, source.cx, source.cy, 0, 0})
      Word(out, static_cast<unsigned>(value));
    Text(out, source.title);
    for (const ItemSource& item : source.items) {
      Align(out);
      Dword(out, 0), Dword(out, 0), Dword(out, item.style);
      for (const int value : {item.x, item.y, item.cx, item.cy})
        Word(out, static_cast<unsigned>(value));
      Dword(out, static_cast<unsigned>(item.id));
      Text(out, item.className), Text(out, item.text);
      Word(out, 0);
    }
    return out;
  }
  static Bytes Script(const std::vector<DialogSource>& dialogs,
                      const std::map<UINT, std::wstring>& strings) {
    Bytes out;
    Resource(out, 0, 0, {});
    for (const DialogSource& dialog : dialogs) Resource(out, 5, dialog.id, Dialog(dialog));
    for (const auto& [id, text] : strings) {
      Bytes block;
      for (unsigned i = 0; i < 16; ++i) {
        const std::wstring shown = i == id % 16 ? text : L"";
        Word(block, static_cast<unsigned>(shown.size()));
        for (const wchar_t unit : shown) Word(block, static_cast<unsigned>(unit));
      }
      Resource(out, 6, id / 16 + 1, block);
    }
    return out;
  }

  Bytes script_;
  CModule module_;
  AFX_MODULE_STATE state_{&module_};
  AFX_MAINTAIN_STATE2 current_{state_};
};

/// A dialog whose set-up can be given by a test; everything else is inherited.
class TestDialog : public CDialog {
 public:
  using CDialog::CDialog;
  using CWnd::Default;
  std::function<BOOL(TestDialog&)> setUp;
  std::function<void(CDataExchange*)> exchange;

  void DoDataExchange(CDataExchange* data) override {
    if (exchange) exchange(data);
  }

 protected:
  BOOL OnInitDialog() override {
    const BOOL result = CDialog::OnInitDialog();
    return setUp ? setUp(*this) : result;
  }
};

inline QWidget* WidgetOf(HWND window) {
  Peer* peer = FindPeer(window);
  return peer != nullptr ? peer->widget.data() : nullptr;
}

inline QWidget* ControlWidget(const CWnd& dialog, int id) {
  const CWnd* control = dialog.GetDlgItem(id);
  return control != nullptr ? WidgetOf(control->m_hWnd) : nullptr;
}

/// Runs `dialog` and, while it is the topmost one, the actions one after the other, each from the
/// event loop. A dialog that is still open afterwards is ended with the result 4711.
inline INT_PTR RunModal(CDialog& dialog, std::deque<std::function<void()>> actions) {
  QObject context;
  std::function<void()> step = [&] {
    if (dialog.m_hWnd == nullptr) return;
    if (QApplication::activeModalWidget() != WidgetOf(dialog.m_hWnd))
      return QTimer::singleShot(0, &context, step);
    if (actions.empty()) {
      return dialog.EndDialog(4711);
    }
    const std::function<void()> action = actions.front();
    actions.pop_front();
    action();
    QTimer::singleShot(0, &context, step);
  };
  QTimer::singleShot(0, &context, step);
  return dialog.DoModal();
}
