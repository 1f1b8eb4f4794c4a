#include <gtest/gtest.h>

#include <limits>

#include "hollerin/application.h"

namespace {

using HOLLERIN::Value;
constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

std::wstring Text(const wchar_t* text) { return text; }

struct Row {
  Value value;
  int asBool;  ///< -1: the default.
  std::optional<std::int32_t> asInt;
  std::wstring asText;
};

TEST(Conversion, EveryTypeReadsAsEveryOther) {
  const Row rows[] = {
      {true, 1, 1, L"true"},
      {false, 0, 0, L"false"},
      {0, 0, 0, L"0"},
      {1, 1, 1, L"1"},
      {2, -1, 2, L"2"},
      {-1, -1, -1, L"-1"},
      {kMin, -1, kMin, L"-2147483648"},
      {kMax, -1, kMax, L"2147483647"},
      {Text(L"true"), 1, std::nullopt, L"true"},
      {Text(L"false"), 0, std::nullopt, L"false"},
      {Text(L"1"), 1, 1, L"1"},
      {Text(L"0"), 0, 0, L"0"},
      {Text(L"True"), -1, std::nullopt, L"True"},
      {Text(L"2147483647"), -1, kMax, L"2147483647"},
      {Text(L"2147483648"), -1, std::nullopt, L"2147483648"},
      {Text(L"-2147483648"), -1, kMin, L"-2147483648"},
      {Text(L"-2147483649"), -1, std::nullopt, L"-2147483649"},
      {Text(L"99999999999999999999999"), -1, std::nullopt, L"99999999999999999999999"},
      {Text(L"007"), -1, 7, L"007"},
      {Text(L""), -1, std::nullopt, L""},
      {Text(L"-"), -1, std::nullopt, L"-"},
      {Text(L"+1"), -1, std::nullopt, L"+1"},
      {Text(L" 1"), -1, std::nullopt, L" 1"},
      {Text(L"1x"), -1, std::nullopt, L"1x"},
      {Text(L"\x0661"), -1, std::nullopt, L"\x0661"},
  };
  const auto store = HOLLERIN::CreateStore();
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.asText));
    store->Write(L"s", L"k", row.value);
    EXPECT_EQ(store->ReadBool(L"s", L"k", true), row.asBool != 0);
    EXPECT_EQ(store->ReadBool(L"s", L"k", false), row.asBool == 1);
    EXPECT_EQ(store->ReadInt(L"s", L"k", 77), row.asInt.value_or(77));
    EXPECT_EQ(store->ReadString(L"s", L"k", L"default"), row.asText);
  }
}

TEST(Store, MissingValuesReadAsTheDefault) {
  const auto store = HOLLERIN::CreateStore();
  store->WriteInt(L"s", L"k", 5);
  EXPECT_TRUE(store->ReadBool(L"s", L"other", true));
  EXPECT_EQ(store->ReadInt(L"other", L"k", -3), -3);
  EXPECT_EQ(store->ReadString(L"S", L"k", L"d"), L"d") << "names are told apart by case";
}

TEST(Store, KeepsTheTypeOfTheLastWrite) {
  const auto store = HOLLERIN::CreateStore();
  store->WriteString(L"s", L"k", L"1");
  store->WriteBool(L"s", L"k", true);
  EXPECT_EQ(store->GetValues().at(L"s").at(L"k"), Value(true));
  store->WriteInt(L"s", L"k", 1);
  EXPECT_EQ(store->GetValues().at(L"s").at(L"k"), Value(std::int32_t{1}));
}

TEST(Store, RemovesValuesAndSections) {
  const auto store = HOLLERIN::CreateStore();
  store->WriteInt(L"a", L"1", 1);
  store->WriteInt(L"a", L"2", 2);
  store->WriteInt(L"b", L"1", 3);
  EXPECT_FALSE(store->Remove(L"a", L"3"));
  EXPECT_FALSE(store->Remove(L"c", L"1"));
  EXPECT_TRUE(store->Remove(L"b", L"1"));
  EXPECT_EQ(store->GetValues().count(L"b"), 0u) << "an empty section stayed";
  store->ClearSection(L"a");
  EXPECT_TRUE(store->GetValues().empty());
  store->WriteInt(L"a", L"1", 1);
  store->Clear();
  EXPECT_TRUE(store->GetValues().empty());
}

}  // namespace
