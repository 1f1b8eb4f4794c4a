// The look-in combo, driven by keys.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>

#include "controls/auto_complete.h"
#include "controls/folder_list_text.h"
#include "controls/look_in_combo.h"
#include "environment.h"
#include "foundation/exception.h"
#include "hollerin/application.h"
#include "platform/application.h"
#include "platform/dialog_script.h"
#include "platform/qt/path_completion.h"
#include "quimbly/quimbly.h"
#include "support/fake_machine.h"
#include "support/picker_driver.h"

namespace {

constexpr int kCombo = 5041;
using Texts = std::vector<std::wstring>;

TEST(FolderListText, FindsTheFolderAtTheCaret) {
  const struct {
    std::wstring text;
    std::size_t caret;
    FolderPlace place;
  } rows[] = {{L"", 0, {0, 0, false}},           {L"/a", 1, {0, 2, false}},
              {L"/a;/b", 2, {0, 2, false}},      {L"/a;/b", 3, {3, 5, false}},
              {L"/a; /b ;", 4, {4, 7, false}},   {L"/a;;/b", 3, {3, 3, false}},
              {L"/a;", 3, {3, 3, false}},        {L"/a;", 99, {3, 3, false}},
              {L"\"/a;b\";/c", 4, {1, 5, true}}, {L"\"/a;b\";/c", 8, {7, 9, false}},
              {L"\"/a;b", 5, {1, 5, true}},      {L"/a\"b;c\"", 7, {5, 7, false}}};
  for (const auto& row : rows) {
    const FolderPlace place = FolderAt(row.text, row.caret);
    EXPECT_EQ(place, row.place) << ToUtf8(row.text) << row.caret << ": " << place.start << "-"
                                << place.end;
  }
}

TEST(FolderListText, SplitsAndReplaces) {
  EXPECT_EQ(SplitFolders(L" /a b ;;\"/c;d\" ; /e"), (Texts{L"/a b", L"/c;d", L"/e"}));
  EXPECT_EQ(SplitFolders(L" ; "), Texts());
  EXPECT_EQ(ReplaceFolder(L"/a;/b", FolderAt(L"/a;/b", 4), L"/x;y"), L"/a;\"/x;y\"");
  EXPECT_EQ(ReplaceFolder(L"\"/a;b\"", FolderAt(L"\"/a;b\"", 4), L"/x;y"), L"\"/x;y\"");
}

struct PostedMessage {
  UINT message;
  WPARAM wParam;
  bool operator==(const PostedMessage&) const = default;
};
void PrintTo(const PostedMessage& posted, std::ostream* out) {
  *out << std::hex << posted.message << ":" << posted.wParam;
}
using Posted = std::vector<PostedMessage>;

struct ListeningCombo : CLookInCombo {
  Posted posted;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message >= WM_APP) posted.push_back({message, wParam});
    return CLookInCombo::WindowProc(message, wParam, lParam);
  }
};

/// A dialog with a look-in combo and an edit behind it, on a folder of its own.
class LookIn : public testing::Test {
 protected:
  LookIn() {
    for (const char* name : {"alpha", "alpine", "be;ta"}) QDir(folder_.path()).mkdir(name);
    EXPECT_TRUE(dialog_.Create(kTemplate, nullptr));
    EXPECT_TRUE(combo_.SubclassDlgItem(kCombo, &dialog_));
    dialog_.ShowWindow(SW_SHOW);
    WidgetOf(dialog_.m_hWnd)->activateWindow();
    ToolkitApplication::ProcessEvents();
    Widget().setFocus();
    Settle();
  }

  QComboBox& Widget() { return *static_cast<QComboBox*>(ControlWidget(dialog_, kCombo)); }
  QLineEdit& Line() { return *Widget().lineEdit(); }
  std::wstring At(const std::wstring& name) const {
    return folder_.path().toStdWString() + L"/" + name;
  }
  void Settle() {
    while (PathCompletion::IsAnyBusy())
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    ToolkitApplication::ProcessEvents();
  }
  void Type(const std::wstring& text) {
    QTest::keyClicks(&Widget(), QString::fromStdWString(text));
    Settle();
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&Widget(), key, modifiers);
    Settle();
  }
  Posted Take() { return std::exchange(combo_.posted, {}); }
  std::wstring Text() { return combo_.GetText().Str(); }

  static constexpr UINT kTemplate = 500;
  QTemporaryDir folder_;
  TestModule module_{
      {{kTemplate,
        {{L"ComboBox", L"", kCombo, kStop | CBS_DROPDOWN | CBS_SORT}, {L"Edit", L"", 8}}}}};
  TestDialog dialog_{kTemplate};
  ListeningCombo combo_;
};

TEST_F(LookIn, NamesTheStepOfCompletionThatFails) {
  const struct {
    const wchar_t *fails, *task;
    HRESULT status;
  } rows[] = {
      {L"CreateAutoComplete", L"Creating AutoComplete", E_FAIL},
      {L"CreateACListISF", L"Creating ACList", E_FAIL},
      {L"IACList2", L"Querying for ACList2 ifc", E_NOINTERFACE},
      {L"SetACListOptions", L"Setting ACList options", E_FAIL},
      {L"InitAutoComplete", L"Initializing auto complete", E_FAIL},
      {L"IAutoComplete2", L"Querying for AutoComplete2 ifc", E_NOINTERFACE},
      {L"SetAutoCompleteOptions", L"Setting AutoComplete options", E_FAIL},
      {L"IAutoCompleteDropDown", L"Querying for AutoCompleteDropDown ifc", E_NOINTERFACE},
  };
  ScopedMachine machine;
  for (const auto& row : rows) {
    machine->fails = row.fails;
    try {
      combo_.EnableAutoComplete();
      ADD_FAILURE() << ToUtf8(row.fails);
    } catch (const CCP_Exception& failure) {
      EXPECT_EQ(failure.Record().task, row.task);
      EXPECT_EQ(failure.Record().status, row.status);
    }
  }
  machine->fails.clear();
  combo_.EnableAutoComplete();
}

TEST_F(LookIn, KeysOfTheSuggestionsStayInTheCombo) {
  combo_.EnableAutoComplete();
  const struct {
    Qt::Key key;
    std::wstring text;
  } rows[] = {{Qt::Key_Return, L"alpha"}, {Qt::Key_Tab, L"alpha"}, {Qt::Key_Escape, L"al"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.key);
    Line().selectAll();
    Type(At(L"al"));
    EXPECT_EQ(Text(), At(L"alpha"));
    Press(row.key);
    EXPECT_EQ(Text(), At(row.text));
    EXPECT_EQ(Line().cursorPosition(), Line().text().size());
    EXPECT_EQ(Line().selectedText(), "");
    EXPECT_TRUE(Widget().hasFocus());
    EXPECT_TRUE(IsWindow(dialog_.m_hWnd));
  }
  Press(Qt::Key_Tab);
  EXPECT_FALSE(Widget().hasFocus()) << "without a list Tab leaves";
}

TEST_F(LookIn, CompletesTheFolderThatTheCaretIsAt) {
  combo_.EnableAutoComplete();
  Type(L"/x;" + At(L"alpi"));
  EXPECT_EQ(Text(), L"/x;" + At(L"alpine"));
  Press(Qt::Key_Return);
  Type(L"; \"" + At(L"be"));
  EXPECT_EQ(Text(), L"/x;" + At(L"alpine") + L"; \"" + At(L"be;ta"));
  Press(Qt::Key_Return);
  Line().selectAll();
  Type(At(L"be"));
  EXPECT_EQ(Text(), At(L"be")) << "a name with a separator only fits inside quotes";
  combo_.SetText(At(L"al") + L";/y");
  combo_.GetEdit().SetSel(int(At(L"al").size()), int(At(L"al").size()));
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  EXPECT_EQ(Text(), At(L"alpha") + L";/y");
}

TEST_F(LookIn, KeepsTrackOfHowItsTextChanges) {
  combo_.EnableAutoComplete();
  using Edit = CComboListEdit;
  const auto press = [this](Qt::Key key) { return [this, key] { Press(key); }; };
  const struct {
    std::function<void()> change;
    std::uint32_t kind;
    std::wstring before;
    Posted posted;
  } rows[] = {
      {[this] { Type(L"a"); }, Edit::kTyping, L"", {{kTextChangeEnded, 1}}},
      {press(Qt::Key_Backspace), Edit::kRemoving, L"a", {{kTextChangeEnded, 1}}},
      {press(Qt::Key_Delete), Edit::kRemoving, L"", {{kTextChangeEnded, 0}}},
      {[this] { combo_.SetText(L"set"); }, Edit::kSetting, L"", {{kTextChangeEnded, 0}}},
      {[this] {
         Line().cut();
         Line().selectAll();
         Line().cut();
         Settle();
       },
       Edit::kReplacing,
       L"set",
       {{kTextChangeEnded, 1}}},
      {[this] {
         combo_.SetText(At(L"al"));
         Press(Qt::Key_Down);
         Take();
         Press(Qt::Key_Down);
       },
       Edit::kCompleting,
       At(L"al"),
       {{kTextChangeEnded, 1}}},
      {[this] {
         const auto monitor = combo_.GetEdit().MonitorChange();
         Type(L"xy");
         combo_.SetText(L"z");
         EXPECT_EQ(combo_.posted, Posted()) << "somebody holds the change";
       },
       Edit::kSetting,
       At(L"alpha") + L"xy",
       {{kTextChangeEnded, 1}}},
  };
  for (const auto& row : rows) {
    row.change();
    Settle();
    EXPECT_EQ(combo_.GetEdit().LastChange().kind, row.kind);
    EXPECT_EQ(combo_.GetEdit().LastChange().textBefore, row.before);
    EXPECT_EQ(Take(), row.posted) << row.kind;
  }
}

struct CountingProvider : INTERNAL_IFC::ILoadComboReg {
  std::vector<std::array<bool, 3>> fills;
  HRESULT status = S_OK;
  HRESULT Fill(CComboBox* combo, bool forced, bool keepText, bool labelled,
               const INTERNAL_IFC::ShownEntry&) override {
    fills.push_back({forced, keepText, labelled});
    if (status == S_OK) combo->AddString(L"row");
    return status;
  }
  HRESULT Exchange(CComboBox*, bool) override { return E_NOTIMPL; }
  HRESULT SelectList(const CString&, std::int32_t) override { return E_NOTIMPL; }
  HRESULT GetItems(std::vector<CString>&) override { return E_NOTIMPL; }
  HRESULT SetItems(const std::vector<CString>&) override { return E_NOTIMPL; }
};

TEST_F(LookIn, IsFilledOnceUnlessForced) {
  combo_.Fill(true);
  EXPECT_EQ(combo_.GetCount(), 0);
  const auto provider = std::make_shared<CountingProvider>();
  combo_.SetProviders(provider, nullptr);
  combo_.SetOptions(true, false);
  const std::pair<bool, std::size_t> rows[] = {
      {false, 1}, {false, 1}, {true, 2}, {false, 3}, {false, 3}};
  for (const auto& [forced, fills] : rows) {
    combo_.Fill(forced);
    EXPECT_EQ(provider->fills.size(), fills);
  }
  EXPECT_EQ(provider->fills[1], (std::array<bool, 3>{true, true, false}));
  provider->status = E_FAIL;
  EXPECT_THROW(combo_.Fill(true), CCP_Exception);
}

class LookInHistory : public LookIn {
 protected:
  LookInHistory() {
    const auto store = HOLLERIN::CreateStore();
    int key = 0;
    for (const wchar_t* entry : {L"/b", L"\\\\?\\C:\\dir", L"\\\\?\\UNC\\server\\share\\x",
                                 L"/b;\"/c;d\"", L"\\\\?\\UNC\\server", L"/a"}) {
      store->WriteString(L"RecentFolders", std::to_wstring(key++), entry);
    }
    EXPECT_EQ(TOLLIVER::CreateLoadComboReg(store, &provider_), S_OK);
    combo_.SetProviders(provider_, provider_);
  }
  Texts Rows() {
    Texts rows;
    for (int row = 0; row < combo_.GetCount(); ++row) {
      CString text;
      combo_.GetLBText(row, text);
      rows.push_back(text.Str());
    }
    return rows;
  }

  std::shared_ptr<INTERNAL_IFC::ILoadComboReg> provider_;
};

TEST_F(LookInHistory, ListsTheFoldersNewestFirst) {
  combo_.SetText(L"kept");
  combo_.SetOptions(true, true);
  combo_.Fill();
  EXPECT_EQ(Rows(), (Texts{L"/b", L"C:\\dir", L"server: share\\x", L"2 folders: /b;\"/c;d\"",
                           L"\\\\?\\UNC\\server", L"/a"}));
  EXPECT_EQ(Text(), L"kept");
  combo_.SetOptions(false, false);
  combo_.Fill(true);
  EXPECT_EQ(Rows()[1], L"\\\\?\\C:\\dir");
  EXPECT_EQ(Text(), L"/b") << "the newest";
}

TEST_F(LookInHistory, AChosenRowPutsItsEntryIntoTheEdit) {
  combo_.SetOptions(true, true);
  combo_.Fill();
  Take();
  combo_.ShowDropDown();
  for (int step = 0; step < 3; ++step) QTest::keyClick(Widget().view(), Qt::Key_Down);
  QTest::keyClick(Widget().view(), Qt::Key_Return);
  EXPECT_FALSE(combo_.GetDroppedState());
  EXPECT_EQ(Text(), L"\\\\?\\UNC\\server\\share\\x");
  EXPECT_EQ(Line().selectedText(), Line().text());
  Settle();
  EXPECT_EQ(Take(), (Posted{{kListClosed, 0}, {kEntryChosen, 2}, {kTextChangeEnded, 1}}));
  combo_.ShowDropDown();
  QTest::keyClick(Widget().view(), Qt::Key_Up);
  QTest::keyClick(Widget().view(), Qt::Key_Escape);
  EXPECT_EQ(Text(), L"\\\\?\\UNC\\server\\share\\x");
  Settle();
  EXPECT_EQ(Take(), (Posted{{kListClosed, 0}}));
}

TEST_F(LookInHistory, BrowsesByWhatTheTextHolds) {
  PickerDriver driver([this](QFileDialog& picker) {
    EXPECT_EQ(picker.directory(), QDir(folder_.path()));
    PickerDriver::Type(picker, QString::fromStdWString(At(L"be;ta") + L"\n"));
  });
  Type(L"/x;" + At(L""));
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(driver.shown, 1);
  EXPECT_EQ(Text(), L"/x;\"" + At(L"be;ta") + L"\"") << "the folder at the caret is picked anew";
  int asked = 0;
  combo_.SetFolderListEditor([&](CWnd* owner, const auto& history, CString& folders) {
    EXPECT_EQ(owner, &dialog_);
    EXPECT_EQ(history, provider_);
    EXPECT_EQ(folders, combo_.GetText());
    folders = L"/new";
    return ++asked == 1;
  });
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Text(), L"/new");
  combo_.SetText(L"/p;/q");
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(Text(), L"/p;/q") << "cancelled";
  combo_.SetFolderListEditor([](CWnd*, const auto&, CString&) -> bool { throw CCP_Exception({}); });
  EXPECT_EQ(AnswerMessages([this] { Press(Qt::Key_Right, Qt::AltModifier); }).size(), 1U);
}

}  // namespace
