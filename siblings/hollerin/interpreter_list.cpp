#include "hollerin/interpreter_list.h"

#include <string_view>
#include <unordered_map>
#include <utility>

#include "platform/machine.h"

namespace HOLLERIN {
namespace {

using INTERNAL_IFC::IConfigInterpreter;
using EntryHandle = std::shared_ptr<IConfigInterpreter>;

class CConfigInterpreter : public IConfigInterpreter {
 public:
  explicit CConfigInterpreter(InterpreterEntry&& entry) : entry_(std::move(entry)) {}

  std::wstring GetName() override { return entry_.name; }
  std::wstring GetKey() override { return entry_.key; }
  std::wstring GetExtensions() override { return entry_.extensions; }
  std::wstring GetInfoText() override { return entry_.info; }
  std::wstring GetType() override { return entry_.type; }
  bool IsEnabled() override { return entry_.enabled; }
  bool GetOptionA() override { return entry_.optionA; }
  bool IsDocumentFormat() override { return entry_.document; }
  bool GetOptionC() override { return entry_.optionC; }
  void SetExtensions(const std::wstring& extensions) override { entry_.extensions = extensions; }
  void SetEnabled(bool enabled) override { entry_.enabled = enabled; }
  void SetOptionA(bool option) override { entry_.optionA = option; }
  void SetDocumentFormat(bool document) override { entry_.document = document; }
  void SetOptionC(bool option) override { entry_.optionC = option; }

  const std::wstring& Key() const { return entry_.key; }

 private:
  InterpreterEntry entry_;
};

class CConfigInterpreterList : public INTERNAL_IFC::IConfigInterpreterList {
 public:
  explicit CConfigInterpreterList(std::vector<InterpreterEntry>&& entries) {
    entries_.reserve(entries.size());
    for (InterpreterEntry& entry : entries) {
      entries_.push_back(std::make_shared<CConfigInterpreter>(std::move(entry)));
    }
  }

  std::int32_t GetCount() override { return static_cast<std::int32_t>(entries_.size()); }

  HRESULT FindByKey(const std::wstring& key, EntryHandle& entry) override {
    entry.reset();
    if (GetMachine().Fails(L"FindByKey")) return E_FAIL;
    if (byKey_.empty()) BuildIndex();
    const auto found = byKey_.find(key);
    if (found != byKey_.end()) entry = entries_[found->second];
    return S_OK;
  }

  HRESULT GetAt(std::int32_t index, EntryHandle& entry) override {
    entry.reset();
    if (GetMachine().Fails(L"GetAt")) return E_FAIL;
    if (index < 0 || index >= GetCount()) return E_INVALIDARG;
    entry = entries_[static_cast<std::size_t>(index)];
    return S_OK;
  }

 private:
  /// Only lists that are searched need one.
  void BuildIndex() {
    byKey_.reserve(entries_.size());
    for (std::size_t i = 0; i < entries_.size(); ++i) byKey_.try_emplace(entries_[i]->Key(), i);
  }

  std::vector<std::shared_ptr<CConfigInterpreter>> entries_;
  std::unordered_map<std::wstring_view, std::size_t> byKey_;  ///< Keys are those of the entries.
};

}  // namespace

std::shared_ptr<INTERNAL_IFC::IConfigInterpreterList> MakeInterpreterList(
    std::vector<InterpreterEntry> entries) {
  return std::make_shared<CConfigInterpreterList>(std::move(entries));
}

HRESULT CollectEntries(INTERNAL_IFC::IConfigInterpreterList& list,
                       std::vector<InterpreterEntry>& entries) {
  const std::int32_t count = list.GetCount();
  entries.clear();
  entries.reserve(count > 0 ? static_cast<std::size_t>(count) : 0);
  for (std::int32_t i = 0; i < count; ++i) {
    EntryHandle entry;
    if (const HRESULT status = list.GetAt(i, entry); FAILED(status)) return status;
    if (entry == nullptr) return E_FAIL;
    entries.push_back({entry->GetName(), entry->GetKey(), entry->GetExtensions(),
                       entry->GetInfoText(), entry->GetType(), entry->IsEnabled(),
                       entry->GetOptionA(), entry->IsDocumentFormat(), entry->GetOptionC()});
  }
  return S_OK;
}

}  // namespace HOLLERIN
