// The pages of the main window, of the language and of colours: what is theirs alone.

#include <QAbstractButton>
#include <set>

#include "environment.h"
#include "foundation/exception.h"
#include "page_fixture.h"
#include "pages/general/colour_page.h"
#include "pages/general/language_header.h"
#include "pages/general/localization_page.h"
#include "pages/general/user_interface_page.h"
#include "support/fake_machine.h"

namespace {

using Lines = std::vector<std::wstring>;
using ColourPage = Geometry::CGeometryDynCreateWnd<CConfigEntryColorDlg>;

class InterfacePages : public PageTest {
 protected:
  static const CComboBox& Combo(const CWnd& page, int id) {
    return dynamic_cast<const CComboBox&>(*page.GetDlgItem(id));
  }
  static CConfigColorButton& Button(const CWnd& page, int id) {
    return dynamic_cast<CConfigColorButton&>(*page.GetDlgItem(id));
  }
};

TEST_F(InterfacePages, ThemesAreOfferedInTheirOrderAndTheOldOneIsTheFirst) {
  for (const auto& [stored, row, saved] :
       {std::tuple{0, 0, 0}, {1, 0, 0}, {2, 1, 2}, {3, 2, 3}, {5, 3, 5}, {4, 4, 4}, {9, -1, -1}}) {
    store->values->WriteInt(L"UserInterface", L"UITheme", stored);
    CConfigEntryUserInterfaceDlg page;
    Open(page);
    EXPECT_EQ(Combo(page, IDC_UI_THEME).GetCount(), 5);
    EXPECT_EQ(Combo(page, IDC_UI_THEME).GetCurSel(), row) << stored;
    EXPECT_TRUE(SavePage(page));
    EXPECT_EQ(store->values->ReadInt(L"UserInterface", L"UITheme", 99), saved);
  }
}

TEST_F(InterfacePages, TaskbarPreviewsFollowTheTabs) {
  for (const bool tabbed : {false, true}) {
    store->values->WriteBool(L"UserInterface", L"UITabbed", tabbed);
    CConfigEntryUserInterfaceDlg page;
    Open(page);
    EXPECT_EQ(Enabled(page, IDC_UI_TASKBAR_PREVIEWS), tabbed);
    Click(page, IDC_UI_TABBED);
    EXPECT_EQ(Enabled(page, IDC_UI_TASKBAR_PREVIEWS), !tabbed);
    Click(page, IDC_UI_TABBED);
    EXPECT_EQ(Enabled(page, IDC_UI_TASKBAR_PREVIEWS), tabbed);
    page.DestroyWindow();
  }
}

TEST_F(InterfacePages, WithoutStoreOnlyPagesOfDefaultsShowThem) {
  provider.config.reset();
  CConfigEntryUserInterfaceDlg interface;
  Open(interface);
  EXPECT_EQ(Combo(interface, IDC_UI_THEME).GetCurSel(), -1);
  CConfigEntryLocalizationDlg language;
  Open(language);
  EXPECT_EQ(Text(language, IDC_LANGUAGE), L"English");
  EXPECT_TRUE(SavePage(language));
  ColourPage colours;
  Open(colours);
  EXPECT_EQ(Button(colours, IDC_TERM_COLOUR_10).GetColor(), 0U);
  EXPECT_TRUE(SavePage(colours));
  EXPECT_TRUE(store->reads.empty());
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(InterfacePages, ChangedTermColoursAreSavedLastAndInOrder) {
  ColourPage page;
  Open(page);
  Button(page, IDC_TERM_COLOUR_10).SetColor(10);
  Button(page, IDC_TERM_COLOUR_1).SetColor(1);
  Button(page, IDC_TERM_COLOUR_2).SetColor(2);
  Button(page, IDC_TERM_COLOUR_2).SetColor(0);
  ASSERT_TRUE(SavePage(page));
  ASSERT_EQ(store->writes.size(), 11U);
  EXPECT_EQ(Lines(store->writes.begin() + 9, store->writes.end()),
            (Lines{L"int SearchTerms/Color0 1", L"int SearchTerms/Color9 10"}));
  store->writes.clear();
  ASSERT_TRUE(SavePage(page));
  EXPECT_EQ(store->writes.size(), 9U) << "saved already";
}

TEST_F(InterfacePages, FailingTermStylesAreRaisedBeforeAnythingIsWritten) {
  ColourPage page;
  Open(page);
  ScopedMachine machine;
  machine->fails = L"GetTermStyle";
  EXPECT_THROW(SavePage(page), CCP_Exception);
  EXPECT_TRUE(store->writes.empty());
  machine->fails = L"CreateSearchTermMgr";
  ColourPage other;
  EXPECT_THROW(other.CreatePage(&host, &provider, L""), CCP_Exception);
}

TEST_F(InterfacePages, ControlsOfTheColourPageAreSpokenApart) {
  ColourPage page;
  Open(page);
  std::set<QString> names;
  for (const QWidget* widget :
       WidgetOf(IDD_COLOUR_PAGE, IDC_TEXT_BOLD)->parentWidget()->findChildren<QAbstractButton*>()) {
    EXPECT_TRUE(names.insert(widget->accessibleName()).second)
        << widget->accessibleName().toStdString();
  }
  EXPECT_EQ(names.size(), 19U);
  EXPECT_EQ(names.count("Colour of search term 10"), 1U);
  EXPECT_EQ(names.count("Text tab: Bold"), 1U);
}

TEST(LanguageHeader, NamesTheLanguageOfItsRootElement) {
  const std::pair<std::string, std::optional<std::wstring>> cases[] = {
      {R"(<translation lang="English">)", L"English"},
      {"\xef\xbb\xbf<?xml?>\n<translation\tlang=\"x\"><translation code=\"de\"\n "
       "lang=\"Fran\xc3\xa7"
       "ais\" lang=\"y\">",
       L"Fran\u00e7ais"},
      {R"(<translation lang="a" lang="b">)", L"a"},
      {R"(<translation lang="">)", std::nullopt},
      {R"(<translation lang="" code="en">)", L"\" code="},
      {R"(<translation lang="English)", std::nullopt},
      {R"(<translations lang="English">)", std::nullopt},
      {R"(<mistranslation lang="English">)", std::nullopt},
      {R"(<Translation lang="English">)", std::nullopt},
      {"<translation lang=\"\xff\">", std::nullopt},
      {"<translation lang=\"x\">\xe2\x82", L"x"},  // Cut off by the end of what was read.
      {"<translation lang=\"x\">\xe2", L"x"},
      {"<translation lang=\"x\">\x82", std::nullopt},
      {"<translation lang=\"x\">\xc3\xa7", L"x"},
      {"", std::nullopt},
  };
  for (const auto& [bytes, name] : cases) EXPECT_EQ(LanguageNameIn(bytes), name) << bytes;
}

}  // namespace
