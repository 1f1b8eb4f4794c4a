#include "hollerin/store_text.h"

#include <gtest/gtest.h>

#include "hollerin/sample_values.h"

namespace {

using namespace HOLLERIN;

template <class Text>
class StoreText : public testing::Test {
 public:
  static Text Format(const Values& values) {
    Text text;
    FormatStoreText(values, text);
    return text;
  }
};
using Texts = testing::Types<std::string, std::wstring>;
TYPED_TEST_SUITE(StoreText, Texts);

TYPED_TEST(StoreText, RestoresEverything) {
  for (const Values& values : {Values{}, SmallValues(), NastyValues()}) {
    const std::optional<Values> back = ParseStoreText(this->Format(values));
    ASSERT_TRUE(back);
    EXPECT_EQ(*back, values);
  }
}

TYPED_TEST(StoreText, FindsEveryCutChangeAndAddition) {
  const TypeParam text = this->Format(SmallValues());
  for (std::size_t i = 0; i < text.size(); ++i) {
    EXPECT_FALSE(ParseStoreText(text.substr(0, i))) << "cut at " << i;
    for (int bit = 0; bit < 7; ++bit) {
      TypeParam changed = text;
      changed[i] = static_cast<typename TypeParam::value_type>(changed[i] ^ 1 << bit);
      EXPECT_FALSE(ParseStoreText(changed)) << "bit " << bit << " of " << i;
    }
    TypeParam longer = text;
    longer.insert(i, 1, longer[i]);
    EXPECT_FALSE(ParseStoreText(longer)) << "doubled at " << i;
  }
}

/// The text with a right checksum behind it, as a forger would make it.
std::string Seal(const std::string& text) {
  std::uint64_t sum = 0xCBF29CE484222325U;
  for (const char c : text) sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  char digits[17];
  std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(sum));
  return text + digits;
}

TEST(StoreTextForgery, MalformedTextsWithARightChecksumAreRefused) {
  ASSERT_TRUE(
      ParseStoreText(Seal("HOLLERIN1S1:ab1:b1i1:c-5;s1:d2:\xC3\xA4"
                          "E")))
      << "the pattern of this table is wrong";
  const char* const malformed[] = {
      "HOLLERIN2E",
      "HOLLERIN1",
      "HOLLERIN1b1:a1E",                          // no section
      "HOLLERIN1S1:aE",                           // empty section
      "HOLLERIN1S1:aS1:bb1:c1E",                  // empty section in between
      "HOLLERIN1S1:ab1:b1b1:b0E",                 // key twice
      "HOLLERIN1S1:ab1:b1S1:ab1:c0E",             // section twice
      "HOLLERIN1S1:ab1:b2E",                      // no boolean
      "HOLLERIN1S1:ab1:bE",                       // value missing
      "HOLLERIN1S1:ai1:b2147483648;E",            // too great
      "HOLLERIN1S1:ai1:b99999999999999999999;E",  // far too great
      "HOLLERIN1S1:ai1:b-;E",                     // no digits
      "HOLLERIN1S1:as1:b99:xE",                   // longer than the text
      "HOLLERIN1S1:as1:b-1:xE",                   // negative length
      "HOLLERIN1S1:as1:b1:\xFF"
      "E",  // no character form
      "HOLLERIN1S1:as1:b2:\xC0\x80"
      "E",  // overlong
      "HOLLERIN1S1:as1:b1:\xC3"
      "E",                     // cut inside a character
      "HOLLERIN1S1:ax1:b1E",   // unknown type
      "HOLLERIN1S1:ab1:b1EE",  // something behind the end
  };
  for (const char* text : malformed) EXPECT_FALSE(ParseStoreText(Seal(text))) << text;
}

TEST(Store, ADamagedTextChangesNothing) {
  const auto store = CreateStore();
  store->WriteInt(L"s", L"k", 1);
  std::wstring wide;
  std::string narrow;
  store->SaveToText(wide);
  store->SaveToNarrowText(narrow);
  store->WriteInt(L"s", L"k", 2);
  store->WriteInt(L"s", L"new", 3);
  const Values now = store->GetValues();
  store->LoadFromText(wide + L"x");
  store->LoadFromNarrowText(narrow.substr(1));
  EXPECT_EQ(store->GetValues(), now);
  store->LoadFromText(wide);
  EXPECT_EQ(store->GetValues(), (Values{{L"s", {{L"k", std::int32_t{1}}}}}));
}

}  // namespace
