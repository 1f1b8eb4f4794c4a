#pragma once

// Makes a page class a leaf of the page tree.

#include "core/config_dialog.h"
#include "ifc/config_entry.h"

/// T derives from CConfigDialog and is made without arguments. The page is made when it is first
/// asked for and lives as long as the entry, or longer while a host holds it.
template <class T>
class CConfigEntryGeneric : public INTERNAL_IFC::IConfigEntry {
 public:
  CConfigEntryGeneric(CString title, std::int32_t pageId)
      : title_(std::move(title)), pageId_(pageId) {}

  std::shared_ptr<CDialog> GetDialog(CWnd* parent,
                                     INTERNAL_IFC::IConfigDataProvider* provider) override {
    if (page_ == nullptr) {
      // Kept only when its set-up did not raise: a page that was not loaded must never be saved.
      auto page = std::make_shared<T>();
      page->CreatePage(parent, provider, L"Unable to create extension dlg");
      page_ = std::move(page);
    }
    return page_;
  }
  CString GetTitle() override { return title_; }
  std::int32_t GetPageId() override { return pageId_; }
  std::uint32_t GetExtraValue() override { return 0; }
  HRESULT Apply() override { return page_ == nullptr || SavePage(*page_) ? S_OK : E_FAIL; }
  std::int32_t GetImageIndex() override { return -1; }

 private:
  CString title_;
  std::int32_t pageId_;
  std::shared_ptr<T> page_;
};
