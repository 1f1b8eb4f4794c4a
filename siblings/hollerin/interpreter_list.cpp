#include "hollerin/interpreter_list.h"

#include <utility>

#include "hollerin/interpreter_text.h"
#include "hollerin/key_index.h"
#include "platform/machine.h"

namespace HOLLERIN {
namespace {

using INTERNAL_IFC::IConfigInterpreter;
using INTERNAL_IFC::IConfigInterpreterList;
using EntryHandle = std::shared_ptr<IConfigInterpreter>;

/// Its texts belong to the list's text, all but extensions that were replaced.
class CConfigInterpreter : public IConfigInterpreter {
 public:
  explicit CConfigInterpreter(const InterpreterView& entry) : entry_(entry) {}

  std::wstring GetName() override { return std::wstring(entry_.name); }
  std::wstring GetKey() override { return std::wstring(entry_.key); }
  std::wstring GetExtensions() override { return std::wstring(entry_.extensions); }
  std::wstring GetInfoText() override { return std::wstring(entry_.info); }
  std::wstring GetType() override { return std::wstring(entry_.type); }
  bool IsEnabled() override { return entry_.enabled; }
  bool GetOptionA() override { return entry_.optionA; }
  bool IsDocumentFormat() override { return entry_.document; }
  bool GetOptionC() override { return entry_.optionC; }
  void SetExtensions(const std::wstring& extensions) override {
    extensions_ = std::make_unique<const std::wstring>(extensions);
    entry_.extensions = *extensions_;
  }
  void SetEnabled(bool enabled) override { entry_.enabled = enabled; }
  void SetOptionA(bool option) override { entry_.optionA = option; }
  void SetDocumentFormat(bool document) override { entry_.document = document; }
  void SetOptionC(bool option) override { entry_.optionC = option; }

  const InterpreterView& View() const { return entry_; }

 private:
  InterpreterView entry_;
  std::unique_ptr<const std::wstring> extensions_;
};

/// What the entries share; every handle of an entry keeps all of it alive.
struct Content {
  std::wstring text;
  std::vector<CConfigInterpreter> entries;
};

class CConfigInterpreterList : public IConfigInterpreterList {
 public:
  CConfigInterpreterList(std::shared_ptr<Content> content, KeyIndex keys)
      : content_(std::move(content)), keys_(std::move(keys)) {}

  std::int32_t GetCount() override { return static_cast<std::int32_t>(content_->entries.size()); }

  HRESULT FindByKey(const std::wstring& key, EntryHandle& entry) override {
    entry.reset();
    if (GetMachine().Fails(L"FindByKey")) return E_FAIL;
    if (const auto place = keys_.Find(key)) entry = Handle(*place);
    return S_OK;
  }

  HRESULT GetAt(std::int32_t index, EntryHandle& entry) override {
    entry.reset();
    if (GetMachine().Fails(L"GetAt")) return E_FAIL;
    if (index < 0 || index >= GetCount()) return E_INVALIDARG;
    entry = Handle(static_cast<std::size_t>(index));
    return S_OK;
  }

  std::wstring Text() const {
    std::size_t length = 0;
    for (const CConfigInterpreter& entry : content_->entries) {
      length += InterpreterLength(entry.View());
    }
    InterpreterWriter writer(length);
    for (const CConfigInterpreter& entry : content_->entries) writer.Add(entry.View());
    return writer.Finish();
  }

 private:
  EntryHandle Handle(std::size_t place) const { return {content_, &content_->entries[place]}; }

  std::shared_ptr<Content> content_;
  KeyIndex keys_;
};

/// Nothing when an entry has no key of its own.
std::optional<KeyIndex> Index(const std::vector<CConfigInterpreter>& entries) {
  KeyIndex keys(entries.size());
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const std::wstring_view key = entries[i].View().key;
    if (key.empty() || !keys.Add(key, static_cast<std::uint32_t>(i))) return std::nullopt;
  }
  return keys;
}

}  // namespace

std::shared_ptr<IConfigInterpreterList> ParseInterpreterList(std::wstring text) {
  // The views look into the text, which must not move any more.
  const auto content = std::make_shared<Content>();
  content->text = std::move(text);
  std::vector<CConfigInterpreter>& entries = content->entries;
  entries.reserve(UsualCount(content->text.size()));
  const auto add = [&entries](const InterpreterView& view) { entries.emplace_back(view); };
  if (!VisitInterpreters(content->text, add)) return nullptr;
  std::optional<KeyIndex> keys = Index(entries);
  if (!keys) return nullptr;
  return std::make_shared<CConfigInterpreterList>(content, std::move(*keys));
}

std::shared_ptr<IConfigInterpreterList> MakeInterpreterList(std::vector<InterpreterEntry> entries) {
  MakeKeysUnique(entries);
  return ParseInterpreterList(FormatInterpreters(ToViews(entries)));
}

std::optional<std::vector<InterpreterEntry>> ListEntries(IConfigInterpreterList& list) {
  std::vector<InterpreterEntry> entries;
  const std::int32_t count = list.GetCount();
  for (std::int32_t i = 0; i < count; ++i) {
    EntryHandle entry;
    if (FAILED(list.GetAt(i, entry)) || entry == nullptr) return std::nullopt;
    entries.push_back({entry->GetName(), entry->GetKey(), entry->GetExtensions(),
                       entry->GetInfoText(), entry->GetType(), entry->IsEnabled(),
                       entry->GetOptionA(), entry->IsDocumentFormat(), entry->GetOptionC()});
  }
  return entries;
}

std::optional<std::wstring> ListText(IConfigInterpreterList& list) {
  if (const auto* own = dynamic_cast<const CConfigInterpreterList*>(&list)) {
    return own->Text();
  }
  const auto entries = ListEntries(list);
  if (!entries) return std::nullopt;
  return FormatInterpreters(ToViews(*entries));
}

}  // namespace HOLLERIN
