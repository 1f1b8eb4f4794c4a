// The branch of file extensions: lists as text, the pages of interpreters, and the manager.

#include <QLabel>

#include "core/extension_list.h"
#include "core/tree_builder.h"
#include "environment.h"
#include "foundation/exception.h"
#include "hollerin/interpreter_list.h"
#include "page_fixture.h"
#include "pages/formats/extension_entry.h"
#include "pages/formats/extension_mgr.h"
#include "pages/formats/extension_page.h"
#include "support/fake_machine.h"

namespace {

TEST(ExtensionListTest, StoredListsAreShownOnePerLine) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"", L""},
      {L".txt, .log", L"txt\r\nlog\r\n"},
      {L"*.txt,, .log ,", L"*.txt\r\nlog\r\n"},
      {L" . ,..,", L""},
      {L"tar.gz. ,a b", L"tar.gz\r\na b\r\n"},
      {L"x\ty,\r\n", L"x\ty\r\n\r\n\r\n"},
  };
  for (const auto& [stored, lines] : cases) EXPECT_EQ(ExtensionLines(stored), lines);
}

TEST(ExtensionListTest, LinesAreStoredJoinedByCommas) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"", L""},
      {L"\r\n \r\n . \r\n", L""},
      {L"*.txt\r\n.log\r\n", L"*.txt,log"},
      {L"txt\r\n\r\n log \r\n\r\n", L"txt,log"},
      {L"\rtxt\n\r\n.tar.gz.", L"txt,tar.gz"},
      {L"a\nb", L"a\nb"},
      {L"a,b\r\nc", L"a,b,c"},
  };
  for (const auto& [lines, stored] : cases) EXPECT_EQ(ExtensionList(lines), stored);
}

using HOLLERIN::InterpreterEntry;

/// An interpreter that writes down which setters were called, a letter for each call.
class FakeInterpreter : public INTERNAL_IFC::IConfigInterpreter {
 public:
  explicit FakeInterpreter(InterpreterEntry given) : facts(std::move(given)) {}

  std::wstring GetName() override { return facts.name; }
  std::wstring GetKey() override { return facts.key; }
  std::wstring GetExtensions() override { return facts.extensions; }
  std::wstring GetInfoText() override { return facts.info; }
  std::wstring GetType() override { return facts.type; }
  bool IsEnabled() override { return facts.enabled; }
  bool GetOptionA() override { return facts.optionA; }
  bool IsDocumentFormat() override { return facts.document; }
  bool GetOptionC() override { return facts.optionC; }
  void SetExtensions(const std::wstring& text) override { facts.extensions = text, setters += 'E'; }
  void SetEnabled(bool on) override { facts.enabled = on, setters += 'N'; }
  void SetOptionA(bool on) override { facts.optionA = on, setters += 'A'; }
  void SetDocumentFormat(bool on) override { facts.document = on, setters += 'D'; }
  void SetOptionC(bool on) override { facts.optionC = on, setters += 'C'; }

  InterpreterEntry facts;
  std::string setters;
};

class ExtensionPageTest : public PageTest {
 protected:
  using Page = Geometry::CGeometryWnd<CConfigEntryExtensionDlg>;
  std::shared_ptr<FakeInterpreter> interpreter =
      std::make_shared<FakeInterpreter>(InterpreterEntry{L"R&D", L"key", L".txt, .log", L"A && B"});
};

TEST_F(ExtensionPageTest, EveryOptionIsShownAndSavedAndSetInBothDirections) {
  for (const bool optionA : {false, true}) {
    for (const bool document : {false, true}) {
      for (const bool optionC : {false, true}) {
        interpreter->facts.optionA = optionA;
        interpreter->facts.document = document;
        interpreter->facts.optionC = optionC;
        interpreter->setters.clear();
        Page page(interpreter);
        Open(page);
        EXPECT_EQ(Checked(page, IDC_EXTENSION_OPTION_A), optionA);
        EXPECT_EQ(Checked(page, IDC_EXTENSION_DOCUMENT), document);
        EXPECT_EQ(Checked(page, IDC_EXTENSION_NOT_OPTION_C), !optionC);
        EXPECT_EQ(interpreter->setters, "ADC");
        EXPECT_EQ(interpreter->facts.optionC, optionC);
        Click(page, IDC_EXTENSION_OPTION_A);
        Click(page, IDC_EXTENSION_DOCUMENT);
        Click(page, IDC_EXTENSION_NOT_OPTION_C);
        EXPECT_TRUE(SavePage(page));
        EXPECT_EQ(interpreter->setters, "ADCADCE");
        EXPECT_EQ(interpreter->facts.optionA, !optionA);
        EXPECT_EQ(interpreter->facts.document, !document);
        EXPECT_EQ(interpreter->facts.optionC, !optionC);
      }
    }
  }
  EXPECT_TRUE(store->reads.empty());
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(ExtensionPageTest, TextsAreShownAsTheyStand) {
  Page page(interpreter);
  Open(page);
  EXPECT_EQ(Text(page, IDC_EXTENSION_NAME), L"R&D");
  EXPECT_EQ(Text(page, IDC_EXTENSION_INFO), L"A && B");
  const auto* name = qobject_cast<QLabel*>(WidgetOf(IDD_EXTENSION_PAGE, IDC_EXTENSION_NAME));
  ASSERT_NE(name, nullptr);
  EXPECT_EQ(name->text(), "R&&D") << "a single mark would underline the D";
  EXPECT_EQ(WidgetOf(IDD_EXTENSION_PAGE, IDC_EXTENSIONS)->accessibleName(),
            "File extensions, one on each line");
}

TEST_F(ExtensionPageTest, ExtensionsAreTypedOnLines) {
  Page page(interpreter);
  Open(page);
  EXPECT_EQ(Text(page, IDC_EXTENSIONS), L"txt\r\nlog\r\n");
  QWidget* edit = WidgetOf(IDD_EXTENSION_PAGE, IDC_EXTENSIONS);
  QTest::keyClick(edit, Qt::Key_End, Qt::ControlModifier);
  QTest::keyClicks(edit, ".md");
  QTest::keyClick(edit, Qt::Key_Return);
  QTest::keyClick(edit, Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(edit, "x");
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(interpreter->facts.extensions, L"txt,log,md,x");
}

TEST_F(ExtensionPageTest, ALongListSurvives) {
  std::wstring& list = interpreter->facts.extensions;
  list = L"x0";
  for (int number = 1; list.size() < 64 * 1024; ++number) list += L",x" + std::to_wstring(number);
  const std::wstring before = list;
  Page page(interpreter);
  Open(page);
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(interpreter->facts.extensions, before);
}

TEST_F(ExtensionPageTest, ExtensionsAndOptionsKeepTheirPlacesInATallerPage) {
  Page page(interpreter);
  Open(page);
  CRect client;
  page.GetClientRect(client);
  const auto rectOf = [&](int id) { return GetChildRect(page.GetDlgItem(id)->m_hWnd); };
  const CRect edit = rectOf(IDC_EXTENSIONS), check = rectOf(IDC_EXTENSION_NOT_OPTION_C),
              label = rectOf(IDC_EXTENSION_INFO_LABEL), name = rectOf(IDC_EXTENSION_NAME);
  page.MoveWindow(CRect(0, 0, client.right + 30, client.bottom + 20));
  EXPECT_EQ(rectOf(IDC_EXTENSIONS), CRect(edit.left, edit.top, edit.right, edit.bottom + 20));
  EXPECT_EQ(rectOf(IDC_EXTENSION_NOT_OPTION_C),
            CRect(check.left, check.top + 20, check.right + 30, check.bottom + 20));
  EXPECT_EQ(rectOf(IDC_EXTENSION_INFO_LABEL),
            CRect(label.left, label.top + 20, label.right, label.bottom + 20));
  EXPECT_EQ(rectOf(IDC_EXTENSION_NAME), name);
}

class RecordingObserver : public INTERNAL_IFC::IObserver {
 public:
  HRESULT GetObserverId(std::uint32_t&) override { return E_NOTIMPL; }
  HRESULT Notify(std::uint32_t code, INTERNAL_IFC::IObserverParms* parms) override {
    notes.emplace_back(code, parms);
    return S_OK;
  }
  std::vector<std::pair<std::uint32_t, INTERNAL_IFC::IObserverParms*>> notes;
};

class ExtensionMgrTest : public PageTest {
 protected:
  void StoreList(std::vector<InterpreterEntry> entries) {
    const auto list = HOLLERIN::MakeInterpreterList(std::move(entries));
    ASSERT_EQ(HOLLERIN::SaveConfigInterpreterList(store, list, true), S_OK);
  }
  std::map<std::wstring, std::wstring> StoredExtensions() {
    HOLLERIN::InterpreterListHandle list;
    EXPECT_EQ(HOLLERIN::LoadCurrentConfigInterpreterList(store, &list), S_OK);
    std::map<std::wstring, std::wstring> stored;
    std::shared_ptr<INTERNAL_IFC::IConfigInterpreter> entry;
    for (int index = 0; index < list->GetCount(); ++index) {
      EXPECT_EQ(list->GetAt(index, entry), S_OK);
      stored[entry->GetKey()] = entry->GetExtensions();
    }
    return stored;
  }
  /// Titles of the children behind the two pages of the table.
  static std::vector<std::wstring> Titles(CConfigExtensionMgr& manager) {
    EntryList children;
    EXPECT_GE(manager.GetChildren(children), 2);
    std::vector<std::wstring> titles;
    for (std::size_t index = 0; index < children.size(); ++index) {
      EXPECT_EQ(children[index]->GetPageId(), index == 0 ? 15 : index == 1 ? 18 : -1);
      if (index >= 2) titles.push_back(children[index]->GetTitle().Str());
    }
    return titles;
  }
  std::shared_ptr<CDialog> OpenChild(CConfigExtensionMgr& manager, std::size_t index) {
    EntryList children;
    manager.GetChildren(children);
    return children.at(index)->GetDialog(&host, &provider);
  }
};

TEST_F(ExtensionMgrTest, DefaultInterpretersComeFirstAndFiltersHaveNoPage) {
  StoreList({{L"converter", L"1", L"", L"", L"textconverter"},
             {L"filter", L"2", L"", L"", L"an ifilter"},
             {L"config", L"3", L"", L"", L"configuration"},
             {L"upper", L"4", L"", L"", L"IFilter"},
             {L"default", L"5", L"", L"", L"text defaultinterpreter"},
             {L"both", L"6", L"", L"", L"defaultinterpreter ifilter"},
             {L"last", L"7", L"", L"", L"defaultinterpreter"}});
  CConfigExtensionMgr manager(store);
  EXPECT_EQ(Titles(manager),
            (std::vector<std::wstring>{L"default", L"last", L"converter", L"upper"}));
  EntryList once, twice;
  manager.GetChildren(once);
  manager.GetChildren(twice);
  EXPECT_EQ(once, twice);
}

TEST_F(ExtensionMgrTest, AListThatFailsIsReportedAtTheStatedLine) {
  ScopedMachine machine;
  CConfigExtensionMgr manager(store);
  machine->fails = L"GetAt";
  EntryList children;
  try {
    manager.GetChildren(children);
    FAIL();
  } catch (const CCP_Exception& exception) {
    EXPECT_EQ(exception.Record().task, L"Getting config for entry into list");
    EXPECT_EQ(exception.Record().line, 89);
  }
  machine->fails.clear();
  EXPECT_GT(manager.GetChildren(children), 2);
}

TEST_F(ExtensionMgrTest, WithoutStoreOrListTheFixedPagesAreLeft) {
  CConfigExtensionMgr storeless(nullptr);
  EXPECT_TRUE(Titles(storeless).empty());
  EXPECT_EQ(storeless.Apply(), E_FAIL);

  ScopedMachine machine;
  machine->fails = L"LoadCurrentConfigInterpreterList";
  TakeLog();
  CConfigExtensionMgr manager(store);
  EXPECT_EQ(TakeLog().size(), 1U);
  EXPECT_TRUE(Titles(manager).empty());
  OpenChild(manager, 1);
  EXPECT_EQ(manager.Apply(), S_OK);
  EXPECT_EQ(store->writes, (std::vector<std::wstring>{L"text FileType/UTF8 ",
                                                      L"bool FileType/AutoDetectUTF8 false"}));
}

TEST_F(ExtensionMgrTest, ApplyingStoresTheOpenedPagesOverWhatOthersStoredMeanwhile) {
  StoreList({{L"a", L"a", L"a1"}, {L"b", L"b", L"b1"}, {L"c", L"c", L"c1"}});
  CConfigExtensionMgr manager(store);
  OpenChild(manager, 2)->SetDlgItemText(IDC_EXTENSIONS, L".a2\r\n");
  OpenChild(manager, 4)->SetDlgItemText(IDC_EXTENSIONS, L"c2");
  StoreList({{L"b", L"b", L"b2"}, {L"new", L"d", L"d2"}, {L"a", L"a", L"a0"}});
  EXPECT_EQ(manager.Apply(), S_OK);
  EXPECT_EQ(StoredExtensions(),
            (std::map<std::wstring, std::wstring>{{L"a", L"a2"}, {L"b", L"b2"}, {L"d", L"d2"}}));
  OpenChild(manager, 2)->SetDlgItemText(IDC_EXTENSIONS, L"a3");
  EXPECT_EQ(manager.Apply(), S_OK);
  EXPECT_EQ(StoredExtensions()[L"a"], L"a3");

  ScopedMachine machine;
  for (const wchar_t* operation : {L"SaveConfigInterpreterList", L"FindByKey"}) {
    machine->fails = operation;
    EXPECT_EQ(manager.Apply(), E_FAIL) << ToUtf8(operation);
  }
}

TEST_F(ExtensionMgrTest, ReloadingReplacesTheChildrenAndTellsTheObserver) {
  StoreList({{L"old", L"a", L"a1"}});
  CConfigExtensionMgr manager(store);
  manager.Reload();  // Nobody listens yet.
  RecordingObserver observer;
  const auto parms = std::make_shared<CTreeViewParms>(nullptr);
  EXPECT_EQ(manager.Subscribe(&observer, parms), S_OK);
  OpenChild(manager, 2)->SetDlgItemText(IDC_EXTENSIONS, L"unsaved");
  StoreList({{L"new", L"a", L"a2"}, {L"more", L"b", L"b2"}});
  {
    ScopedMachine machine;
    machine->fails = L"LoadCurrentConfigInterpreterList";
    EXPECT_THROW(manager.Reload(), CCP_Exception);
  }
  EXPECT_TRUE(observer.notes.empty());
  EXPECT_EQ(Titles(manager), std::vector<std::wstring>{L"old"});
  manager.Reload();
  ASSERT_EQ(observer.notes.size(), 1U);
  EXPECT_EQ(observer.notes[0].first, 32908U);
  EXPECT_EQ(observer.notes[0].second, parms.get());
  EXPECT_EQ(Titles(manager), (std::vector<std::wstring>{L"new", L"more"}));
  EXPECT_EQ(manager.Apply(), S_OK);
  EXPECT_EQ(StoredExtensions()[L"a"], L"a2");
}

}  // namespace
