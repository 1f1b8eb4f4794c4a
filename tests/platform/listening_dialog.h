#pragma once

// A dialog that keeps what its controls tell it.

#include <gtest/gtest.h>

#include <utility>

#include "dialog_script.h"
#include "platform/application.h"
#include "platform/bcg.h"

constexpr UINT kTemplate = 500;
constexpr int kControl = 7;
constexpr int kSecond = 8;
constexpr DWORD kList = kStop | CBS_DROPDOWNLIST;
constexpr DWORD kEditable = kStop | CBS_DROPDOWN;

struct Note {
  UINT code;
  int id;
  bool operator==(const Note&) const = default;
};
inline void PrintTo(const Note& note, std::ostream* out) {
  *out << note.id << ":" << int(note.code);
}
using Notes = std::vector<Note>;

/// Keeps what its controls tell it.
class ListeningDialog : public CBCGPDialog {
 public:
  explicit ListeningDialog(const std::vector<ItemSource>& items)
      : CBCGPDialog(kTemplate), module_({{kTemplate, items}}) {
    EXPECT_TRUE(Create(kTemplate, nullptr));
    ShowWindow(SW_SHOW);
    WidgetOf(m_hWnd)->activateWindow();
    ToolkitApplication::ProcessEvents();
  }

  Notes notes;
  std::function<LRESULT(NMTREEVIEW&)> onTree;
  std::vector<CSize> sizes;

  Notes Take() { return std::exchange(notes, {}); }
  template <class Widget = QWidget>
  Widget& At(int id = kControl) {
    return *static_cast<Widget*>(ControlWidget(*this, id));
  }

 protected:
  BOOL OnCommand(WPARAM wParam, LPARAM) override {
    notes.push_back({HIWORD(wParam), LOWORD(wParam)});
    return TRUE;
  }
  BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
    auto& note = *reinterpret_cast<NMTREEVIEW*>(lParam);
    notes.push_back({note.hdr.code, static_cast<int>(note.hdr.idFrom)});
    *result = onTree ? onTree(note) : 0;
    return TRUE;
  }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_HSCROLL) notes.push_back({WM_HSCROLL, static_cast<int>(HIWORD(wParam))});
    if (message == WM_SIZE) sizes.push_back(CSize(static_cast<DWORD>(lParam)));
    return CBCGPDialog::WindowProc(message, wParam, lParam);
  }

 private:
  TestModule module_;
};

inline void Click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

template <class Control>
struct Bound {
  explicit Bound(ListeningDialog& dialog, int id = kControl) {
    EXPECT_TRUE(control.SubclassDlgItem(static_cast<UINT>(id), &dialog));
  }
  Control* operator->() { return &control; }
  Control control;
};
