#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cerrno>
#include <cstring>
#include <functional>

#include "platform/menu.h"
#include "platform/message_box.h"
#include "platform/messages.h"
#include "platform/qt/peer.h"

namespace {

/// Runs `action` on the message box that is opened next, as soon as it is shown.
void OnNextBox(const std::function<void(QMessageBox&)>& action) {
  QTimer::singleShot(0, [action] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return OnNextBox(action);
    action(*box);
    if (box->isVisible()) ADD_FAILURE() << "the box is still open", box->reject();
  });
}

void PressEscape(QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }
void PressEnter(QMessageBox& box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); }
void Close(QMessageBox& box) { box.close(); }

TEST(MessageBox, AnswersWithTheNumberOfItsButton) {
  const struct {
    UINT style;
    std::vector<QMessageBox::StandardButton> buttons;
    std::vector<int> results;
    int enter, escape;
  } rows[] = {
      {MB_OK, {QMessageBox::Ok}, {IDOK}, IDOK, IDOK},
      {MB_OKCANCEL, {QMessageBox::Ok, QMessageBox::Cancel}, {IDOK, IDCANCEL}, IDOK, IDCANCEL},
      {MB_YESNO, {QMessageBox::Yes, QMessageBox::No}, {IDYES, IDNO}, IDYES, IDNO},
      {MB_YESNOCANCEL,
       {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel},
       {IDYES, IDNO, IDCANCEL},
       IDYES,
       IDCANCEL},
      {MB_RETRYCANCEL,
       {QMessageBox::Retry, QMessageBox::Cancel},
       {IDRETRY, IDCANCEL},
       IDRETRY,
       IDCANCEL},
      {MB_ABORTRETRYIGNORE,
       {QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore},
       {IDABORT, IDRETRY, IDIGNORE},
       IDABORT,
       IDABORT},
      {0x0F, {QMessageBox::Ok}, {IDOK}, IDOK, IDOK},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.style);
    const auto answer = [&row](auto action) {
      OnNextBox(action);
      return MessageBoxW(nullptr, L"text", L"caption", row.style | MB_TASKMODAL);
    };
    for (std::size_t i = 0; i < row.buttons.size(); ++i) {
      EXPECT_EQ(answer([&](QMessageBox& box) {
                  EXPECT_EQ(static_cast<std::size_t>(box.buttons().size()), row.buttons.size());
                  QTest::mouseClick(box.button(row.buttons[i]), Qt::LeftButton);
                }),
                row.results[i]);
    }
    EXPECT_EQ(answer(PressEnter), row.enter);
    EXPECT_EQ(answer(PressEscape), row.escape);
    EXPECT_EQ(answer(Close), row.escape);
    EXPECT_EQ(answer([](QMessageBox& box) { box.reject(); }), row.escape);
  }
}

TEST(MessageBox, ShowsItsTextPlainlyAndSelectably) {
  const struct {
    UINT style;
    QMessageBox::Icon icon;
  } rows[] = {{0, QMessageBox::NoIcon},
              {MB_ICONERROR, QMessageBox::Critical},
              {MB_ICONQUESTION, QMessageBox::Question},
              {MB_ICONEXCLAMATION, QMessageBox::Warning},
              {MB_ICONINFORMATION, QMessageBox::Information}};
  for (const auto& row : rows) {
    OnNextBox([&row](QMessageBox& box) {
      EXPECT_EQ(box.icon(), row.icon);
      EXPECT_EQ(box.windowTitle(), "Caption");
      EXPECT_EQ(box.text(), "<b>first</b>\nsecond");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_TRUE(box.textInteractionFlags() & Qt::TextSelectableByMouse);
      EXPECT_TRUE(box.textInteractionFlags() & Qt::TextSelectableByKeyboard);
      PressEscape(box);
    });
    MessageBoxW(nullptr, L"<b>first</b>\r\nsecond", L"Caption", row.style);
  }
}

TEST(MessageBox, FitsTheSmallestScreenWhateverItsText) {
  const std::wstring lines = [] {
    std::wstring text;
    while (text.size() < 2005) text += L"x\r\n";
    return text;
  }();
  const std::wstring prose = [] {
    std::wstring text;
    while (text.size() < 2005) text += L"some words ";
    return text;
  }();
  const struct {
    const char* what;
    std::wstring text, heading;
  } rows[] = {{"short", L"short", L""},
              {"heading", L"short", L"A heading"},
              {"prose", prose, L""},
              {"prose and heading", prose, L"A heading"},
              {"many lines", lines, L"A heading"},
              {"one word", std::wstring(2005, L'W'), L""}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    OnNextBox([&row](QMessageBox& box) {
      EXPECT_LE(box.frameGeometry().width(), 1280);
      EXPECT_LE(box.frameGeometry().height(), 720);
      EXPECT_EQ(box.text(), ToQt(row.text));
      // The whole text is shown: by a label that is large enough, or by a field that scrolls.
      const auto* label = box.findChild<QLabel*>("qt_msgbox_label");
      const auto* field = box.findChild<QPlainTextEdit*>();
      if (field != nullptr) {
        EXPECT_TRUE(field->isVisible());
        EXPECT_EQ(field->toPlainText(), ToQt(row.text));
        EXPECT_TRUE(field->isReadOnly());
        EXPECT_TRUE(box.rect().contains(QRect(field->mapTo(&box, QPoint()), field->size())));
      } else {
        EXPECT_TRUE(label->isVisible());
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
        EXPECT_TRUE(box.rect().contains(QRect(label->mapTo(&box, QPoint()), label->size())));
      }
      bool heading = false;
      for (const auto* other : box.findChildren<QLabel*>()) {
        if (other == label || other->text().isEmpty() || !other->isVisible()) continue;
        EXPECT_EQ(other->text(), ToQt(row.heading));
        heading = true;
      }
      EXPECT_EQ(heading, !row.heading.empty());
      PressEscape(box);
    });
    BCGP_MSGBOXPARAMS parameters;
    parameters.lpszText = row.text;
    parameters.lpszCaption = L"Caption";
    parameters.lpszTitle = row.heading;
    parameters.dwStyle = MB_ICONEXCLAMATION;
    EXPECT_EQ(BCGPMessageBoxIndirect(parameters), IDOK);
  }
}

TEST(MessageBox, SurvivesTheEndOfItsParent) {
  auto* parent = new QDialog;
  parent->setModal(true);
  parent->show();
  QTimer::singleShot(0, parent, [parent] { delete parent; });
  EXPECT_EQ(MessageBoxW(nullptr, L"text", L"caption", MB_YESNO), IDNO);
}

TEST(MessageBox, GivesTheFocusBack) {
  QDialog dialog;
  QLineEdit edit(&dialog);
  dialog.show();
  dialog.activateWindow();
  edit.setFocus();
  QApplication::processEvents();
  ASSERT_TRUE(edit.hasFocus());
  OnNextBox(PressEscape);
  EXPECT_EQ(MessageBoxW(nullptr, L"text", L"caption", MB_YESNO), IDNO);
  EXPECT_TRUE(edit.hasFocus());
}

HGLOBAL MemoryWith(const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, bytes);
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  return memory;
}

TEST(Clipboard, TakesATextWhileItIsOpen) {
  QApplication::clipboard()->setText("before");
  HGLOBAL memory = MemoryWith(L"a\nb \U0001F50D");
  EXPECT_FALSE(EmptyClipboard()) << "it is not open";
  EXPECT_FALSE(SetClipboardData(CF_UNICODETEXT, memory));
  EXPECT_FALSE(CloseClipboard());
  EXPECT_EQ(QApplication::clipboard()->text(), "before");

  EXPECT_TRUE(OpenClipboard(nullptr));
  EXPECT_FALSE(OpenClipboard(nullptr)) << "someone holds it";
  EXPECT_EQ(GetLastError(), static_cast<DWORD>(EBUSY));
  EXPECT_TRUE(EmptyClipboard());
  EXPECT_EQ(QApplication::clipboard()->text(), "");
  EXPECT_FALSE(SetClipboardData(1, memory)) << "another format";
  EXPECT_TRUE(SetClipboardData(CF_UNICODETEXT, memory));
  EXPECT_FALSE(SetClipboardData(CF_UNICODETEXT, memory)) << "it was given away";
  EXPECT_TRUE(CloseClipboard());
  EXPECT_EQ(FromQt(QApplication::clipboard()->text()), L"a\nb \U0001F50D");
  EXPECT_FALSE(OpenClipboard(reinterpret_cast<HWND>(std::uintptr_t{0x7FFFFFF0})))
      << "a stale owner";
}

TEST(Clipboard, MemoryBlocksAreGuarded) {
  const HGLOBAL memory = GlobalAlloc(GMEM_ZEROINIT, 3);
  auto* bytes = static_cast<char*>(GlobalLock(memory));
  ASSERT_NE(bytes, nullptr);
  EXPECT_EQ(std::string(bytes, 3), std::string(3, '\0'));
  EXPECT_EQ(GlobalLock(memory), bytes);
  EXPECT_TRUE(GlobalUnlock(memory)) << "locked once more";
  EXPECT_FALSE(GlobalUnlock(memory));
  GlobalFree(memory);
  EXPECT_EQ(GlobalLock(memory), nullptr);
  GlobalFree(memory);
  EXPECT_EQ(GlobalAlloc(0, ~std::size_t{0}), nullptr);
  const HGLOBAL unterminated = GlobalAlloc(0, sizeof(wchar_t) + 2);
  std::memcpy(GlobalLock(unterminated), L"x", sizeof(wchar_t));
  ASSERT_TRUE(OpenClipboard(nullptr));
  EXPECT_TRUE(SetClipboardData(CF_UNICODETEXT, unterminated));
  EXPECT_TRUE(CloseClipboard());
  EXPECT_EQ(QApplication::clipboard()->text(), "x");
}

}  // namespace
