#include "platform/menu.h"

#include <gtest/gtest.h>

#include <QMenu>

#include "dialog_script.h"
#include "script_builder.h"

namespace {

/// A popup of two commands and a separator, and a plain command.
Bytes MenuScript() {
  Builder menu;
  menu.Words({0, 0, 0x10}).Text(u"&Edit");
  menu.Words({0, 35004}).Text(u"{2}").Words({0, 0}).Text(u"").Words({0x81, 35005}).Text(u"{3}");
  menu.Words({0x80, 9}).Text(u"last");
  return Script().Resource(kMenu, 5512, menu.bytes).bytes;
}

class Menus : public testing::Test {
 protected:
  HMENU Load() { return LoadMenu(&module_, 5512); }

 private:
  const Bytes script_ = MenuScript();
  const CModule module_{L"menus", script_};
};

TEST_F(Menus, AreReadFromTheModuleAndChanged) {
  EXPECT_EQ(LoadMenu(nullptr, 5512), nullptr);
  CMenu menu;
  ASSERT_TRUE(menu.Attach(Load()));
  EXPECT_EQ(GetMenuItemCount(menu.m_hMenu), 2);
  MenuRow row;
  ASSERT_TRUE(GetMenuRow(menu.m_hMenu, 0, row));
  EXPECT_EQ(row.text, L"&Edit");
  const HMENU popup = menu.GetSubMenu(0);
  EXPECT_EQ(row.submenu, popup);
  EXPECT_EQ(menu.GetSubMenu(1), nullptr);
  EXPECT_FALSE(GetMenuRow(menu.m_hMenu, 2, row));
  EXPECT_FALSE(GetMenuRow(menu.m_hMenu, -1, row));

  ASSERT_TRUE(GetMenuRow(popup, 2, row));
  EXPECT_EQ(row.command, 35005U);
  EXPECT_FALSE(row.enabled);
  EXPECT_TRUE(menu.EnableMenuItem(35005, MF_BYCOMMAND | MF_ENABLED));
  EXPECT_TRUE(menu.EnableMenuItem(35004, MF_BYCOMMAND | MF_GRAYED));
  EXPECT_FALSE(menu.EnableMenuItem(1, MF_ENABLED));
  EXPECT_TRUE(SetMenuText(popup, 2, L"Delete"));
  EXPECT_FALSE(SetMenuText(popup, 3, L"Delete"));
  ASSERT_TRUE(GetMenuRow(popup, 2, row));
  EXPECT_TRUE(row.enabled);
  EXPECT_EQ(row.text, L"Delete");
}

TEST_F(Menus, AreFoundStaleWhenTheyAreDestroyed) {
  const HMENU handle = Load();
  HMENU popup = nullptr;
  {
    CMenu menu;
    ASSERT_TRUE(menu.Attach(handle));
    EXPECT_FALSE(menu.Attach(Load())) << "one is attached";
    popup = menu.GetSubMenu(0);
  }
  EXPECT_EQ(GetMenuItemCount(handle), -1);
  EXPECT_EQ(GetMenuItemCount(popup), -1) << "it went with its menu";
  CMenu late;
  EXPECT_FALSE(late.Attach(handle));
  EXPECT_FALSE(late.EnableMenuItem(35004, MF_GRAYED));
  EXPECT_FALSE(late.DestroyMenu());
}

/// Remembers the commands that it gets.
struct Owner : TestDialog {
  using TestDialog::TestDialog;
  std::vector<WPARAM> commands;
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
    commands.push_back(wParam);
    return TestDialog::OnCommand(wParam, lParam);
  }
};

/// Shows the popup and acts on it as soon as it is open.
BOOL Track(HMENU popup, CWnd& owner, const std::function<void(QMenu&)>& action) {
  QTimer::singleShot(0, [action] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    action(*menu);
  });
  return TrackPopupMenuAtCursor(popup, &owner);
}

TEST_F(Menus, SendTheChosenCommandToTheirOwner) {
  const TestModule dialogs({{500, {{L"Button", L"", 7}}}});
  Owner owner(500);
  ASSERT_TRUE(owner.Create(500, nullptr));
  owner.ShowWindow(SW_SHOW);
  CMenu menu;
  ASSERT_TRUE(menu.Attach(Load()));

  EXPECT_TRUE(Track(menu.GetSubMenu(0), owner, [](QMenu& popup) {
    ASSERT_EQ(popup.actions().size(), 3);
    EXPECT_EQ(popup.actions()[0]->data().toUInt(), 35004U);
    EXPECT_TRUE(popup.actions()[1]->isSeparator());
    EXPECT_FALSE(popup.actions()[2]->isEnabled());
    QTest::mouseClick(&popup, Qt::LeftButton, {},
                      popup.actionGeometry(popup.actions()[0]).center());
  }));
  EXPECT_EQ(owner.commands, std::vector<WPARAM>{35004});
  owner.commands.clear();

  EXPECT_TRUE(Track(menu.m_hMenu, owner, [](QMenu& popup) {
    EXPECT_NE(popup.actions().front()->menu(), nullptr);
    QTest::keyClick(&popup, Qt::Key_Escape);
  }));
  EXPECT_TRUE(owner.commands.empty());

  EXPECT_TRUE(Track(menu.GetSubMenu(0), owner, [&owner](QMenu&) { owner.DestroyWindow(); }));
  EXPECT_TRUE(owner.commands.empty());
  EXPECT_FALSE(TrackPopupMenuAtCursor(menu.GetSubMenu(0), &owner)) << "the owner is gone";
}

TEST_F(Menus, OpenWhereTheLastInputWas) {
  const TestModule dialogs({{500, {{L"Edit", L"", 7}}}});
  Owner owner(500);
  ASSERT_TRUE(owner.Create(500, nullptr));
  owner.ShowWindow(SW_SHOW);
  CMenu menu;
  ASSERT_TRUE(menu.Attach(Load()));
  QWidget* edit = ControlWidget(owner, 7);
  QPoint opened;
  const auto note = [&opened](QMenu& popup) {
    opened = popup.pos();
    popup.close();
  };

  QTest::mouseClick(edit, Qt::RightButton, {}, QPoint(3, 4));
  Track(menu.m_hMenu, owner, note);
  EXPECT_EQ(opened, edit->mapToGlobal(QPoint(3, 4)));

  WidgetOf(owner.m_hWnd)->activateWindow();
  QApplication::processEvents();
  edit->setFocus();
  ASSERT_TRUE(edit->hasFocus());
  QTest::keyClick(edit, Qt::Key_Home);
  Track(menu.m_hMenu, owner, note);
  EXPECT_TRUE(QRect(edit->mapToGlobal(QPoint()), edit->size()).contains(opened));
  EXPECT_GT(opened.y(), edit->mapToGlobal(QPoint()).y() + edit->height() / 2);
}

}  // namespace
