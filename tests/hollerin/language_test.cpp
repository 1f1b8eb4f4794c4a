#include "hollerin/language_mgr.h"

#include <gtest/gtest.h>

#include "hollerin/temporary_folder.h"

namespace {

using namespace HOLLERIN;

constexpr const char* kFile =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<translation lang=\"English\" code=\"en\" version=\"1\"><future n=\"1\"><text n=\"3\">x</text>"
    "</future>\n"
    "<application title=\"App &amp; more\" message=\"Caption\"/>"
    "<strings><text n=\"15\">first</text><text n=\"15\">second</text><text n=\"x\">no</text>"
    "<text n=\"-1\">no</text><text n=\"4294967295\">last</text><text n=\"1.5\">no</text>"
    "<text>no</text><text n=\" 7\">no</text><note n=\"8\">no</note>"
    "<text n=\"9\"> a\xC3\xA4<![CDATA[<b>]]> </text><text n=\"10\"/></strings>"
    "<common><text n=\"5\">common</text></common>"
    "<dialog n=\"5526\" title=\"Title\"><text n=\"1\">&amp;One</text><value n=\"1\">600</value>"
    "</dialog><dialog n=\"5526\" title=\"Late\"><text n=\"1\">late</text><text n=\"2\">Two</text>"
    "</dialog><dialog n=\"7\"/><dialog title=\"none\"/>"
    "<menu n=\"5512\"><text n=\"1\">Menu</text></menu></translation>";

CLanguageMgr Language(const char* bytes = kFile) {
  std::wstring reason;
  std::optional<LanguageTexts> texts = ParseLanguageXml(bytes, reason);
  if (!texts) throw std::runtime_error("the language file did not parse");
  return CLanguageMgr(std::move(*texts));
}

/// The text, or "(null)".
std::wstring Text(const wchar_t* text) { return text == nullptr ? L"(null)" : text; }

TEST(Language, FindsTexts) {
  CLanguageMgr language = Language();
  EXPECT_EQ(language.GetAppTitle(), L"App & more");
  EXPECT_EQ(language.GetMessageCaption(), L"Caption");
  const std::pair<std::uint32_t, const wchar_t*> strings[] = {
      {15, L"first"}, {4294967295, L"last"}, {9, L" a\u00E4<b> "}, {10, L""},      {0, L"(null)"},
      {1, L"(null)"}, {7, L"(null)"},        {8, L"(null)"},       {3, L"(null)"}, {5, L"(null)"}};
  for (const auto& [number, text] : strings) {
    EXPECT_EQ(Text(language.GetString(number)), text) << number;
  }
  EXPECT_EQ(Text(language.GetDialogValue(5526, 1)), L"600");
  EXPECT_EQ(Text(language.GetDialogValue(5526, 2)), L"(null)");
  EXPECT_EQ(Text(language.GetDialogValue(1, 1)), L"(null)");
  EXPECT_EQ(Text(language.GetDialogTitle(5526)), L"Title");
  EXPECT_EQ(Text(language.GetDialogTitle(7)), L"(null)");
  EXPECT_EQ(Text(language.GetMenuText(5512, 1)), L"Menu");
  EXPECT_EQ(Text(language.GetMenuText(5526, 1)), L"(null)");
  EXPECT_EQ(Text(language.GetPlaceholderText(5526, 1, RES::kAnyItem)), L"&One");
  EXPECT_EQ(Text(language.GetPlaceholderText(5512, 1, RES::kAnyItem)), L"(null)");
}

TEST(Language, ReplacesWholePlaceholdersOnly) {
  CLanguageMgr language = Language();
  struct Row {
    std::int32_t dialog;
    const wchar_t* text;
    const wchar_t* expected;
  };
  const Row rows[] = {{5526, L"{1}", L"&One"},
                      {5526, L"{2}", L"Two"},
                      {5526, L"{3}", L"{3}"},
                      {5526, L"{1} ", L"{1} "},
                      {5526, L" {1}", L" {1}"},
                      {5526, L"{-1}", L"{-1}"},
                      {5526, L"{}", L"{}"},
                      {5526, L"{1", L"{1"},
                      {5526, L"{a}", L"{a}"},
                      {5526, L"{1}{2}", L"{1}{2}"},
                      {5526, L"{99999999999}", L"{99999999999}"},
                      {5526, L"", L""},
                      {1, L"{1}", L"{1}"},
                      {-1, L"{5}", L"common"},
                      {-1, L"{1}", L"{1}"}};
  for (const Row& row : rows) {
    EXPECT_EQ(language.TranslateText(row.dialog, row.text, RES::kAnyItem), row.expected)
        << testing::PrintToString(std::wstring(row.text));
  }
}

TEST(Language, RefusesWhatIsNoTranslation) {
  for (const char* bytes :
       {"", "text", "<configuration/>", "<translation>", "<translation/>x",
        "<!DOCTYPE t [<!ENTITY a \"aaaa\">]><translation/>", "<translation>\xFF</translation>"}) {
    std::wstring reason;
    EXPECT_FALSE(ParseLanguageXml(bytes, reason)) << bytes;
    EXPECT_NE(reason, L"") << bytes;
  }
}

TEST(Language, NamesDoNotLeadOutOfTheFolder) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder / "lang");
  Put(folder / "lang-xx.xml", "<translation/>");
  const std::wstring inside = (folder / "lang/").wstring();
  std::wstring reason;
  EXPECT_EQ(LoadLanguage(inside, L"../lang-xx.xml", reason), nullptr);
  EXPECT_NE(reason, L"");
  reason.clear();
  EXPECT_NE(LoadLanguage(folder.Path().wstring() + L"/", L"lang-xx.xml", reason), nullptr);
  EXPECT_EQ(reason, L"");
}

TEST(Language, TheShippedFileIsWhole) {
  std::wstring reason;
  const auto texts = ParseLanguageXml(Contents(SOURCE_FOLDER "/lang/lang-en.xml"), reason);
  ASSERT_TRUE(texts) << testing::PrintToString(reason);
  EXPECT_FALSE(texts->appTitle.empty());
  EXPECT_FALSE(texts->strings.empty());
  EXPECT_FALSE(texts->common.empty());
  EXPECT_FALSE(texts->dialogs.empty());
}

}  // namespace
