// Folders as one text.

#include <gtest/gtest.h>

#include "hollerin/sample_values.h"
#include "quimbly/location_text.h"
#include "quimbly/quimbly.h"

namespace {

using INTERNAL_IFC::Location;
using Locations = std::vector<Location>;

struct Row {
  const wchar_t* text;
  Locations locations;
  const wchar_t* formatted;  ///< With marks; null for the text itself.
};

const Row kRows[] = {
    {L"", {}, nullptr},
    {L" ;; ; ", {}, L""},
    {L"/a", {{L"/a"}}, nullptr},
    {L"/a;C:\\b", {{L"/a"}, {L"C:\\b"}}, nullptr},
    {L"/a ; /b c\t;", {{L"/a"}, {L"/b c"}}, L"/a;/b c"},
    {L"\"/a;b\";/c", {{L"/a;b"}, {L"/c"}}, nullptr},
    {L"\"/a\"-;/b", {{L"/a", false}, {L"/b"}}, nullptr},
    {L"\"/a\"+ ; \"/b\" ;\"/c\"-", {{L"/a"}, {L"/b"}, {L"/c", false}}, L"/a;/b;\"/c\"-"},
    {L"/a-;/b+", {{L"/a-"}, {L"/b+"}}, nullptr},
    {L"/say \"x\"", {{L"/say \"x\""}}, nullptr},
    {L"\"\"\"x\"\" y\"", {{L"\"x\" y"}}, nullptr},
    {L"\" /a \"", {{L" /a "}}, nullptr},
    {L"\"\"; /a", {{L"/a"}}, L"/a"},
    // Two names as a picker joins them, which doubles no quotes.
    {L"\"/a\"b;c\";/d", {{L"/a\"b;c"}, {L"/d"}}, L"\"/a\"\"b;c\";/d"},
    // A quote that is never closed.
    {L"\"/a;/b", {{L"\"/a"}, {L"/b"}}, L"\"\"\"/a\";/b"},
    {L"/a;\"/b;\"/c;\"", {{L"/a"}, {L"/b;\"/c;"}}, L"/a;\"/b;\"\"/c;\""},
};

TEST(LocationText, IsReadAndWrittenBack) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(row.text)));
    EXPECT_EQ(ParseLocations(row.text, true), row.locations);
    EXPECT_EQ(FormatLocations(row.locations, true, true),
              row.formatted != nullptr ? row.formatted : row.text);
  }
}

TEST(LocationText, KeepsEveryNameAndMark) {
  Locations locations;
  for (const std::wstring& name : NastyTexts()) {
    for (const bool subfolders : {true, false}) {
      if (!name.empty()) locations.push_back({name, subfolders});
    }
    for (const wchar_t* around : {L";", L"\"", L"\";\"", L" - ", L"\"-;\"+"}) {
      locations.push_back({around + name + around, false});
      locations.push_back({name + around, true});
    }
  }
  for (const bool usual : {true, false}) {
    const std::wstring text = FormatLocations(locations, usual, true);
    EXPECT_EQ(ParseLocations(text, usual), locations);
    Locations unmarked = locations;
    for (Location& location : unmarked) location.subfolders = usual;
    EXPECT_EQ(ParseLocations(FormatLocations(locations, usual, false), usual), unmarked);
  }
}

TEST(LocationList, HoldsWhatItsTextSays) {
  std::shared_ptr<INTERNAL_IFC::ILocationList> list;
  for (const bool without : {false, true}) {
    ASSERT_EQ(TOLLIVER::CreateLocationList(&list, without), S_OK);
    list->Add({L"/gone", true});
    list->ParseText(L"/a;\"/b\"-;\"/c\"+");
    list->Add({L"", false});
    list->Add({L"/d", !without});
    ASSERT_EQ(list->GetCount(), 4);
    Location location;
    EXPECT_TRUE(list->GetAt(0, location));
    EXPECT_EQ(location, (Location{L"/a", !without}));
    EXPECT_TRUE(list->GetAt(1, location));
    EXPECT_EQ(location, (Location{L"/b", false}));
    for (const int outside : {-1, 4}) EXPECT_FALSE(list->GetAt(outside, location));
    EXPECT_EQ(list->FormatText(true), without ? L"/a;/b;\"/c\"+;/d" : L"/a;\"/b\"-;/c;/d");
    EXPECT_EQ(list->FormatText(false), L"/a;/b;/c;/d");
    list->Clear();
    EXPECT_EQ(list->FormatText(true), L"");
  }
  EXPECT_EQ(TOLLIVER::CreateLocationList(nullptr, false), E_INVALIDARG);
}

}  // namespace
