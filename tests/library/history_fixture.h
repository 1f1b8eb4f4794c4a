#pragma once

// What the tests of the history dialogs share: a store that writes down what happens to it, and a
// person in front of a modal dialog.

#include <gtest/gtest.h>

#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>

#include "environment.h"
#include "foundation/globals.h"
#include "ifc/brisquel.h"
#include "ifc/clear_history_settings.h"
#include "page_fixture.h"

/// Also writes down clearing and saving.
class HistoryStore : public RecordingStore {
 public:
  HRESULT saveStatus = S_FALSE;

  void Clear() override {
    writes.push_back(L"clear all");
    RecordingStore::Clear();
  }
  void ClearSection(const std::wstring& section) override {
    writes.push_back(L"clear " + section);
    RecordingStore::ClearSection(section);
  }
  HRESULT Save() override {
    writes.push_back(L"save");
    return saveStatus;
  }
};

/// Acts once in the dialog of that template when it is shown. A dialog that is still open
/// afterwards gets Escape.
class Person : public QObject {
 public:
  Person(UINT templateId, std::function<void()> act)
      : name_(QString::number(templateId)), act_(act) {
    qApp->installEventFilter(this);
  }
  ~Person() override { EXPECT_TRUE(acted_) << "no dialog " << name_.toStdString(); }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (acted_ || event->type() != QEvent::Show || object->objectName() != name_) return false;
    acted_ = true;
    QMetaObject::invokeMethod(
        object,
        [this, window = static_cast<QWidget*>(object)] {
          act_();
          // An ended dialog is gone before the next event.
          QTimer::singleShot(0, window, [window] { QTest::keyClick(window, Qt::Key_Escape); });
        },
        Qt::QueuedConnection);
    return false;
  }

 private:
  QString name_;
  std::function<void()> act_;
  bool acted_ = false;
};
