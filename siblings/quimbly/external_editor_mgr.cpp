// The external editors, and the default among them.

#include "ifc/external_editor_mgr.h"

#include <algorithm>

#include "platform/machine.h"
#include "quimbly/found_editors.h"
#include "quimbly/quimbly.h"

namespace TOLLIVER {
namespace {

using INTERNAL_IFC::IExternalEditor;
using StoreHandle = std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>;
using EditorHandle = std::shared_ptr<IExternalEditor>;

// Where the default is remembered.
constexpr const wchar_t* kSection = L"Editor";
constexpr const wchar_t* kDefault = L"DefaultExternal";

class CExternalEditor final : public IExternalEditor {
 public:
  explicit CExternalEditor(FoundEditor editor) : editor_(std::move(editor)) {}
  std::wstring GetName() override { return editor_.name; }
  const std::wstring& Id() const { return editor_.id; }

 private:
  FoundEditor editor_;
};

class CExternalEditorMgr final : public INTERNAL_IFC::IExternalEditorMgr {
 public:
  explicit CExternalEditorMgr(StoreHandle store) : store_(std::move(store)) {
    if (const auto dictated = GetMachine().Editors()) {
      for (const EditorFact& fact : *dictated) {
        Add({fact.name, fact.name});
        if (fact.isDefault) usual_ = editors_.back();
      }
    } else {
      for (FoundEditor& editor : FindEditors()) Add(std::move(editor));
    }
  }

  bool HasEditors() override { return !editors_.empty(); }

  HRESULT GetEditors(std::vector<EditorHandle>& editors, EditorHandle& current) override {
    if (GetMachine().Fails(L"GetEditors")) return E_FAIL;
    editors.assign(editors_.begin(), editors_.end());
    current = Current();
    return S_OK;
  }

  /// Writes a change alone, so that the store does not keep what the machine says anyway.
  void SetDefaultEditor(IExternalEditor* editor) override {
    const auto found = std::find_if(editors_.begin(), editors_.end(),
                                    [editor](const auto& known) { return known.get() == editor; });
    if (found == editors_.end() || store_ == nullptr || *found == Current()) return;
    store_->WriteString(kSection, kDefault, (*found)->Id());
  }

 private:
  using Editor = std::shared_ptr<CExternalEditor>;

  void Add(FoundEditor editor) {
    editors_.push_back(std::make_shared<CExternalEditor>(std::move(editor)));
  }

  /// The editor remembered, while it is there still; else that of the machine.
  Editor Current() const {
    if (store_ == nullptr) return usual_;
    const std::wstring id = store_->ReadString(kSection, kDefault, {});
    const auto found = std::find_if(editors_.begin(), editors_.end(),
                                    [&id](const Editor& editor) { return editor->Id() == id; });
    return found != editors_.end() ? *found : usual_;
  }

  StoreHandle store_;
  std::vector<Editor> editors_;
  Editor usual_;  ///< The machine's own default; may be empty.
};

}  // namespace

HRESULT CreateExternalEditorMgr(const StoreHandle& store,
                                std::shared_ptr<INTERNAL_IFC::IExternalEditorMgr>* manager) {
  if (manager == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(L"CreateExternalEditorMgr")) return E_FAIL;
  *manager = std::make_shared<CExternalEditorMgr>(store);
  return S_OK;
}

}  // namespace TOLLIVER
