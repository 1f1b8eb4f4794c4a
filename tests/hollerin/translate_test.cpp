#include <gtest/gtest.h>

#include "hollerin/application.h"
#include "hollerin/hollerin.h"
#include "hollerin/temporary_folder.h"
#include "platform/application.h"
#include "platform/dialog.h"
#include "platform/embedded_resources.h"
#include "platform/machine.h"
#include "platform/menu.h"
#include "platform/module.h"

namespace {

using namespace HOLLERIN;

constexpr int kDialog = 9001;
constexpr int kMenu = 9002;

class Translate : public testing::Test {
 protected:
  Translate() {
    Put(folder_ / "lang-en.xml",
        "<translation><dialog n=\"9001\"><text n=\"1\">One</text><text n=\"2\">&amp;Two</text>"
        "<text n=\"3\">Caption</text></dialog>"
        "<dialog n=\"42\" title=\"Title\"/><menu n=\"9002\"><text n=\"1\">Root</text>"
        "<text n=\"2\">First</text><text n=\"3\">More</text><text n=\"4\">Second</text></menu>"
        "</translation>");
    Application application;
    application.langFolder = folder_.Path().wstring() + L"/";
    EXPECT_EQ(SetUpApplication(application), L"");
  }
  ~Translate() override {
    SetUpApplication({});
    SetMachine(nullptr);
  }

  /// The texts of the dialog's controls, and its caption at the end.
  static std::vector<std::wstring> Texts(HWND window) {
    std::vector<std::wstring> texts;
    for (const HWND child : GetChildWindows(window)) texts.push_back(GetWindowText(child));
    texts.push_back(GetWindowText(window));
    return texts;
  }

  /// The texts of a menu and its submenus, in the order of a reader.
  static std::vector<std::wstring> Rows(HMENU menu) {
    std::vector<std::wstring> texts;
    MenuRow row;
    for (int i = 0; GetMenuRow(menu, i, row); ++i) {
      texts.push_back(row.text.Str());
      if (row.submenu == nullptr) continue;
      for (std::wstring& text : Rows(row.submenu)) texts.push_back(std::move(text));
    }
    return texts;
  }

  char program_[5] = "test";
  char* arguments_[2] = {program_, nullptr};
  int argumentCount_ = 1;
  ToolkitApplication toolkit_{argumentCount_, arguments_};
  CModule module_{L"test", EmbeddedResources()};
  AFX_MODULE_STATE state_{&module_};
  AFX_MAINTAIN_STATE2 current_{state_};
  TemporaryFolder folder_;
};

struct FailingMachine : Machine {
  bool Fails(std::wstring_view operation) const override {
    return operation == L"TranslateDialog" || operation == L"TranslateMenu";
  }
};

TEST_F(Translate, ReplacesWholePlaceholdersAndLeavesTheRest) {
  using Expected = std::vector<std::wstring>;
  CDialog dialog(kDialog);
  ASSERT_TRUE(dialog.Create(kDialog, nullptr));
  dialog.SetDlgItemText(105, L"{1}");
  EXPECT_EQ(TranslateDialog(kDialog, dialog.m_hWnd), S_OK);
  EXPECT_EQ(Texts(dialog.m_hWnd), (Expected{L"One", L"{1} ", L"&Two", L"{9}", L"{1}", L"Caption"}));
  EXPECT_EQ(TranslateDialog(42, dialog.m_hWnd), S_OK);
  EXPECT_EQ(Texts(dialog.m_hWnd).back(), L"Title");
}

TEST_F(Translate, FailsForAWindowOrMenuThatIsGone) {
  CDialog dialog(kDialog);
  ASSERT_TRUE(dialog.Create(kDialog, nullptr));
  const HWND window = dialog.m_hWnd;
  dialog.DestroyWindow();
  EXPECT_EQ(TranslateDialog(kDialog, window), E_FAIL);
  EXPECT_EQ(TranslateDialog(kDialog, nullptr), E_FAIL);
  CMenu menu;
  ASSERT_TRUE(menu.Attach(LoadMenu(&module_, kMenu)));
  const HMENU handle = menu.m_hMenu;
  menu.DestroyMenu();
  EXPECT_EQ(TranslateMenu(kMenu, handle), E_FAIL);
  EXPECT_EQ(TranslateMenu(kMenu, nullptr), E_FAIL);
}

TEST_F(Translate, GoesIntoSubmenus) {
  CMenu menu;
  ASSERT_TRUE(menu.Attach(LoadMenu(&module_, kMenu)));
  EXPECT_EQ(TranslateMenu(kMenu, menu.m_hMenu), S_OK);
  EXPECT_EQ(Rows(menu.m_hMenu),
            (std::vector<std::wstring>{L"Root", L"First", L"", L"More", L"Second", L"{9}"}));
}

TEST_F(Translate, FailsOnDemandAndDoesNothingWithoutALanguage) {
  CDialog dialog(kDialog);
  ASSERT_TRUE(dialog.Create(kDialog, nullptr));
  CMenu menu;
  ASSERT_TRUE(menu.Attach(LoadMenu(&module_, kMenu)));
  const auto texts = Texts(dialog.m_hWnd);
  const auto rows = Rows(menu.m_hMenu);
  SetMachine(std::make_shared<FailingMachine>());
  EXPECT_EQ(TranslateDialog(kDialog, dialog.m_hWnd), E_FAIL);
  EXPECT_EQ(TranslateMenu(kMenu, menu.m_hMenu), E_FAIL);
  SetMachine(nullptr);
  EXPECT_NE(SetUpApplication({}), L"");
  EXPECT_EQ(TranslateDialog(kDialog, dialog.m_hWnd), S_OK);
  EXPECT_EQ(TranslateMenu(kMenu, menu.m_hMenu), S_OK);
  EXPECT_EQ(Texts(dialog.m_hWnd), texts);
  EXPECT_EQ(Rows(menu.m_hMenu), rows);
}

}  // namespace
