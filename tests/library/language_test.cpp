#include "foundation/language.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>

#include "environment.h"
#include "fake_language.h"
#include "foundation/clipboard_text.h"
#include "foundation/exception.h"
#include "foundation/label_table.h"
#include "platform/message_box.h"

namespace {

constexpr LabelRow kLabels[] = {
    {4, 10, nullptr}, {2, 0, L"Fixed"}, {4, 11, nullptr}, {-3, 11, nullptr}};

std::shared_ptr<FakeLanguage> TwoTexts() {
  auto language = std::make_shared<FakeLanguage>();
  language->strings = {{10, L"Ten"}, {11, L"Eleven"}};
  language->placeholders = {{{5536, 9}, L"Nine"}};
  return language;
}

TEST(Language, Texts) {
  const ScopedLanguage scope(TwoTexts());
  EXPECT_EQ(LanguageString(10), L"Ten");
  EXPECT_EQ(LanguageString(12), L"<no text 12>");
  EXPECT_EQ(FindLanguageString(11), CString(L"Eleven"));
  EXPECT_EQ(FindLanguageString(12), std::nullopt);
  EXPECT_EQ(TranslateText(L"{3}"), L"[-1 {3}]");
  EXPECT_EQ(LanguagePlaceholder(5536, 9), L"Nine");
  EXPECT_EQ(LanguagePlaceholder(5536, 10), L"<no text 10>");
}

TEST(Language, NoneLoaded) {
  const ScopedLanguage none(nullptr);
  EXPECT_EQ(LanguageString(10), L"<no language>");
  EXPECT_EQ(FindLanguageString(10), std::nullopt);
  EXPECT_EQ(TranslateText(L"{3}"), L"<no language>");
  EXPECT_EQ(LanguagePlaceholder(5536, 9), L"<no language>");
  EXPECT_EQ(LabelOf(kLabels, 4), L"<no language>");
  EXPECT_EQ(LabelOf(kLabels, 2), L"Fixed");
}

TEST(Labels, FirstRowWins) {
  const ScopedLanguage scope(TwoTexts());
  EXPECT_EQ(LabelOf(kLabels, 4), L"Ten");
  EXPECT_EQ(LabelOf(kLabels, 2), L"Fixed");
  EXPECT_EQ(LabelOf(kLabels, 1), L"<invalid>");
  EXPECT_EQ(IdOf(kLabels, L"Eleven"), 4);
  EXPECT_EQ(IdOf(kLabels, L"Fixed"), 2);
  EXPECT_EQ(IdOf(kLabels, L"eleven"), -1);
  EXPECT_EQ(IdOf(kLabels, L""), -1);
}

TEST(Clipboard, TakesWholeTexts) {
  QGuiApplication::clipboard()->setText("before");
  EXPECT_EQ(CopyToClipboard(L"x", 0, nullptr), E_FAIL);
  EXPECT_EQ(CopyTextToClipboard(L"", nullptr), E_FAIL);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
  EXPECT_EQ(CopyToClipboard(L"three words more", 5 * sizeof(wchar_t), nullptr), S_OK);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "three");
  EXPECT_EQ(CopyTextToClipboard(L"gr\u00fc\u00df \U0001F600", nullptr), S_OK);
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdWString(), L"gr\u00fc\u00df \U0001F600");
}

TEST(Clipboard, SomebodyElseHoldsIt) {
  ASSERT_TRUE(OpenClipboard(nullptr));
  try {
    CopyTextToClipboard(L"text", nullptr);
    ADD_FAILURE() << "nothing was raised";
  } catch (const CCP_Exception& exception) {
    EXPECT_EQ(exception.Record().task, L"Opening clipboard");
    EXPECT_EQ(exception.Record().status, E_FAIL);
  }
  EXPECT_TRUE(CloseClipboard());
}

}  // namespace
