#pragma once

// Which histories the user chose to clear, kept in the configuration.

#include <memory>
#include <utility>

#include "ifc/config_data_mgr.h"

/// Shares the store it was made from. Every flag starts true and then follows the store.
class CClearHistorySettings {
 public:
  CClearHistorySettings() = default;
  explicit CClearHistorySettings(std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store)
      : store_(std::move(store)) {
    if (store_ == nullptr) return;
    for (const Row& row : kRows)
      this->*row.flag = store_->ReadBool(kSection, row.key, this->*row.flag);
  }

  /// Writes the flags into the store; nothing without one.
  void Save() const {
    if (store_ == nullptr) return;
    for (const Row& row : kRows) store_->WriteBool(kSection, row.key, this->*row.flag);
  }

 private:
  std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store_;

 public:
  bool FileName = true;
  bool LookIn = true;
  bool Containing = true;
  bool All = true;

 private:
  struct Row {
    const wchar_t* key;
    bool CClearHistorySettings::*flag;
  };
  static constexpr const wchar_t* kSection = L"ClearHistory";
  static constexpr Row kRows[] = {{L"FileName", &CClearHistorySettings::FileName},
                                  {L"LookIn", &CClearHistorySettings::LookIn},
                                  {L"Containing", &CClearHistorySettings::Containing},
                                  {L"All", &CClearHistorySettings::All}};
};
