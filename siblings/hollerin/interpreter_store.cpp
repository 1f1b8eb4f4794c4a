#include "hollerin/interpreter_store.h"

#include "hollerin/application_state.h"
#include "hollerin/document_filters.h"
#include "hollerin/export.h"
#include "hollerin/filter_interpreters.h"
#include "hollerin/hollerin.h"
#include "hollerin/interpreter_list.h"
#include "hollerin/interpreter_text.h"
#include "hollerin/shipped_interpreters.h"
#include "hollerin/store.h"

namespace HOLLERIN {
namespace {

using INTERNAL_IFC::IConfigDataMgr;

constexpr const wchar_t* kSection = L"Interpreters";
constexpr const wchar_t* kList = L"List";
constexpr const wchar_t* kDamaged = L"Damaged";

void LogLine(const std::wstring& text) {
  const auto& log = GetApplicationState().application.log;
  if (log != nullptr) log->LogLine(text);
}

std::wstring StoredText(IConfigDataMgr& store) { return store.ReadString(kSection, kList, L""); }

// A list may be long: a store of this library shows its text and takes a new one, where any other
// store copies both.

/// Whether the store holds a list of which `isSo` is true.
template <class Predicate>
bool StoredTextIs(IConfigDataMgr& store, Predicate isSo) {
  const auto* const own = dynamic_cast<const ConfigStore*>(&store);
  const std::wstring* const text = own != nullptr ? own->FindText(kSection, kList) : nullptr;
  return text != nullptr ? isSo(*text) : isSo(StoredText(store));
}

/// Makes `text` the stored one.
void StoreText(IConfigDataMgr& store, std::wstring text) {
  if (auto* const own = dynamic_cast<ConfigStore*>(&store)) {
    own->Write(kSection, kList, std::move(text));
  } else {
    store.WriteString(kSection, kList, text);
  }
}

/// A text that was put aside before is not put aside again.
void PutAside(IConfigDataMgr& store, const std::wstring& text) {
  for (int number = 1;; ++number) {
    const std::wstring key = kDamaged + std::to_wstring(number);
    const std::wstring there = store.ReadString(kSection, key, L"");
    if (there == text) return;
    if (!there.empty()) continue;
    store.WriteString(kSection, key, text);
    LogLine(L"The damaged list of interpreters was put aside as \"" + key +
            L"\" in the section \"" + kSection + L"\".");
    return;
  }
}

std::wstring DefaultText() {
  const std::vector<InterpreterEntry> entries = DefaultInterpreters();
  return FormatInterpreters(ToViews(entries));
}

/// As WriteInterpreters.
void ReplaceList(IConfigDataMgr& store, std::wstring text) {
  const auto says = [&text](const std::wstring& before) {
    return before == text || (before.empty() && text == DefaultText());
  };
  if (StoredTextIs(store, says)) return;
  const auto isDamaged = [](const std::wstring& before) {
    return !before.empty() && !VisitInterpreters(before, [](const InterpreterView&) {});
  };
  if (StoredTextIs(store, isDamaged)) PutAside(store, StoredText(store));
  StoreText(store, std::move(text));
}

}  // namespace

std::vector<InterpreterEntry> DefaultInterpreters() {
  std::vector<InterpreterEntry> entries = ShippedInterpreters();
  for (const InterpreterEntry& entry : FilterInterpreters(FindDocumentFilters())) {
    entries.push_back(entry);
  }
  return entries;
}

bool HoldsInterpreters(IConfigDataMgr& store) {
  return StoredTextIs(store, [](const std::wstring& text) { return !text.empty(); });
}

std::vector<InterpreterEntry> ReadInterpreters(IConfigDataMgr& store) {
  const std::wstring text = StoredText(store);
  if (text.empty()) return DefaultInterpreters();
  const std::optional<std::vector<InterpreterView>> views = ParseInterpreters(text);
  if (!views) {
    LogLine(
        L"The stored list of interpreters is damaged. The default list is used; the damaged one "
        L"stays where it is until a list is saved, and is put aside then.");
    return DefaultInterpreters();
  }
  std::vector<InterpreterEntry> entries = ToEntries(*views);
  for (const std::wstring& change : MakeKeysUnique(entries)) LogLine(change);
  return entries;
}

void WriteInterpreters(IConfigDataMgr& store, const std::vector<InterpreterEntry>& entries) {
  ReplaceList(store, FormatInterpreters(ToViews(entries)));
}

HRESULT LoadCurrentConfigInterpreterList(const StoreHandle& store, InterpreterListHandle* list) {
  return Export(L"LoadCurrentConfigInterpreterList", list,
                [&store]() -> std::optional<InterpreterListHandle> {
                  if (store == nullptr) return std::nullopt;
                  if (auto whole = ParseInterpreterList(StoredText(*store))) return whole;
                  return MakeInterpreterList(ReadInterpreters(*store));
                });
}

HRESULT SaveConfigInterpreterList(const StoreHandle& store, const InterpreterListHandle& list,
                                  bool replace) {
  if (GetMachine().Fails(L"SaveConfigInterpreterList")) return E_FAIL;
  if (store == nullptr || list == nullptr) return E_FAIL;
  if (!replace && HoldsInterpreters(*store)) return S_FALSE;
  std::optional<std::wstring> text = ListText(*list);
  if (!text) return E_FAIL;
  ReplaceList(*store, std::move(*text));
  return S_OK;
}

}  // namespace HOLLERIN
