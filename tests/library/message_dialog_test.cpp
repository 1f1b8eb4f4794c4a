#include "foundation/message_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QPixmap>

#include "environment.h"
#include "foundation/entry_frame.h"
#include "hollerin/application.h"
#include "resources/resource.h"

namespace {

TEST(MessageDialog, ShowsItsTextAndCopiesIt) {
  CMessageBox dialog(IDD_MESSAGE_BOX, L"Something to copy");
  ASSERT_TRUE(dialog.Create(IDD_MESSAGE_BOX, nullptr));
  CString text;
  dialog.GetDlgItemText(IDC_MESSAGE_TEXT, text);
  EXPECT_EQ(text, L"Something to copy");
  QApplication::clipboard()->clear();
  dialog.SendMessage(WM_COMMAND, IDC_COPY_TO_CLIPBOARD,
                     reinterpret_cast<LPARAM>(dialog.GetDlgItem(IDC_COPY_TO_CLIPBOARD)->m_hWnd));
  EXPECT_EQ(QApplication::clipboard()->text(), "Something to copy");
}

/// What the dialog looks like to the right of its image.
QImage TextArea(const CString& message) {
  CMessageBox dialog(IDD_MESSAGE_BOX, message);
  EXPECT_TRUE(dialog.Create(IDD_MESSAGE_BOX, nullptr));
  dialog.ShowWindow(SW_SHOW);
  const CRect image = GetChildRect(dialog.GetDlgItem(IDC_MESSAGE_IMAGE)->m_hWnd);
  CRect client;
  dialog.GetClientRect(client);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->property("templateNumber").toInt() != IDD_MESSAGE_BOX || window->isHidden())
      continue;
    return window->grab().toImage().copy(image.right, image.top, client.right - image.right,
                                         image.Height());
  }
  ADD_FAILURE() << "no window";
  return {};
}

TEST(MessageDialog, DrawsTheTextBesideTheImage) {
  const QImage empty = TextArea(L"");
  const QImage text = TextArea(L"Testing");
  ASSERT_EQ(empty.size(), text.size());
  EXPECT_NE(empty, text);
  // The text keeps clear of the image; a glyph may reach a little over its own edge.
  EXPECT_EQ(empty.copy(0, 0, 8, empty.height()), text.copy(0, 0, 8, text.height()));
}

/// Stands in for a dialog: writes into the store and ends with a result or an exception.
struct FakeDialog {
  std::shared_ptr<HOLLERIN::Store> store;
  int result;
  INT_PTR DoModal() {
    store->WriteInt(L"S", L"K", 2);
    if (result < 0) throw 7;
    return result;
  }
};

struct FrameCase {
  int result;
  bool snapshot;
  int status;  ///< -1 when the exception passes.
  int value;
};

TEST(EntryFrame, KeepsOrPutsBack) {
  for (const FrameCase& row : {FrameCase{IDOK, true, 0, 2},
                               {IDCANCEL, true, 1, 1},
                               {-1, true, -1, 1},
                               {IDCANCEL, false, 1, 2},
                               {IDOK, false, 0, 2}}) {
    const auto store = HOLLERIN::CreateStore();
    store->WriteInt(L"S", L"K", 1);
    const AFX_MODULE_STATE otherModule(nullptr);
    const AFX_MAINTAIN_STATE2 otherState(otherModule);
    int status = -1;
    try {
      status = RunEntryPoint(UiLibrary::kAttach, row.snapshot ? store : nullptr, [&] {
        EXPECT_NE(AfxGetResourceHandle(), nullptr);
        EXPECT_EQ(AfxGetResourceHandle(), LibraryModuleState().Module());
        return FakeDialog{store, row.result};
      });
    } catch (int) {
    }
    EXPECT_EQ(status, row.status);
    EXPECT_EQ(store->ReadInt(L"S", L"K", 0), row.value);
    EXPECT_EQ(AfxGetResourceHandle(), nullptr);
    EXPECT_NE(Process().uiLink, nullptr);
  }
}

}  // namespace
