// Completion of folder names while a person types into a combo box.

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <atomic>
#include <future>

#include "listening_dialog.h"
#include "platform/autocomplete.h"
#include "platform/qt/path_completion.h"
#include "support/fake_machine.h"

namespace {

constexpr DWORD kAll = ACO_AUTOSUGGEST | ACO_AUTOAPPEND | ACO_UPDOWNKEYDROPSLIST;

class Completion : public testing::Test {
 protected:
  explicit Completion(DWORD options = kAll) {
    for (const char* name : {"Alpha", "alpine", "beta", "Be ta", ".hidden"})
      QDir(folder_.path()).mkdir(name);
    QFile::link(At("beta"), At("almost"));
    QFile file(At("alfile"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    widget_.setFocus();
    std::shared_ptr<IACList> list;
    CreateACListISF(&list);
    EXPECT_EQ(completion_->Init(edit_, list, nullptr, nullptr), E_INVALIDARG) << "not set up";
    std::dynamic_pointer_cast<IACList2>(list)->SetOptions(ACLO_FILESYSONLY);
    EXPECT_EQ(completion_->Init(edit_, list, nullptr, nullptr), S_OK);
    EXPECT_EQ(std::dynamic_pointer_cast<IAutoComplete2>(completion_)->SetOptions(options), S_OK);
  }

  QString At(const QString& name) const { return folder_.path() + '/' + name; }
  QString Text() const { return widget_.lineEdit()->text(); }
  /// Until every folder that was asked for is read.
  static void Settle() {
    while (PathCompletion::IsAnyBusy())
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    ToolkitApplication::ProcessEvents();
  }
  void Type(const QString& text) {
    for (const QChar character : text) QTest::keyClick(&widget_, character.toLatin1());
    Settle();
  }
  void Retype(const QString& text) {
    widget_.lineEdit()->selectAll();
    Type(text);
  }
  void Press(Qt::Key key) {
    QTest::keyClick(&widget_, key);
    Settle();
  }
  static QListView* List() {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->property("windowKind") == "completion" && window->isVisible())
        return static_cast<QListView*>(window);
    return nullptr;
  }
  /// The suggestions shown.
  QStringList Shown() const {
    DWORD flags = 0;
    std::dynamic_pointer_cast<IAutoCompleteDropDown>(completion_)->GetDropDownStatus(&flags);
    EXPECT_EQ(flags != 0, List() != nullptr);
    return List() != nullptr ? static_cast<QStringListModel*>(List()->model())->stringList()
                             : QStringList();
  }
  QStringList InFolder(const QStringList& names) const {
    QStringList paths;
    for (const QString& name : names) paths << At(name);
    return paths;
  }

  QTemporaryDir folder_;
  ListeningDialog dialog_{{{L"ComboBox", L"", kControl, kEditable}, {L"Edit", L"", kSecond}}};
  Bound<CComboBox> combo_{dialog_};
  QComboBox& widget_ = dialog_.At<QComboBox>();
  HWND edit_ = combo_->GetDlgItem(kComboEditId)->m_hWnd;
  std::shared_ptr<IAutoComplete> completion_ = [] {
    std::shared_ptr<IAutoComplete> made;
    EXPECT_EQ(CreateAutoComplete(&made), S_OK);
    return made;
  }();
};

TEST_F(Completion, SuggestsFoldersAndAppendsTheFirst) {
  const QStringList al = {"almost", "Alpha", "alpine"};
  const struct {
    QString typed;
    QStringList names;
    QString text;
  } rows[] = {{"al", al, "almost"},
              {"Al", al, "Alpha"},
              {"AL", al, "AL"},
              {"alp", {"Alpha", "alpine"}, "alpine"},
              {"", {"almost", "Alpha", "alpine", "Be ta", "beta"}, ""},
              {".", {".hidden"}, ".hidden"},
              {"be ", {"Be ta"}, "be "},
              {"beta", {}, "beta"},
              {"zz", {}, "zz"},
              {"alfile", {}, "alfile"},
              {"missing/x", {}, "missing/x"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.typed.toStdString());
    Retype(At(row.typed));
    EXPECT_EQ(Shown(), InFolder(row.names));
    EXPECT_EQ(Text(), At(row.text));
    EXPECT_EQ(widget_.lineEdit()->selectedText(), row.text.mid(row.typed.size()));
  }
  for (const char* nothing : {"al", "al/be", "~", "~al/", "C:"}) {
    Retype(nothing);
    EXPECT_EQ(Shown(), QStringList()) << nothing;
    EXPECT_EQ(Text(), nothing);
    Press(Qt::Key_Escape);
  }
}

TEST_F(Completion, CompletesWindowsPathsByEitherSeparator) {
  ScopedMachine machine;
  machine->drives = {{L'C', folder_.path().toStdWString()}};
  const struct {
    const char *typed, *first, *text;
  } rows[] = {{"C:\\alP", "C:\\Alpha", "C:\\alPha"},
              {"c:/ALP", "c:/Alpha", "c:/ALPha"},
              {"C:\\BETA/../al", "C:\\BETA/../almost", "C:\\BETA/../almost"},
              {"\\\\?\\C:\\alp", "\\\\?\\C:\\Alpha", "\\\\?\\C:\\alpine"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.typed);
    Retype(row.typed);
    EXPECT_EQ(Shown().value(0), row.first);
    EXPECT_EQ(Text(), row.text);
  }
  for (const char* nowhere : {"D:\\al", "\\\\server\\share\\al"}) {
    Retype(nowhere);
    EXPECT_EQ(Text(), nowhere);
  }
}

TEST_F(Completion, PutsTheUsersOwnFolderInFull) {
  const QByteArray home = qgetenv("HOME");
  qputenv("HOME", folder_.path().toUtf8());
  Retype("~/alp");
  EXPECT_EQ(Shown(), InFolder({"Alpha", "alpine"}));
  EXPECT_EQ(Text(), "~/alp");
  Press(Qt::Key_Down);
  EXPECT_EQ(Text(), At("Alpha"));
  qputenv("HOME", home);
}

TEST_F(Completion, KeysWalkTheSuggestions) {
  using Keys = std::vector<Qt::Key>;
  constexpr auto down = Qt::Key_Down, up = Qt::Key_Up, escape = Qt::Key_Escape;
  const struct {
    Keys keys;
    QString text;
    bool shown;
  } rows[] = {{{down}, "almost", true},
              {{down, down}, "Alpha", true},
              {{down, up}, "al", true},
              {{up}, "alpine", true},
              {{up, down}, "al", true},
              {{Qt::Key_PageDown}, "alpine", true},
              {{Qt::Key_PageDown, Qt::Key_PageUp}, "almost", true},
              {{Qt::Key_Return}, "almost", false},
              {{down, down, Qt::Key_Return}, "Alpha", false},
              {{escape}, "al", false},
              {{down, down, escape}, "al", false},
              {{Qt::Key_Backspace}, "al", true},
              {{Qt::Key_Backspace, Qt::Key_Backspace}, "a", true},
              {{Qt::Key_Delete}, "al", true},
              {{Qt::Key_Home}, "almost", false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.keys));
    Retype(At("al"));
    for (const Qt::Key key : row.keys) Press(key);
    EXPECT_EQ(Text(), At(row.text));
    EXPECT_EQ(Shown().isEmpty(), !row.shown);
    EXPECT_TRUE(widget_.hasFocus());
    EXPECT_TRUE(IsWindow(dialog_.m_hWnd));
    Press(escape);
  }
}

TEST_F(Completion, TypingGoesOnBehindAnAcceptedSuggestion) {
  QDir(At("Alpha")).mkdir("inner");
  Retype(At("Al"));
  Press(Qt::Key_Return);
  dialog_.Take();
  Type("/");
  EXPECT_EQ(Shown(), QStringList(At("Alpha/inner")));
  EXPECT_EQ(dialog_.Take(), (Notes{{CBN_EDITCHANGE, kControl}}));
  Press(Qt::Key_Down);
  EXPECT_EQ(dialog_.Take(), (Notes{{CBN_EDITCHANGE, kControl}}));
  QDir(At("Alpha")).mkdir("later");
  Press(Qt::Key_Return);
  Retype(At("Alpha/"));
  EXPECT_EQ(Shown().size(), 2) << "the folder is read anew";
}

TEST_F(Completion, ArrowsOpenTheListUnlessTheWholeTextIsSelected) {
  combo_->AddString(L"row");
  combo_->SetWindowText(At("al").toStdWString());
  Press(Qt::Key_Down);
  EXPECT_EQ(Shown().size(), 3);
  EXPECT_EQ(Text(), At("al"));
  Press(Qt::Key_Escape);
  widget_.lineEdit()->selectAll();
  Press(Qt::Key_Down);
  EXPECT_EQ(Text(), "row");
}

TEST_F(Completion, TheListGoesWithTheFocusAndNeverTakesIt) {
  const std::function<void()> ends[] = {
      [this] { dialog_.At(kSecond).setFocus(); },
      [this] { combo_->AddString(L"row"), combo_->ShowDropDown(), combo_->ShowDropDown(FALSE); },
      [this] { QTest::mouseClick(widget_.lineEdit(), Qt::LeftButton); },
      [this] { combo_->ShowWindow(SW_HIDE), combo_->ShowWindow(SW_SHOW); }};
  for (const auto& end : ends) {
    WidgetOf(dialog_.m_hWnd)->activateWindow();
    ToolkitApplication::ProcessEvents();
    widget_.setFocus();
    Retype(At("al"));
    ASSERT_NE(List(), nullptr);
    EXPECT_TRUE(widget_.hasFocus());
    end();
    EXPECT_EQ(List(), nullptr);
  }
  widget_.setFocus();
  Retype(At("al"));
  ASSERT_NE(List(), nullptr);
  QTest::mouseClick(List()->viewport(), Qt::LeftButton, {},
                    List()->visualRect(List()->model()->index(1, 0)).center());
  EXPECT_EQ(Text(), At("Alpha"));
  EXPECT_EQ(List(), nullptr);
  EXPECT_TRUE(widget_.hasFocus());
}

TEST_F(Completion, AFolderThatHangsBlocksNoKey) {
  ScopedMachine machine;
  std::promise<void> gate;
  std::vector<std::wstring> many;
  for (int i = 0; i < 50000; ++i) many.push_back(L"name" + std::to_wstring(i));
  machine->folderNames = [&many, open = gate.get_future().share()](const std::wstring& folder) {
    if (folder != L"/many/") return std::vector<std::wstring>{L"other"};
    open.wait();
    return many;
  };
  QTest::keyClicks(&widget_, QStringLiteral("/many/nam"));
  ToolkitApplication::ProcessEvents();
  EXPECT_TRUE(PathCompletion::IsAnyBusy());
  EXPECT_EQ(Text(), "/many/nam");
  EXPECT_EQ(Shown(), QStringList());
  gate.set_value();
  Settle();
  EXPECT_EQ(Shown().size(), kMostCompletions);
  EXPECT_EQ(Text(), "/many/name0");
  Type("e4999");
  EXPECT_EQ(Shown().size(), 11);
}

TEST_F(Completion, AnAnswerForWhatIsTypedNoLongerIsDropped) {
  ScopedMachine machine;
  std::promise<void> gate;
  std::atomic<int> hanging = 0;
  machine->folderNames = [&hanging, open = gate.get_future().share()](const std::wstring& folder) {
    if (folder.starts_with(L"/hung")) {
      ++hanging;
      open.wait();
    }
    return std::vector<std::wstring>{L"in" + folder.substr(1, folder.size() - 2)};
  };
  const auto hang = [&](int hung) {
    widget_.lineEdit()->selectAll();
    QTest::keyClicks(&widget_, QStringLiteral("/hung%1/").arg(hung));
    while (hanging <= hung) ToolkitApplication::ProcessEvents();
  };
  for (int hung = 0; hung < 3; ++hung) hang(hung);
  Retype("/fast/");
  EXPECT_EQ(Shown(), QStringList("/fast/infast"));
  hang(3);
  widget_.lineEdit()->selectAll();
  QTest::keyClicks(&widget_, QStringLiteral("/last/"));
  ToolkitApplication::ProcessEvents();
  EXPECT_EQ(Shown(), QStringList()) << "as many hang as may";
  gate.set_value();
  Settle();
  EXPECT_EQ(Shown(), QStringList("/last/inlast"));
  EXPECT_EQ(Text(), "/last/");
}

struct AppendOnly : Completion {
  AppendOnly() : Completion(ACO_AUTOAPPEND) {}
};

TEST_F(AppendOnly, ShowsNoList) {
  Retype(At("Al"));
  EXPECT_EQ(Text(), At("Alpha"));
  EXPECT_EQ(Shown(), QStringList());
  widget_.lineEdit()->deselect();
  Press(Qt::Key_Down);
  EXPECT_EQ(Shown(), QStringList());
}

TEST(CompletionObjects, RefuseWhatTheyCannotDo) {
  ListeningDialog dialog({{L"ComboBox", L"", kControl, kEditable}, {L"Edit", L"", kSecond}});
  std::shared_ptr<IAutoComplete> completion;
  std::shared_ptr<IACList> list;
  ASSERT_EQ(CreateAutoComplete(&completion), S_OK);
  ASSERT_EQ(CreateACListISF(&list), S_OK);
  std::shared_ptr<IACList2> list2;
  ASSERT_EQ(QueryInterface(list, L"IACList2", &list2), S_OK);
  std::shared_ptr<IAutoCompleteDropDown> none;
  EXPECT_EQ(QueryInterface(list, L"IAutoCompleteDropDown", &none), E_NOINTERFACE);
  EXPECT_EQ(list2->SetOptions(0), E_INVALIDARG);
  EXPECT_EQ(list2->SetOptions(ACLO_FILESYSONLY), S_OK);
  std::shared_ptr<IAutoComplete2> completion2;
  ASSERT_EQ(QueryInterface(completion, L"IAutoComplete2", &completion2), S_OK);
  EXPECT_EQ(completion2->SetOptions(kAll), E_FAIL) << "tied to no edit";
  EXPECT_EQ(completion2->SetOptions(4), E_INVALIDARG);
  const HWND edit = dialog.GetDlgItem(kControl)->GetDlgItem(kComboEditId)->m_hWnd;
  EXPECT_EQ(completion->Init(dialog.GetDlgItem(kSecond)->m_hWnd, list, nullptr, nullptr),
            E_INVALIDARG);
  EXPECT_EQ(completion->Init(edit, completion, nullptr, nullptr), E_INVALIDARG);
  EXPECT_EQ(completion->Init(edit, list, L"key", nullptr), E_INVALIDARG);
  EXPECT_EQ(completion->Init(edit, list, nullptr, L"%s"), E_INVALIDARG);
  EXPECT_EQ(completion->Init(edit, list, nullptr, nullptr), S_OK);
  dialog.DestroyWindow();
  EXPECT_EQ(completion2->SetOptions(kAll), E_FAIL) << "the edit is gone";
}

TEST(ComboEdit, IsAWindowOfItsOwnInsideTheCombo) {
  ListeningDialog dialog(
      {{L"ComboBox", L"", kControl, kEditable}, {L"ComboBox", L"", kSecond, kList}});
  EXPECT_EQ(dialog.GetDlgItem(kSecond)->GetDlgItem(kComboEditId), nullptr);
  struct Listener : CBCGPEdit {
    std::vector<std::pair<UINT, WPARAM>> keys;
    WPARAM taken = 0;
    int browsed = 0;
    void OnBrowse() override { ++browsed; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
      const bool key = message == WM_KEYDOWN || message == WM_SYSKEYDOWN || message == WM_CHAR;
      if (key) keys.emplace_back(message, wParam);
      return key && wParam == taken ? 0 : CBCGPEdit::WindowProc(message, wParam, lParam);
    }
  } edit;
  Bound<CComboBox> combo(dialog);
  ASSERT_TRUE(edit.SubclassDlgItem(kComboEditId, &combo.control));
  auto& widget = dialog.At<QComboBox>();
  widget.setFocus();
  edit.taken = 'x';
  QTest::keyClicks(&widget, QStringLiteral("ax/"));
  QTest::keyClick(&widget, Qt::Key_Backspace);
  QTest::keyClick(&widget, Qt::Key_Right, Qt::AltModifier);
  using Keys = std::vector<std::pair<UINT, WPARAM>>;
  EXPECT_EQ(edit.keys, (Keys{{WM_KEYDOWN, 'A'},
                             {WM_CHAR, 'a'},
                             {WM_KEYDOWN, 'X'},
                             {WM_CHAR, 'x'},
                             {WM_CHAR, '/'},
                             {WM_KEYDOWN, VK_BACK},
                             {WM_CHAR, VK_BACK},
                             {WM_SYSKEYDOWN, VK_RIGHT}}));
  EXPECT_EQ(edit.browsed, 1);
  CString text;
  edit.GetWindowText(text);
  EXPECT_EQ(text, L"a");
  edit.SetWindowText(L"set");
  combo->GetWindowText(text);
  EXPECT_EQ(text, L"set");
  edit.SetSel(1, 3);
  EXPECT_EQ(combo->GetEditSel(), static_cast<DWORD>(MAKELPARAM(1, 3)));
  dialog.DestroyWindow();
  EXPECT_EQ(edit.m_hWnd, nullptr);
}

}  // namespace
