#pragma once

#include <memory>
#include <vector>

#include "core/value_page.h"
#include "resources/resource.h"

/// The language of the user interface, one of those whose files the language folder holds.
class CConfigEntryLocalizationDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_LOCALIZATION_PAGE;
  CConfigEntryLocalizationDlg();

  /// Hides the note on when a language takes effect, for a host that says so itself.
  void HideNote();

 protected:
  /// Fills the list; what goes wrong is shown to the user and leaves the list as far as it was.
  BOOL OnInitDialog() override;
  void BindMembers(CDataExchange* exchange) override;
  void EndExchange(CDataExchange* exchange, const StoreHandle& store) override;

 private:
  /// The name of a language file, to which the data of its item points.
  using FileName = std::shared_ptr<const std::wstring>;

  void FillLanguages();
  void AddLanguage(const std::wstring& file, const std::wstring& language,
                   const CString& currentFile);
  const std::wstring* ChosenFile() const;

  CCustomComboBox languages_;
  std::vector<FileName> files_;
};
