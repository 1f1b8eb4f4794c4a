// What the main dialog and the single-page dialog do that a person cannot bring about.

#include "core/main_dialog.h"

#include <QAbstractButton>
#include <algorithm>

#include "core/config_entry_generic.h"
#include "core/restore_defaults.h"
#include "core/single_config_dialog.h"
#include "core/tree_builder.h"
#include "core/tree_images.h"
#include "environment.h"
#include "foundation/exception.h"
#include "page_fixture.h"
#include "pages/formats/boolean_page.h"
#include "platform/machine.h"

namespace {

class FailingMachine : public Machine {
 public:
  explicit FailingMachine(std::wstring operation) : operation_(std::move(operation)) {}
  bool Fails(std::wstring_view operation) const override { return operation == operation_; }

 private:
  std::wstring operation_;
};

/// Lets one operation of the sibling libraries fail for as long as the object lives.
struct ScopedFailure {
  explicit ScopedFailure(std::wstring operation) {
    SetMachine(std::make_shared<FailingMachine>(std::move(operation)));
  }
  ~ScopedFailure() { SetMachine(nullptr); }
};

class MainDialogTest : public PageTest {
 protected:
  using Dialog = Geometry::CGeometryWnd<CConfigurationMain>;

  void OpenDialog(std::int32_t pageId) {
    host.DestroyWindow();
    dialog = std::make_unique<Dialog>(store, master, nullptr, fourth, pageId);
    ASSERT_TRUE(dialog->Create(IDD_MAIN_CONFIGURATION, nullptr));
    dialog->ShowWindow(SW_SHOW);
    ToolkitApplication::ProcessEvents();
  }
  CTreeCtrl& Tree() const { return dynamic_cast<CTreeCtrl&>(*dialog->GetDlgItem(IDC_PAGE_TREE)); }
  std::wstring Selected() const { return Tree().GetItemText(Tree().GetSelectedItem()).Str(); }
  static bool Shown(UINT templateId) {
    for (const QWidget* widget : QApplication::allWidgets()) {
      if (widget->isVisible() && widget->property("templateNumber").toUInt() == templateId) {
        return true;
      }
    }
    return false;
  }

  /// Whether any page wrote; the values of the pages at hand are all in this section.
  bool PagesWrote() const {
    return std::ranges::any_of(store->writes, [](const std::wstring& line) {
      return line.find(L" Options/") != std::wstring::npos;
    });
  }

  std::shared_ptr<HOLLERIN::Store> master = HOLLERIN::CreateStore();
  std::shared_ptr<HOLLERIN::Store> fourth = HOLLERIN::CreateStore();
  std::unique_ptr<Dialog> dialog;
};

TEST_F(MainDialogTest, NotificationsRebuildTheChildrenOfTheirItem) {
  OpenDialog(7);
  EXPECT_TRUE(Shown(IDD_HISTORY_PAGE));
  const HTREEITEM general = Tree().GetRootItem();
  const HTREEITEM history = Tree().GetChildItem(general);
  CTreeViewParms parms(general);
  EXPECT_EQ(dialog->Notify(kChildrenChanged + 1, &parms), S_OK);
  EXPECT_EQ(dialog->Notify(kChildrenChanged, nullptr), S_OK);
  EXPECT_EQ(Tree().GetSelectedItem(), history);
  EXPECT_EQ(dialog->Notify(kChildrenChanged, &parms), S_OK);
  ToolkitApplication::ProcessEvents();
  EXPECT_EQ(Tree().GetSelectedItem(), general);
  EXPECT_TRUE(Shown(IDD_GENERAL_GROUP));
  EXPECT_FALSE(Shown(IDD_HISTORY_PAGE));
  ASSERT_NE(Tree().GetChildItem(general), nullptr);
  EXPECT_EQ(EntryOf(Tree(), Tree().GetChildItem(general))->GetPageId(), 7);
}

TEST_F(MainDialogTest, AnUnknownPageShowsNone) {
  OpenDialog(12345);
  EXPECT_EQ(Tree().GetSelectedItem(), nullptr);
  EXPECT_FALSE(Shown(IDD_GENERAL_GROUP));
}

TEST_F(MainDialogTest, APageThatCannotBeReadIsReportedAndLeavesTheDialogUsable) {
  OpenDialog(4);
  store->failsReading = true;
  const HTREEITEM history = Tree().GetChildItem(Tree().GetRootItem());
  EXPECT_EQ(AnswerMessages([&] { Tree().SelectItem(history); }).size(), 1U);
  EXPECT_FALSE(Shown(IDD_GENERAL_GROUP));
  store->failsReading = false;
  Tree().SelectItem(Tree().GetRootItem());
  Tree().SelectItem(history);
  EXPECT_TRUE(Shown(IDD_HISTORY_PAGE));
}

TEST_F(MainDialogTest, AVetoKeepsTheSelection) {
  OpenDialog(19);  // Its distance is 0, which it refuses.
  const std::wstring before = Selected();
  EXPECT_EQ(AnswerMessages([&] { Tree().SelectItem(Tree().GetRootItem()); }).size(), 1U);
  EXPECT_EQ(Selected(), before);
  EXPECT_TRUE(Shown(IDD_BOOLEAN_PAGE));
}

/// Presses Yes where there is such a button, else the only one.
class Agreeing : public QObject {
 public:
  Agreeing() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* box = qobject_cast<QMessageBox*>(object);
    if (box != nullptr && event->type() == QEvent::Show) {
      texts.push_back(box->text().toStdWString());
      QAbstractButton* yes = box->button(QMessageBox::Yes);
      QMetaObject::invokeMethod(yes != nullptr ? yes : box->buttons().first(),
                                &QAbstractButton::click, Qt::QueuedConnection);
    }
    return false;
  }
  std::vector<std::wstring> texts;
};

TEST_F(MainDialogTest, RestoringNeitherAsksNorWritesThePageShown) {
  fourth->WriteInt(L"Some", L"Value", 1);
  store->values->WriteInt(L"Options", L"MaxNearDistance", 0);
  OpenDialog(19);
  Agreeing agreeing;
  QTest::mouseClick(WidgetOf(IDD_MAIN_CONFIGURATION, IDC_RESTORE_DEFAULTS), Qt::LeftButton);
  EXPECT_EQ(agreeing.texts.size(), 1U);
  EXPECT_FALSE(PagesWrote());
  EXPECT_TRUE(fourth->GetValues().empty());
  EXPECT_EQ(Tree().GetSelectedItem(), Tree().GetRootItem());
  EXPECT_TRUE(Shown(IDD_GENERAL_GROUP));
  EXPECT_FALSE(Shown(IDD_BOOLEAN_PAGE));
}

TEST_F(MainDialogTest, AFailedRestoreKeepsWhatWasDoneAndOkDoesNotUndoIt) {
  store->values->WriteInt(L"Options", L"HashingAlgorithms", 9);
  OpenDialog(20);
  fourth->WriteInt(L"Some", L"Value", 1);
  const ScopedFailure failure(L"CreateDefaultMasterConfiguration");
  Agreeing agreeing;
  QTest::mouseClick(WidgetOf(IDD_MAIN_CONFIGURATION, IDC_RESTORE_DEFAULTS), Qt::LeftButton);
  ASSERT_EQ(agreeing.texts.size(), 2U);
  EXPECT_NE(agreeing.texts[1].find(L"Loading default master configuration"), std::wstring::npos);
  EXPECT_EQ(Tree().GetRootItem(), nullptr);
  EXPECT_FALSE(fourth->GetValues().empty());
  std::wstring restored, after;
  store->SaveToText(restored);
  EXPECT_NE(store->values->ReadInt(L"Options", L"HashingAlgorithms", -1), 9);
  dialog->SendMessage(WM_COMMAND, IDOK);
  store->SaveToText(after);
  EXPECT_EQ(after, restored);
  EXPECT_FALSE(PagesWrote());
}

TEST_F(MainDialogTest, EveryFailingStepOfRestoringNamesItsTask) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"LoadMainDefaultConfiguration", L"Loading default configuration"},
      {L"CreateConfigInterpreterListMgr", L"Creating list mgr"},
      {L"CreateDefaultMasterConfiguration", L"Loading default master configuration"}};
  for (const auto& [operation, task] : cases) {
    const ScopedFailure failure(operation);
    try {
      LoadDefaultConfiguration(*store);
      ResyncDocumentFilters(store);
      LoadDefaultMaster(*master);
      ADD_FAILURE() << ToUtf8(operation);
    } catch (const CCP_Exception& exception) {
      EXPECT_EQ(exception.Record().task, task);
      EXPECT_EQ(exception.Record().status, E_FAIL);
    }
  }
}

TEST(TreeImages, SizeAndColoursFollowTheScreen) {
  for (const auto& [dpi, size] : {std::pair{96, 16},
                                  {143, 16},
                                  {144, 24},
                                  {191, 24},
                                  {192, 32},
                                  {280, 32},
                                  {281, 48},
                                  {288, 48}}) {
    EXPECT_EQ(TreeImageSize(dpi), size) << dpi;
  }
  for (const auto& [bits, flag] : {std::pair{32, ILC_COLOR32},
                                   {31, ILC_COLOR24},
                                   {24, ILC_COLOR24},
                                   {16, ILC_COLOR16},
                                   {15, ILC_COLOR8}}) {
    EXPECT_EQ(ImageListColours(bits), flag) << bits;
  }
}

class SingleDialogTest : public PageTest {
 protected:
  SingleDialogTest() { host.DestroyWindow(); }
  std::shared_ptr<CConfigEntryGeneric<CConfigEntryExprBooleanDlg>> entry =
      std::make_shared<CConfigEntryGeneric<CConfigEntryExprBooleanDlg>>(L"Boolean", 19);
  CSingleConfigDialog single{store, entry, nullptr};
};

TEST_F(SingleDialogTest, ShowsThePageInItsFrameAfterTheHook) {
  std::shared_ptr<CDialog> hooked;
  single.SetPageHook([&](const std::shared_ptr<CDialog>& page) {
    EXPECT_FALSE(page->IsWindowVisible());
    hooked = page;
  });
  ASSERT_TRUE(single.Create(IDD_SINGLE_PAGE, nullptr));
  single.ShowWindow(SW_SHOW);
  ASSERT_NE(hooked, nullptr);
  EXPECT_TRUE(hooked->IsWindowVisible());
  CRect frame, page;
  single.GetDlgItem(IDC_SINGLE_PAGE_FRAME)->GetWindowRect(frame);
  hooked->GetWindowRect(page);
  EXPECT_EQ(page, frame);
}

TEST_F(SingleDialogTest, ARefusedPageFailsTheWholeExchangeAndKeepsTheFocus) {
  ASSERT_TRUE(single.Create(IDD_SINGLE_PAGE, nullptr));
  single.ShowWindow(SW_SHOW);
  EXPECT_EQ(AnswerMessages([&] { EXPECT_FALSE(single.UpdateData(TRUE)); }).size(), 1U);
  EXPECT_TRUE(store->writes.empty());
  EXPECT_TRUE(HasFocus(IDD_BOOLEAN_PAGE, IDC_MAX_NEAR_DISTANCE));
  entry->GetDialog(nullptr, nullptr)->SetDlgItemText(IDC_MAX_NEAR_DISTANCE, L"3");
  EXPECT_TRUE(single.UpdateData(TRUE));
  EXPECT_EQ(store->values->ReadInt(L"Options", L"MaxNearDistance", 0), 3);
}

TEST_F(SingleDialogTest, HasNoStoreButTheWorkingOne) {
  StoreHandle handle = store;
  single.GetMasterConfig(handle);
  EXPECT_EQ(handle, nullptr);
  handle = store;
  single.GetHistoryConfig(handle);
  EXPECT_EQ(handle, nullptr);
  single.GetConfig(handle);
  EXPECT_EQ(handle, store);
  EXPECT_EQ(single.GetClearHistorySettings(), nullptr);
}

}  // namespace
