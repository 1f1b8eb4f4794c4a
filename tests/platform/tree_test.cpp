// Trees, driven by keys and clicks.

#include <gtest/gtest.h>

#include <QTreeWidget>

#include "listening_dialog.h"

namespace {

class TreeTest : public testing::Test {
 protected:
  TreeTest() {
    tree_->SetItemHeight(23);
    root_ = tree_->InsertItem(L"Root", 0, 0, TVI_ROOT, TVI_LAST);
    first_ = tree_->InsertItem(L"First", 0, 0, root_, TVI_LAST);
    second_ = tree_->InsertItem(L"Second", 0, 0, root_, TVI_LAST);
    tree_->SetItemData(root_, 1);
    tree_->SetItemData(first_, 11);
    tree_->SetItemData(second_, 12);
    tree_->Expand(root_, TVE_EXPAND);
    widget_.setFocus();
    tree_->SelectItem(root_);
    dialog_.Take();
  }

  QPoint Middle(HTREEITEM item) {
    for (QTreeWidgetItemIterator it(&widget_); *it != nullptr; ++it) {
      if ((*it)->text(0).toStdWString() == tree_->GetItemText(item).Str()) {
        return widget_.visualItemRect(*it).center();
      }
    }
    ADD_FAILURE();
    return {};
  }
  void ClickOn(HTREEITEM item) {
    QTest::mouseClick(widget_.viewport(), Qt::LeftButton, {}, Middle(item));
  }

  ListeningDialog dialog_{{{L"SysTreeView32", L"", kControl, kStop, 7, 7, 120, 100}}};
  Bound<CBCGPTreeCtrl> tree_{dialog_};
  QTreeWidget& widget_ = dialog_.At<QTreeWidget>();
  HTREEITEM root_ = nullptr, first_ = nullptr, second_ = nullptr;
};

const Notes kMoved = {{TVN_SELCHANGINGW, kControl}, {TVN_SELCHANGEDW, kControl}};

TEST_F(TreeTest, AsksBeforeEveryWayOfSelecting) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"mouse", [this] { ClickOn(first_); }},
      {"key", [this] { QTest::keyClick(&widget_, Qt::Key_Down); }},
      {"key to child", [this] { QTest::keyClick(&widget_, Qt::Key_Right); }},
      {"typing ahead", [this] { QTest::keyClicks(&widget_, QStringLiteral("F")); }},
      {"program", [this] { tree_->SelectItem(first_); }},
  };
  for (const auto& [name, act] : ways) {
    SCOPED_TRACE(name);
    dialog_.onTree = [&](NMTREEVIEW& note) -> LRESULT {
      EXPECT_EQ(tree_->GetSelectedItem(), root_) << "asked before anything moves";
      EXPECT_EQ(note.itemOld.hItem, root_);
      EXPECT_EQ(note.itemOld.lParam, 1);
      EXPECT_EQ(note.itemNew.hItem, first_);
      EXPECT_EQ(note.itemNew.lParam, 11);
      return 1;
    };
    act();
    EXPECT_EQ(dialog_.Take(), (Notes{{TVN_SELCHANGINGW, kControl}}));
    EXPECT_EQ(tree_->GetSelectedItem(), root_);
    EXPECT_EQ(widget_.currentItem()->text(0), QStringLiteral("Root"));
    EXPECT_EQ(widget_.selectedItems(), QList<QTreeWidgetItem*>{widget_.currentItem()});

    dialog_.onTree = {};
    act();
    EXPECT_EQ(dialog_.Take(), kMoved);
    EXPECT_EQ(tree_->GetSelectedItem(), first_);
    EXPECT_EQ(widget_.selectedItems(), QList<QTreeWidgetItem*>{widget_.currentItem()});
    tree_->SelectItem(root_);
    dialog_.Take();
  }
}

TEST_F(TreeTest, EmptiesInsideANotification) {
  dialog_.onTree = [&](NMTREEVIEW& note) -> LRESULT {
    if (note.hdr.code == TVN_SELCHANGINGW) tree_->DeleteAllItems();
    return 0;
  };
  ClickOn(second_);
  EXPECT_EQ(dialog_.Take(), (Notes{{TVN_SELCHANGINGW, kControl}}));
  EXPECT_EQ(tree_->GetRootItem(), nullptr);
  EXPECT_EQ(tree_->GetSelectedItem(), nullptr);
  EXPECT_EQ(tree_->GetItemData(second_), 0U) << "a handle that outlived its row";
  EXPECT_FALSE(tree_->SelectItem(first_));
  EXPECT_EQ(tree_->InsertItem(L"x", 0, 0, root_, TVI_LAST), nullptr);
  const HTREEITEM again = tree_->InsertItem(L"Again", 0, 0, TVI_ROOT, TVI_LAST);
  EXPECT_NE(again, root_);
  EXPECT_EQ(tree_->GetSelectedItem(), nullptr);
  EXPECT_EQ(dialog_.Take(), Notes{});
}

TEST_F(TreeTest, RemovesChildrenWithoutAsking) {
  tree_->SelectItem(second_);
  dialog_.Take();
  tree_->SendMessage(TVM_EXPAND, TVE_COLLAPSE | TVE_COLLAPSERESET, reinterpret_cast<LPARAM>(root_));
  EXPECT_EQ(dialog_.Take(), (Notes{{TVN_SELCHANGEDW, kControl}}));
  EXPECT_EQ(tree_->GetSelectedItem(), root_);
  EXPECT_EQ(tree_->GetChildItem(root_), nullptr);
  EXPECT_EQ(tree_->GetItemText(second_), L"");
}

TEST_F(TreeTest, ExpandsWithTheParentsLeave) {
  const auto expanded = [this] { return widget_.topLevelItem(0)->isExpanded(); };
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"key", [&] { QTest::keyClick(&widget_, expanded() ? Qt::Key_Left : Qt::Key_Right); }},
      {"double click",
       [this] { QTest::mouseDClick(widget_.viewport(), Qt::LeftButton, {}, Middle(root_)); }},
      {"expander",
       [this] {
         const QRect row = widget_.visualItemRect(widget_.topLevelItem(0));
         QTest::mouseClick(widget_.viewport(), Qt::LeftButton, {},
                           QPoint(row.left() - widget_.indentation() / 2, row.center().y()));
       }},
  };
  for (const auto& [name, act] : ways) {
    SCOPED_TRACE(name);
    for (const bool from : {true, false}) {
      dialog_.onTree = [](NMTREEVIEW&) -> LRESULT { return 1; };
      act();
      EXPECT_EQ(expanded(), from);
      dialog_.onTree = {};
      act();
      EXPECT_EQ(expanded(), !from);
      EXPECT_EQ(dialog_.Take(), Notes(2, {TVN_ITEMEXPANDINGW, kControl}));
    }
  }
}

TEST_F(TreeTest, KeepsItsRowHeightAndOrder) {
  EXPECT_EQ(tree_->GetItemHeight(), 23);
  EXPECT_EQ(widget_.visualItemRect(widget_.topLevelItem(0)).height(), 23);
  const HTREEITEM between = tree_->InsertItem(L"Between", 0, 0, root_, first_);
  EXPECT_EQ(tree_->GetNextSiblingItem(first_), between);
  EXPECT_EQ(tree_->GetNextSiblingItem(between), second_);
  EXPECT_EQ(tree_->GetNextSiblingItem(second_), nullptr);
}

}  // namespace
