// The list of interpreters, on a real store.

#include <gtest/gtest.h>

#include "environment.h"
#include "foundation/exception.h"
#include "hollerin/hollerin.h"
#include "hollerin/interpreter_list.h"
#include "pages/formats/interpreter_list_ctrl.h"
#include "platform/application.h"
#include "platform/dialog_script.h"
#include "support/fake_machine.h"

namespace {

using Texts = std::vector<std::wstring>;
using Entries = std::vector<HOLLERIN::InterpreterEntry>;

constexpr UINT kTemplate = 500;
constexpr int kList = 5078;

Entries FourEntries() {
  return {{L"Alpha", L"a", L"al", L"", L"textconverter", true},
          {L"Box", L"b", L"bx", L"", L"compositefile", true},
          {L"Gamma", L"c", L"ga", L"", L"textconverter", false},
          {L"Delta", L"d", L"de", L"", L"textconverter", true}};
}

/// Keys of list entries, with a "+" behind those that are enabled.
Texts Flags(INTERNAL_IFC::IConfigInterpreterList& list) {
  const auto entries = HOLLERIN::ListEntries(list);
  EXPECT_TRUE(entries.has_value());
  Texts flags;
  for (const auto& entry : entries.value_or(Entries()))
    flags.push_back(entry.key + (entry.enabled ? L"+" : L""));
  return flags;
}

class InterpreterListTest : public testing::Test {
 protected:
  InterpreterListTest() {
    EXPECT_EQ(HOLLERIN::CreateBlankConfigDataMgr(&store), S_OK);
    Store(FourEntries());
    EXPECT_TRUE(dialog.Create(kTemplate, nullptr));
    EXPECT_TRUE(list.SubclassDlgItem(kList, &dialog));
    list.SetConfigStore(store);
    list.SetFilter([](const auto& entry) { return entry->GetType() == L"textconverter"; });
    dialog.ShowWindow(SW_SHOW);
    ToolkitApplication::ProcessEvents();
  }

  void Store(Entries entries) {
    const auto made = HOLLERIN::MakeInterpreterList(std::move(entries));
    EXPECT_EQ(HOLLERIN::SaveConfigInterpreterList(store, made, true), S_OK);
  }
  Texts Stored() {
    HOLLERIN::InterpreterListHandle stored;
    EXPECT_EQ(HOLLERIN::LoadCurrentConfigInterpreterList(store, &stored), S_OK);
    return Flags(*stored);
  }
  Texts Rows() {
    Texts rows;
    for (int row = 0; row < list.GetItemCount(); ++row) {
      rows.push_back(list.GetItemText(row, 0).Str() + (list.GetCheck(row) ? L"+" : L""));
    }
    return rows;
  }

  std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store;
  TestModule module{{{kTemplate, {{L"SysListView32", L"Formats", kList, kStop | LVS_REPORT}}}}};
  CDialog dialog{kTemplate};
  CInterpreterListCtrl list;
};

TEST_F(InterpreterListTest, ShowsWhatTheFilterTakesInTheOrderOfTheList) {
  list.Populate(true);
  EXPECT_EQ(Rows(), (Texts{L"Alpha+", L"Gamma", L"Delta+"}));
  EXPECT_EQ(list.GetStyle() & LVS_TYPEMASK, LVS_LIST);
  EXPECT_EQ(list.GetColumnWidth(0), 80);
  EXPECT_EQ(list.GetExtendedStyle(),
            LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
  EXPECT_EQ(list.GetCheckedKeys(), (Texts{L"a", L"d"}));

  Entries changed = FourEntries();
  changed.erase(changed.begin());
  Store(changed);
  list.Populate(false);
  EXPECT_EQ(Rows().size(), 3U) << "as it was loaded last";
  list.Populate(true);
  EXPECT_EQ(Rows(), (Texts{L"Gamma", L"Delta+"}));
}

TEST_F(InterpreterListTest, SavesTheFlagsIntoTheListThatIsStoredNow) {
  list.Populate(true);
  list.SetCheck(0, FALSE);
  list.SetCheck(1, TRUE);
  // Meanwhile somebody deletes one entry, makes another one of another kind, and adds one.
  Entries changed = FourEntries();
  changed.erase(changed.begin());
  changed[2].type = L"config";
  changed.push_back({L"New", L"n", L"", L"", L"textconverter", true});
  changed[0].extensions = L"other";
  Store(changed);
  list.SetCheck(2, FALSE);
  list.SaveEnabledFlags();
  EXPECT_EQ(Stored(), (Texts{L"b+", L"c+", L"d+", L"n+"})) << "only shown entries are written";
  EXPECT_EQ(Rows(), (Texts{L"Gamma+", L"Delta"})) << "the row without entry is gone";
  list.SetCheck(0, FALSE);
  list.SaveEnabledFlags();
  EXPECT_EQ(Stored(), (Texts{L"b+", L"c", L"d+", L"n+"}));
}

TEST_F(InterpreterListTest, ReadOnlyReadsAndWritesNoFlags) {
  list.Populate(true);
  list.CheckAll(false);
  list.ChangeReadOnly(true);
  EXPECT_EQ(Rows(), (Texts{L"Alpha", L"Gamma", L"Delta"}));
  EXPECT_EQ(list.GetExtendedStyle(), LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
  EXPECT_EQ(list.GetColumnWidth(0), 80);
  list.SetCheckedKeys({L"c"});
  list.CheckAll(true);
  list.SaveEnabledFlags();
  EXPECT_EQ(list.GetCheckedKeys(), Texts{});
  EXPECT_EQ(Stored(), (Texts{L"a+", L"b+", L"c", L"d+"}));
  list.ChangeReadOnly(false);
  EXPECT_EQ(Rows(), (Texts{L"Alpha+", L"Gamma", L"Delta+"})) << "the flags of the list again";
}

TEST_F(InterpreterListTest, ChecksByKeys) {
  const std::pair<Texts, Texts> cases[] = {
      {{L"c", L"a"}, {L"Alpha+", L"Gamma+", L"Delta"}},
      {{L"A", L"b", L""}, {L"Alpha", L"Gamma", L"Delta"}},
      {{}, {L"Alpha", L"Gamma", L"Delta"}},
  };
  for (const auto& [keys, rows] : cases) {
    list.Populate(true);
    list.SetCheckedKeys(keys);
    EXPECT_EQ(Rows(), rows);
    list.Populate(false);
    EXPECT_EQ(Rows(), rows) << "the entries were changed as well";
  }
  EXPECT_EQ(Stored(), (Texts{L"a+", L"b+", L"c", L"d+"})) << "and nothing was saved";
  list.CheckAll(true);
  EXPECT_EQ(list.GetCheckedKeys(), (Texts{L"a", L"c", L"d"}));
}

TEST_F(InterpreterListTest, AFilterThatTakesNothingSavesTheListUnchanged) {
  list.SetFilter([](const auto&) { return false; });
  list.Populate(true);
  EXPECT_EQ(Rows(), Texts{});
  list.SaveEnabledFlags();
  EXPECT_EQ(Stored(), (Texts{L"a+", L"b+", L"c", L"d+"}));
}

TEST_F(InterpreterListTest, RaisesEachFailureWithItsTaskAndLine) {
  const HRESULT noList = static_cast<HRESULT>(0x80040602U);
  const struct {
    const wchar_t* fails;
    bool saves;
    HRESULT status;
    const wchar_t* task;
    int line;
  } cases[] = {
      {L"LoadCurrentConfigInterpreterList", false, noList, L"Loading configuration list", 45},
      {L"LoadCurrentConfigInterpreterList", true, noList, L"Loading configuration list", 45},
      {L"GetAt", false, E_FAIL, L"Getting config for entry into list", 112},
      {L"FindByKey", true, E_FAIL, L"Finding config entry to update", 262},
      {L"SaveConfigInterpreterList", true, E_FAIL, L"Saving configuration information to file",
       281},
  };
  for (const auto& row : cases) {
    SCOPED_TRACE(testing::Message() << row.line << row.saves);
    list.Populate(true);
    ScopedMachine machine;
    machine->fails = row.fails;
    try {
      row.saves ? list.SaveEnabledFlags() : list.Populate(true);
      ADD_FAILURE() << "nothing was raised";
    } catch (const CCP_Exception& raised) {
      EXPECT_EQ(raised.Record().status, row.status);
      EXPECT_EQ(raised.Record().task, row.task);
      EXPECT_EQ(raised.Record().line, row.line);
    }
    // The rows are as good as before.
    machine->fails.clear();
    if (row.saves) list.SaveEnabledFlags();
    EXPECT_EQ(Stored(), (Texts{L"a+", L"b+", L"c", L"d+"}));
  }
}

TEST_F(InterpreterListTest, RowsOutliveAFailureToSave) {
  list.Populate(true);
  Entries changed = FourEntries();
  changed.erase(changed.begin());
  Store(changed);
  ScopedMachine machine;
  machine->fails = L"SaveConfigInterpreterList";
  EXPECT_THROW(list.SaveEnabledFlags(), CCP_Exception);
  EXPECT_EQ(list.GetItemCount(), 3);
  EXPECT_EQ(list.GetCheckedKeys(), Texts{L"d"}) << "the first row has no entry any more";
  list.SetCheckedKeys({L"c"});
  machine->fails.clear();
  list.SaveEnabledFlags();
  EXPECT_EQ(Stored(), (Texts{L"b+", L"c+", L"d"}));
  EXPECT_EQ(Rows(), (Texts{L"Gamma+", L"Delta"}));
}

/// Opens up the hooks of the scroll bars.
struct OpenList : CInterpreterListCtrl {
  using CInterpreterListCtrl::RedrawsScrollBars;
};

TEST(InterpreterList, RedrawsAndScrollsAsItsStylesSay) {
  const TestModule module({{kTemplate, {{L"SysListView32", L"", kList, kStop | LVS_LIST}}}});
  CDialog dialog(kTemplate);
  ASSERT_TRUE(dialog.Create(kTemplate, nullptr));
  OpenList list;
  ASSERT_TRUE(list.SubclassDlgItem(kList, &dialog));
  for (const DWORD buffer : {DWORD{0}, LVS_EX_DOUBLEBUFFER}) {
    list.SetExtendedStyle(buffer);
    const std::pair<UINT, bool> messages[] = {{LVM_GETEXTENDEDLISTVIEWSTYLE, false},
                                              {WM_PAINT, true},
                                              {WM_MOUSEWHEEL, true},
                                              {0x00FF, false},
                                              {0x0100, buffer != 0},
                                              {0x0109, buffer != 0},
                                              {0x010A, false},
                                              {WM_SIZE, false}};
    for (const auto& [message, redraws] : messages) {
      EXPECT_EQ(list.RedrawsScrollBars(message), redraws) << message;
    }
  }
  list.InsertColumn(0, L"Name", LVCFMT_LEFT, 400);
  for (int row = 0; row < 200; ++row) list.InsertItem(row, L"a row");
  dialog.ShowWindow(SW_SHOW);
  ToolkitApplication::ProcessEvents();
  const struct {
    DWORD view;
    UINT message;
    int bar;
  } cases[] = {{LVS_LIST, WM_HSCROLL, SB_HORZ},
               {LVS_REPORT, WM_VSCROLL, SB_VERT},
               {LVS_REPORT, WM_HSCROLL, SB_HORZ}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.view);
    list.ModifyStyle(LVS_TYPEMASK, row.view);
    ToolkitApplication::ProcessEvents();
    for (const int position : {9, 3}) {
      list.SendMessage(row.message, static_cast<WPARAM>(MAKELPARAM(SB_THUMBPOSITION, position)));
      EXPECT_EQ(list.GetScrollPos(row.bar), position);
    }
  }
}

}  // namespace
