#pragma once

// Uses the next file or folder picker as a person does.

#include <QApplication>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QtTest/QTest>
#include <algorithm>
#include <functional>

class PickerDriver : public QObject {
 public:
  using Use = std::function<void(QFileDialog&)>;

  explicit PickerDriver(Use use) : use_(std::move(use)) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* picker = qobject_cast<QFileDialog*>(object);
    // The picker reads its field of names only while that has the focus.
    if (picker != nullptr && picker != used_ && event->type() == QEvent::WindowActivate) {
      used_ = picker;
      ++shown;
      QMetaObject::invokeMethod(
          picker, [this, picker] { use_(*picker); }, Qt::QueuedConnection);
    }
    return false;
  }

  /// Types into the field of names; "\n" confirms.
  static void Type(QFileDialog& picker, const QString& text) {
    auto* field = picker.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QTest::mouseClick(field, Qt::LeftButton);
    field->clear();
    for (const QChar character : text) {
      if (character == '\n') {
        QTest::keyClick(field, Qt::Key_Return);
      } else {
        QTest::keyClick(field, character.toLatin1());
      }
    }
  }

  /// Clicks the folders of those names in the list, all but the first with Ctrl.
  static void ClickInList(QFileDialog& picker, const QStringList& names) {
    auto* list = picker.findChild<QListView*>(QStringLiteral("listView"));
    const auto* model = picker.findChild<QFileSystemModel*>();
    // Folders are read bit by bit beside the program.
    while (!std::all_of(names.begin(), names.end(), [list](const QString& name) {
      return FindInList(*list, name).isValid();
    })) {
      QEventLoop loading;
      connect(model, &QFileSystemModel::directoryLoaded, &loading, &QEventLoop::quit);
      connect(model, &QFileSystemModel::rowsInserted, &loading, &QEventLoop::quit);
      loading.exec();
    }
    Qt::KeyboardModifiers modifiers;
    for (const QString& name : names) {
      QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers,
                        list->visualRect(FindInList(*list, name)).center());
      modifiers = Qt::ControlModifier;
    }
  }

  int shown = 0;

 private:
  static QModelIndex FindInList(const QListView& list, const QString& name) {
    for (int row = 0; row < list.model()->rowCount(list.rootIndex()); ++row) {
      const QModelIndex index = list.model()->index(row, 0, list.rootIndex());
      if (index.data().toString() == name) return index;
    }
    return {};
  }

  Use use_;
  QPointer<QFileDialog> used_;
};
