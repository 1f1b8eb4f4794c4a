#pragma once

// What the tests of pages share: a host with a recording store, and the hands of a user.

#include <gtest/gtest.h>

#include <QTest>

#include "core/config_dialog.h"
#include "core/page_host.h"
#include "platform/application.h"
#include "platform/controls.h"
#include "recording_store.h"
#include "resources/resource.h"

/// A host whose stores can be taken away.
class TestProvider : public INTERNAL_IFC::IConfigDataProvider {
 public:
  StoreHandle config;
  StoreHandle master;
  void GetConfig(StoreHandle& store) override { store = config; }
  void GetMasterConfig(StoreHandle& store) override { store = master; }
  void GetHistoryConfig(StoreHandle& store) override { store.reset(); }
  CClearHistorySettings* GetClearHistorySettings() override { return nullptr; }
};

/// The widget of a control, found by its name as other programs find it.
inline QWidget* WidgetOf(UINT templateId, int id) {
  const QString name = QStringLiteral("%1/%2").arg(templateId).arg(id);
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == name && widget->isVisible()) return widget;
  }
  ADD_FAILURE() << "no visible control " << name.toStdString();
  return nullptr;
}

/// Whether the control has the focus of its window, whichever window is active.
inline bool HasFocus(UINT templateId, int id) {
  const QWidget* widget = WidgetOf(templateId, id);
  return widget != nullptr && widget->window()->focusWidget() == widget;
}

class PageTest : public testing::Test {
 protected:
  PageTest() {
    provider.config = store;
    provider.master = store;
    EXPECT_TRUE(host.Create(IDD_MAIN_CONFIGURATION, nullptr));
    host.ShowWindow(SW_SHOW);
  }
  ~PageTest() override {
    host.DestroyWindow();
    ToolkitApplication::ProcessEvents();
  }

  /// Makes the page's window from the store as it is and shows it.
  void Open(CConfigDialog& page) {
    page.CreatePage(&host, &provider, L"no page");
    ASSERT_NE(page.GetSafeHwnd(), nullptr);
    AdoptPage(page);
    page.ShowWindow(SW_SHOW);
  }

  static void Click(CConfigDialog& page, int id) {
    QWidget* widget = WidgetOf(page.GetTemplateId(), id);
    ASSERT_NE(widget, nullptr);
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(6, widget->height() / 2));
    ToolkitApplication::ProcessEvents();
  }
  static std::wstring Text(const CWnd& page, int id) {
    CString text;
    page.GetDlgItemText(id, text);
    return text.Str();
  }
  static bool Checked(const CWnd& page, int id) { return page.IsDlgButtonChecked(id) != 0; }
  static bool Enabled(const CWnd& page, int id) { return page.GetDlgItem(id)->IsWindowEnabled(); }

  std::shared_ptr<RecordingStore> store = std::make_shared<RecordingStore>();
  TestProvider provider;
  CDialog host{IDD_MAIN_CONFIGURATION};
};
