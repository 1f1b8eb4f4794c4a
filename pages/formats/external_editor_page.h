#pragma once

#include <memory>

#include "core/value_page.h"
#include "foundation/geometry.h"
#include "resources/resource.h"

/// The user's own editor: its program, and the parameters that it is started with.
class CConfigEntryEditorExternalDlg : public CValuePage, public Geometry::ILayout {
 public:
  static constexpr UINT IDD = IDD_EXTERNAL_EDITOR_PAGE;
  CConfigEntryEditorExternalDlg();

  /// An editor whose parameters are known.
  class CEditorEntry {
   public:
    CEditorEntry(CString key, CString parameters)
        : key_(std::move(key)), parameters_(std::move(parameters)) {}
    virtual ~CEditorEntry() = default;
    /// Whether it is the editor of that program's file, whose name is in lower case.
    bool Runs(const CString& fileName) const { return fileName.Find(key_) >= 0; }
    const CString& Parameters() const { return parameters_; }

   private:
    CString key_;
    CString parameters_;
  };

 protected:
  BOOL OnInitDialog() override;
  void BindMembers(CDataExchange* exchange) override;
  /// Shows the parameters of the chosen editor; none without a choice.
  void OnKnownEditor();
  void OnBrowse();
  DECLARE_MESSAGE_MAP()

 private:
  void BrowseForProgram();
  void ChooseByProgram(const CString& path);

  CBCGPEdit path_;
  CBCGPEdit parameters_;
  CCustomComboBox known_;
  /// In the order of the combo box's rows.
  std::vector<std::shared_ptr<CEditorEntry>> entries_;
};
