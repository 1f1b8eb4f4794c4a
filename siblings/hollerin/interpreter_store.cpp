#include "hollerin/interpreter_store.h"

#include "hollerin/application_state.h"
#include "hollerin/document_filters.h"
#include "hollerin/export.h"
#include "hollerin/filter_interpreters.h"
#include "hollerin/hollerin.h"
#include "hollerin/interpreter_list.h"
#include "hollerin/interpreter_text.h"
#include "hollerin/shipped_interpreters.h"

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

}  // namespace

std::vector<InterpreterEntry> DefaultInterpreters() {
  std::vector<InterpreterEntry> entries = ShippedInterpreters();
  for (InterpreterEntry& entry : FilterInterpreters(FindDocumentFilters())) {
    entries.push_back(std::move(entry));
  }
  return entries;
}

std::vector<InterpreterEntry> ReadInterpreters(IConfigDataMgr& store) {
  const std::wstring text = StoredText(store);
  if (text.empty()) return DefaultInterpreters();
  std::optional<std::vector<InterpreterEntry>> entries = ParseInterpreters(text);
  if (!entries) {
    LogLine(
        L"The stored list of interpreters is damaged. The default list is used; the damaged one "
        L"stays where it is until a list is saved, and is put aside then.");
    return DefaultInterpreters();
  }
  for (const std::wstring& change : MakeKeysUnique(*entries)) LogLine(change);
  return std::move(*entries);
}

bool HoldsInterpreters(IConfigDataMgr& store) { return !StoredText(store).empty(); }

void WriteInterpreters(IConfigDataMgr& store, const std::vector<InterpreterEntry>& entries) {
  const std::wstring text = FormatInterpreters(entries);
  const std::wstring before = StoredText(store);
  if (before == text || (before.empty() && entries == DefaultInterpreters())) return;
  if (!before.empty() && !ParseInterpreters(before)) PutAside(store, before);
  store.WriteString(kSection, kList, text);
}

HRESULT LoadCurrentConfigInterpreterList(const StoreHandle& store, InterpreterListHandle* list) {
  return Export(L"LoadCurrentConfigInterpreterList", list,
                [&store]() -> std::optional<InterpreterListHandle> {
                  if (store == nullptr) return std::nullopt;
                  return MakeInterpreterList(ReadInterpreters(*store));
                });
}

HRESULT SaveConfigInterpreterList(const StoreHandle& store, const InterpreterListHandle& list,
                                  bool replace) {
  if (GetMachine().Fails(L"SaveConfigInterpreterList")) return E_FAIL;
  if (store == nullptr || list == nullptr) return E_FAIL;
  if (!replace && HoldsInterpreters(*store)) return S_FALSE;
  std::vector<InterpreterEntry> entries;
  if (const HRESULT status = CollectEntries(*list, entries); FAILED(status)) return status;
  WriteInterpreters(*store, entries);
  return S_OK;
}

}  // namespace HOLLERIN
