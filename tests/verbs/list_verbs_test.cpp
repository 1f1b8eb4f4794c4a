// What the drive port does with list views and progress windows, on dialogs of the tests' own.

#include <gtest/gtest.h>

#include <QProgressDialog>

#include "host/drive/control_finder.h"
#include "host/drive/describe.h"
#include "host/drive/idle_watch.h"
#include "host/drive/list_rows.h"
#include "host/drive/request_error.h"
#include "host/drive/window_actions.h"
#include "host/drive/window_stack.h"
#include "platform/application.h"
#include "platform/dialog_script.h"
#include "platform/list_ctrl.h"
#include "platform/progress_window.h"

namespace {

constexpr UINT kTemplate = 500;
constexpr int kList = 7, kEdit = 8;

class ListDialog : public CDialog {
 public:
  ListDialog(DWORD style, DWORD extended, int rows)
      : CDialog(kTemplate),
        module_({{kTemplate,
                  {{L"SysListView32", L"Things", kList, kStop | style, 7, 7, 90, 60},
                   {L"Edit", L"", kEdit, kStop, 7, 80}}}}) {
    EXPECT_TRUE(Create(kTemplate, nullptr));
    EXPECT_TRUE(list.SubclassDlgItem(kList, this));
    list.SetExtendedStyle(extended);
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 70);
    list.InsertColumn(1, L"Kind", LVCFMT_LEFT, 50);
    for (int row = 0; row < rows; ++row) {
      list.InsertItem(row, L"row");
      list.SetItemText(row, 1, L"kind");
    }
    ShowWindow(SW_SHOW);
    ToolkitApplication::ProcessEvents();
  }
  QWidget* Widget(int id = kList) { return ControlWidget(*this, id); }
  QJsonObject Row(int row) { return DescribeRows(Widget())["rows"].toArray()[row].toObject(); }

  CListCtrl list;
  std::vector<int> doubled;
  int menus = 0;

 protected:
  BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT*) override {
    const auto& note = *reinterpret_cast<NMITEMACTIVATE*>(lParam);
    if (note.hdr.code == NM_DBLCLK) doubled.push_back(note.iItem);
    return TRUE;
  }
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    menus += message == WM_CONTEXTMENU ? 1 : 0;
    return CDialog::WindowProc(message, wParam, lParam);
  }

 private:
  TestModule module_;
};

std::string Refusal(const std::function<void()>& act) {
  try {
    act();
  } catch (const RequestError& refused) {
    return refused.text.toStdString();
  }
  return "nothing was refused";
}

TEST(ListVerbs, DescribeColumnsAndRows) {
  ListDialog dialog(LVS_REPORT, 0, 2);
  const QJsonObject rows = DescribeRows(dialog.Widget());
  EXPECT_EQ(rows["columns"], (QJsonArray{"Name", "Kind"}));
  EXPECT_EQ(rows["widths"], (QJsonArray{70, 50}));
  EXPECT_EQ(rows["rows"].toArray().size(), 2);
  EXPECT_EQ(dialog.Row(0), (QJsonObject{{"text", QJsonArray{"row", "kind"}},
                                        {"checked", QJsonValue()},
                                        {"selected", false}}));
  EXPECT_EQ(DescribeControl(dialog.Widget())["kind"], "list");
  EXPECT_EQ(Refusal([&] { DescribeRows(dialog.Widget(kEdit)); }),
            "The verb \"rows\" does not fit control 8 (edit) of template 500.");
}

TEST(ListVerbs, CheckRowsInEveryView) {
  for (const DWORD view : {LVS_REPORT, LVS_LIST}) {
    ListDialog dialog(view, LVS_EX_CHECKBOXES, 60);
    for (const int row : {0, 59, 30}) {
      for (const bool on : {true, true, false, true}) {
        CheckRow(dialog.Widget(), row, on);
        ToolkitApplication::ProcessEvents();
        EXPECT_EQ(dialog.Row(row)["checked"], on) << row;
      }
    }
  }
  ListDialog dialog(LVS_REPORT, 0, 2);
  EXPECT_EQ(Refusal([&] { CheckRow(dialog.Widget(), 1, true); }),
            "The rows of control 7 (list) of template 500 have no check boxes.");
  EXPECT_EQ(Refusal([&] { CheckRow(dialog.Widget(), 2, true); }),
            "There is no row 2 in control 7 (list) of template 500; it has 2 rows.");
}

TEST(ListVerbs, ActOnRowsAsAPersonDoes) {
  for (const DWORD view : {LVS_REPORT, LVS_LIST}) {
    SCOPED_TRACE(view);
    ListDialog dialog(view | LVS_SINGLESEL, LVS_EX_CHECKBOXES, 7);
    const auto act = [&](int row, const char* action) {
      ActOnRow(dialog.Widget(), row, action);
      ToolkitApplication::ProcessEvents();
    };
    for (const int row : {4, 4, 1}) {
      act(row, "select");
      EXPECT_EQ(dialog.Row(row)["selected"], true);
      EXPECT_EQ(dialog.Row(row)["checked"], false);
    }
    EXPECT_EQ(dialog.doubled, std::vector<int>{}) << "clicks that are not quick";
    act(6, "double");
    EXPECT_EQ(dialog.doubled, std::vector<int>{6});
    act(2, "context");
    EXPECT_EQ(dialog.Row(2)["selected"], true);
    EXPECT_EQ(dialog.menus, 1);
    if (view == LVS_LIST) continue;  // Its rows fill it.
    dialog.list.DeleteItem(6);
    while (dialog.list.GetItemCount() > 2) dialog.list.DeleteItem(2);
    act(1, "select");
    act(-1, "context");
    EXPECT_EQ(dialog.menus, 2);
    EXPECT_EQ(dialog.list.GetFirstSelectedItemPosition(), 0U);
    act(-1, "double");
    EXPECT_EQ(dialog.doubled, (std::vector<int>{6, -1}));
  }
  ListDialog full(LVS_REPORT, 0, 60);
  EXPECT_EQ(Refusal([&] { ActOnRow(full.Widget(), -1, "select"); }),
            "A person cannot click below the rows of control 7 (list) of template 500: they fill "
            "it.");
  EXPECT_EQ(Refusal([&] { ActOnRow(full.Widget(), 1, "kick"); }),
            "There is no action \"kick\"; there are select, double or context.");
}

TEST(ProgressVerbs, DescribeAndDismiss) {
  WindowStack windows;
  CProgressWindow progress(nullptr, L"Reading", true);
  while (windows.Top() == nullptr) progress.Poll();
  EXPECT_EQ(DescribeWindow(windows.Top()),
            (QJsonObject{{"kind", "progress"}, {"title", "Reading"}}));
  Dismiss(windows);
  while (!progress.Poll()) continue;
  EXPECT_EQ(windows.Top(), nullptr);
}

}  // namespace
