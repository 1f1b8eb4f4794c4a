// The provider of histories.

#include <gtest/gtest.h>

#include "hollerin/application.h"
#include "platform/dialog_script.h"
#include "quimbly/quimbly.h"
#include "support/fake_machine.h"

namespace {

using Texts = std::vector<std::wstring>;
using Provider = std::shared_ptr<INTERNAL_IFC::ILoadComboReg>;

std::vector<CString> ToItems(const Texts& texts) { return {texts.begin(), texts.end()}; }

class HistoryProviderTest : public testing::Test {
 protected:
  HistoryProviderTest() { EXPECT_EQ(TOLLIVER::CreateLoadComboReg(store, &provider), S_OK); }

  Texts Items(std::int32_t maximum = 10) {
    EXPECT_EQ(provider->SelectList(L"S", maximum), S_OK);
    std::vector<CString> items;
    EXPECT_EQ(provider->GetItems(items), S_OK);
    Texts texts;
    for (const CString& item : items) texts.push_back(item.Str());
    return texts;
  }

  std::shared_ptr<HOLLERIN::Store> store = HOLLERIN::CreateStore();
  Provider provider;
};

TEST_F(HistoryProviderTest, KeepsWhatAHistoryCanHold) {
  const struct {
    std::int32_t maximum;
    Texts given, kept;
  } kCases[] = {
      {3, {L"c", L"b", L"a"}, {L"c", L"b", L"a"}},
      {3, {L"d", L"c", L"b", L"a"}, {L"d", L"c", L"b"}},
      {9, {L"", L"a\r", L"\r", L"b\r", L""}, {L"a", L"b"}},
      {2, {L"a", L"b", L"a\r", L"A", L"b"}, {L"a", L"b"}},
      {3, {L"a", L"b", L"a", L"A"}, {L"a", L"b", L"A"}},
      {3, {L" a", L"a ", L"\u00A0"}, {L" a", L"a ", L"\u00A0"}},
      {0, {L"a"}, {}},
      {5, {}, {}},
  };
  for (const auto& row : kCases) {
    store->WriteString(L"S", L"7", L"left over");
    ASSERT_EQ(provider->SelectList(L"S", row.maximum), S_OK);
    ASSERT_EQ(provider->SetItems(ToItems(row.given)), S_OK);
    EXPECT_EQ(Items(), row.kept);
    EXPECT_EQ(store->GetValues().count(L"S"), row.kept.empty() ? 0U : 1U);
  }
}

TEST_F(HistoryProviderTest, KeepsEachListApart) {
  for (const wchar_t* name : {L"S", L"T"}) {
    provider->SelectList(name, 5);
    provider->SetItems({CString(name)});
  }
  EXPECT_EQ(Items(), Texts{L"S"});
  EXPECT_EQ(store->ReadString(L"T", L"0", L""), L"T");
}

TEST_F(HistoryProviderTest, ReadsWhatADamagedSectionStillHas) {
  store->WriteString(L"S", L"1", L"one\r");
  store->WriteInt(L"S", L"3", -4);
  store->WriteString(L"S", L"5", L"one");
  store->WriteString(L"S", L"999", L"far");
  store->WriteString(L"S", L"x", L"no entry");
  store->WriteString(L"S", L"-1", L"no entry");
  EXPECT_EQ(Items(), (Texts{L"one", L"-4", L"far"}));
  EXPECT_EQ(Items(2), (Texts{L"one", L"-4"}));
  EXPECT_EQ(Items(0), Texts());
}

TEST_F(HistoryProviderTest, RefusesWhatItCannotDo) {
  Provider none;
  EXPECT_EQ(TOLLIVER::CreateLoadComboReg(nullptr, &none), E_INVALIDARG);
  EXPECT_EQ(TOLLIVER::CreateLoadComboReg(store, nullptr), E_INVALIDARG);
  EXPECT_EQ(none, nullptr);
  std::vector<CString> items;
  CComboBox combo;
  EXPECT_EQ(provider->GetItems(items), E_FAIL);
  EXPECT_EQ(provider->SetItems(items), E_FAIL);
  EXPECT_EQ(provider->Exchange(&combo, true), E_FAIL);
  store->WriteString(L"S", L"0", L"a");
  EXPECT_EQ(Items(), Texts{L"a"});
  EXPECT_EQ(provider->Exchange(nullptr, true), E_INVALIDARG);
  EXPECT_EQ(provider->SelectList(L"", 5), E_INVALIDARG);
  EXPECT_EQ(provider->SelectList(L"T", -1), E_INVALIDARG);
  EXPECT_EQ(provider->SetItems({L"b"}), S_OK);
  EXPECT_EQ(Items(), Texts{L"b"});
  ScopedMachine machine;
  const std::pair<const wchar_t*, std::function<HRESULT()>> kOperations[] = {
      {L"CreateLoadComboReg", [&] { return TOLLIVER::CreateLoadComboReg(store, &none); }},
      {L"SelectList", [&] { return provider->SelectList(L"T", 3); }},
      {L"GetItems", [&] { return provider->GetItems(items); }},
      {L"SetItems", [&] { return provider->SetItems({L"c"}); }},
      {L"Exchange", [&] { return provider->Exchange(&combo, false); }}};
  for (const auto& [name, call] : kOperations) {
    machine->fails = name;
    EXPECT_EQ(call(), E_FAIL);
  }
  machine->fails.clear();
  EXPECT_EQ(Items(), Texts{L"b"});
}

TEST_F(HistoryProviderTest, FillsCombosOfEveryKind) {
  for (const DWORD style : {CBS_DROPDOWN | CBS_SORT, CBS_DROPDOWNLIST}) {
    const TestModule module({{500, {{L"ComboBox", L"", 7, kStop | style}}}});
    CDialog dialog(500);
    CComboBox combo;
    ASSERT_TRUE(dialog.Create(500, nullptr));
    ASSERT_TRUE(combo.SubclassDlgItem(7, &dialog));
    const auto state = [&] {
      Texts texts{GetWindowText(combo.m_hWnd)};
      for (int row = 0; row < combo.GetCount(); ++row) {
        CString text;
        combo.GetLBText(row, text);
        texts.push_back(text.Str());
      }
      return texts;
    };
    provider->SelectList(L"S", 5);
    provider->SetItems({});
    combo.AddString(L"old");
    EXPECT_EQ(provider->Exchange(&combo, false), S_OK);
    EXPECT_EQ(state(), Texts{L""});
    provider->SetItems({L"new", L"b", L"old"});
    EXPECT_EQ(provider->Exchange(&combo, false), S_OK);
    EXPECT_EQ(state(), (Texts{L"new", L"new", L"b", L"old"}));
    EXPECT_EQ(combo.GetCurSel(), 0);
    // What is in the combo stays when its list is about to drop, whether the history has it or not.
    combo.SetCurSel(2);
    combo.SetEditSel(1, 2);
    provider->SetItems({L"newer", L"old"});
    EXPECT_EQ(provider->Exchange(&combo, true), S_OK);
    EXPECT_EQ(state(), (Texts{L"old", L"newer", L"old"}));
    EXPECT_EQ(combo.GetCurSel(), 1);
    const bool editable = style != CBS_DROPDOWNLIST;
    EXPECT_EQ(combo.GetEditSel(), editable ? 0x00020001U : static_cast<DWORD>(CB_ERR));
    combo.SetWindowText(L"typed");
    provider->SetItems({L"newer"});
    EXPECT_EQ(provider->Exchange(&combo, true), S_OK);
    EXPECT_EQ(state(), (Texts{editable ? L"typed" : L"", L"newer"}));
    EXPECT_EQ(combo.GetCurSel(), -1);
  }
}

}  // namespace
