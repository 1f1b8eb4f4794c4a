#include "platform/message_map.h"

#include <gtest/gtest.h>

#include "dialog_script.h"
#include "platform/application.h"

namespace {

using Log = std::vector<std::string>;

class BaseDialog : public CDialog {
 public:
  using CDialog::CDialog;
  Log log;
  BOOL derivedTakes = FALSE;

 protected:
  void OnFirst() { log.push_back("base first"); }
  void OnSecond() { log.push_back("base second"); }
  void OnRange(UINT id) { log.push_back("range " + std::to_string(id)); }
  LRESULT OnPrivate(WPARAM wParam, LPARAM lParam) {
    log.push_back("private");
    return static_cast<LRESULT>(wParam) + lParam;
  }
  void OnBaseNotify(NMHDR* header, LRESULT* result) {
    log.push_back("notify " + std::to_string(header->idFrom));
    *result = 77;
  }
  BOOL OnBaseNeedText(UINT, NMHDR*, LRESULT*) { return log.push_back("base need"), TRUE; }
  void OnSize(UINT, int cx, int cy) {
    log.push_back("size " + std::to_string(cx) + "x" + std::to_string(cy));
  }
  void OnDestroy() {
    log.push_back("destroy");
    CDialog::OnDestroy();
  }
  DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseDialog, CDialog)
ON_BN_CLICKED(100, &BaseDialog::OnFirst)
ON_BN_CLICKED(101, &BaseDialog::OnSecond)
ON_CONTROL_RANGE(EN_CHANGE, 200, 202, &BaseDialog::OnRange)
ON_MESSAGE(WM_APP + 5, &BaseDialog::OnPrivate)
ON_NOTIFY(TVN_SELCHANGEDW, 100, &BaseDialog::OnBaseNotify)
ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &BaseDialog::OnBaseNeedText)
ON_WM_SIZE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

class DerivedDialog : public BaseDialog {
 public:
  using BaseDialog::BaseDialog;

 protected:
  void OnFirst() { log.push_back("derived first"); }
  BOOL OnNeedText(UINT, NMHDR*, LRESULT*) { return log.push_back("derived need"), derivedTakes; }
  DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedDialog, BaseDialog)
ON_BN_CLICKED(100, &DerivedDialog::OnFirst)
ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &DerivedDialog::OnNeedText)
END_MESSAGE_MAP()

const std::vector<DialogSource> kDialogs = {
    {500, {{L"Button", L"A", 100}, {L"Button", L"B", 101}, {L"Edit", L"", 201}}}};

WPARAM Command(int id, UINT code) {
  return static_cast<WPARAM>(static_cast<DWORD>(MAKELPARAM(id, static_cast<int>(code))));
}

TEST(MessageMap, GoesFromTheMostDerivedClassToItsBases) {
  const TestModule module(kDialogs);
  DerivedDialog dialog(500);
  ASSERT_TRUE(dialog.Create(500, nullptr));
  const struct {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT result;
    Log log;
  } rows[] = {
      {WM_COMMAND, Command(100, BN_CLICKED), 0, 1, {"derived first"}},
      {WM_COMMAND, Command(101, BN_CLICKED), 0, 1, {"base second"}},
      {WM_COMMAND, Command(101, EN_CHANGE), 0, 0, {}},
      {WM_COMMAND, Command(200, EN_CHANGE), 0, 1, {"range 200"}},
      {WM_COMMAND, Command(202, EN_CHANGE), 0, 1, {"range 202"}},
      {WM_COMMAND, Command(203, EN_CHANGE), 0, 0, {}},
      {WM_APP + 5, 3, 4, 7, {"private"}},
      {WM_APP + 6, 3, 4, 0, {}},
      {WM_SIZE, SIZE_RESTORED, MAKELPARAM(640, 480), 0, {"size 640x480"}},
  };
  for (const auto& row : rows) {
    dialog.log.clear();
    EXPECT_EQ(dialog.SendMessage(row.message, row.wParam, row.lParam), row.result);
    EXPECT_EQ(dialog.log, row.log) << row.message << " " << row.wParam;
  }
}

TEST(MessageMap, GoesOnWhereAnExtendedHandlerDeclines) {
  const TestModule module(kDialogs);
  DerivedDialog dialog(500);
  ASSERT_TRUE(dialog.Create(500, nullptr));
  TOOLTIPTEXTW text;
  text.hdr.code = TTN_NEEDTEXTW;
  const auto ask = [&] {
    dialog.log.clear();
    dialog.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&text));
    return dialog.log;
  };
  EXPECT_EQ(ask(), (Log{"derived need", "base need"}));
  dialog.derivedTakes = TRUE;
  EXPECT_EQ(ask(), (Log{"derived need"}));
}

TEST(MessageMap, TakesTheNotificationsOfControls) {
  const TestModule module(kDialogs);
  DerivedDialog dialog(500);
  ASSERT_TRUE(dialog.Create(500, nullptr));
  dialog.ShowWindow(SW_SHOW);
  dialog.log.clear();
  QTest::mouseClick(ControlWidget(dialog, 100), Qt::LeftButton);
  QTest::keyClick(ControlWidget(dialog, 201), Qt::Key_X);
  EXPECT_EQ(dialog.log, (Log{"derived first", "range 201"}));

  NMTREEVIEW header;
  const Peer* sender = FindPeer(dialog.GetDlgItem(100)->m_hWnd);
  EXPECT_EQ(NotifyParent(*sender, header.hdr, TVN_SELCHANGEDW), 77);
  EXPECT_EQ(dialog.log.back(), "notify 100");
}

TEST(MessageMap, HearsOfTheEndOnce) {
  const TestModule module(kDialogs);
  DerivedDialog dialog(500);
  ASSERT_TRUE(dialog.Create(500, nullptr));
  const HWND window = dialog.m_hWnd;
  dialog.log.clear();
  EXPECT_TRUE(dialog.PostMessage(WM_APP + 5));
  EXPECT_TRUE(dialog.DestroyWindow());
  EXPECT_FALSE(dialog.DestroyWindow());
  ToolkitApplication::ProcessEvents();
  EXPECT_EQ(dialog.log, (Log{"destroy"}));
  EXPECT_FALSE(PostMessage(window, WM_APP + 5, 0, 0));
  EXPECT_EQ(SendMessage(window, WM_APP + 5, 1, 2), 0);
}

TEST(MessageMap, DeliversPostedMessagesInOrder) {
  const TestModule module(kDialogs);
  DerivedDialog dialog(500);
  ASSERT_TRUE(dialog.Create(500, nullptr));
  dialog.log.clear();
  dialog.PostMessage(WM_APP + 5);
  dialog.PostMessage(WM_COMMAND, Command(101, BN_CLICKED));
  EXPECT_EQ(dialog.log, Log());
  ToolkitApplication::ProcessEvents();
  EXPECT_EQ(dialog.log, (Log{"private", "base second"}));
}

}  // namespace
