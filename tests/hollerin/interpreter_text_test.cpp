#include "hollerin/interpreter_text.h"

#include <gtest/gtest.h>

#include "hollerin/interpreter_samples.h"

namespace {

using namespace HOLLERIN;
using Entries = std::vector<InterpreterEntry>;

InterpreterEntry Named(std::wstring name, std::wstring key) {
  InterpreterEntry entry;
  entry.name = std::move(name);
  entry.key = std::move(key);
  return entry;
}

TEST(InterpreterText, RestoresEverything) {
  InterpreterEntry long64 = Named(L"long", L"a*b");
  for (int i = 0; i < 16384; ++i) long64.extensions += L"ext,";
  const Entries twice = {Named(L"1", L"k"), Named(L"2", L"k"), Named(L"3", L"")};
  for (const Entries& entries : {Entries{}, NastyEntries(), Entries{long64}, twice}) {
    const std::wstring text = FormatInterpreters(ToViews(entries));
    const auto back = ParseInterpreters(text);
    ASSERT_TRUE(back);
    EXPECT_EQ(ToEntries(*back), entries);
  }
}

TEST(InterpreterText, FindsEveryCutChangeAndAddition) {
  const Entries entries = {Named(L"PDF", L"pdf"), Named(L"\u00E4", L"x")};
  const std::wstring text = FormatInterpreters(ToViews(entries));
  for (std::size_t i = 0; i < text.size(); ++i) {
    EXPECT_FALSE(ParseInterpreters(text.substr(0, i))) << "cut at " << i;
    EXPECT_FALSE(ParseInterpreters(text.substr(i + 1))) << "begun behind " << i;
    for (int bit = 0; bit < 31; ++bit) {
      std::wstring changed = text;
      changed[i] = static_cast<wchar_t>(changed[i] ^ 1 << bit);
      EXPECT_FALSE(ParseInterpreters(changed)) << "bit " << bit << " of " << i;
    }
    EXPECT_FALSE(ParseInterpreters(std::wstring(text).insert(i, 1, text[i]))) << "doubled " << i;
  }
  EXPECT_FALSE(ParseInterpreters(text + text));
}

TEST(InterpreterKeys, EveryEntryGetsItsOwnAndOwnersKeepTheirs) {
  const struct {
    std::vector<std::wstring> before, after;
    std::size_t changes;
  } kCases[] = {
      {{L"a", L"b", L"A"}, {L"a", L"b", L"A"}, 0},
      {{L"a", L"a", L"a"}, {L"a", L"a~2", L"a~3"}, 2},
      {{L"a", L"a", L"a~2", L"a~2"}, {L"a", L"a~3", L"a~2", L"a~2~2"}, 2},
      {{L"", L"", L"interpreter~2"}, {L"interpreter~3", L"interpreter~4", L"interpreter~2"}, 2},
      {{L"x*y", L"none"}, {L"x*y", L"none"}, 0},
  };
  for (const auto& row : kCases) {
    Entries entries;
    for (const std::wstring& key : row.before) entries.push_back(Named(L"n", key));
    EXPECT_EQ(MakeKeysUnique(entries).size(), row.changes);
    std::vector<std::wstring> keys;
    for (const InterpreterEntry& entry : entries) keys.push_back(entry.key);
    EXPECT_EQ(keys, row.after);
  }
}

}  // namespace
