#pragma once

// The combo box in which the user types or picks the folders to search: one, or several separated
// by ";" (see folder_list_text.h).

#include <functional>
#include <memory>
#include <vector>

#include "controls/combo_list_edit.h"
#include "controls/custom_combo_box.h"
#include "ifc/load_combo_reg.h"

/// Posted to the combo itself when a row was chosen; wParam is the row's item data. For classes
/// that derive from the combo.
constexpr UINT kEntryChosen = 0x8097;
/// Posted to the combo itself when its list has closed: a row that was chosen is only applied after
/// that.
constexpr UINT kListClosed = 0x80E1;

class CLookInCombo : public CCustomComboBox, public IComboListEditHost {
 public:
  using Provider = std::shared_ptr<INTERNAL_IFC::ILoadComboReg>;
  /// Lets the user edit several folders, given and changed as one text; false when the user
  /// cancelled. May raise CCP_Exception.
  using FolderListEditor =
      std::function<bool(CWnd* owner, const Provider& history, CString& folders)>;

  CLookInCombo();
  ~CLookInCombo() override;

  /// The text of the edit part.
  void SetText(const CString& text);
  CString GetText() const { return edit_.GetText(); }

  /// Whether filling the list keeps the text, and whether rows read with labels (see
  /// ILoadComboReg::Fill). Both off at first.
  void SetOptions(bool keepText, bool labelled);
  /// The histories of the list and of the edit part, which hands its own on to the editor of
  /// several folders. Either may be empty.
  void SetProviders(const Provider& list, const Provider& edit);
  /// Fills the list from its history. Nothing happens without a provider, or when there are rows
  /// already and neither this nor the last filling is forced. Raises CCP_Exception when the
  /// provider fails.
  void Fill(bool forced = false);
  /// Completes the names of folders while the user types. The combo must have its window. Raises
  /// CCP_Exception, whose task names the step that failed.
  void EnableAutoComplete();
  /// What browsing opens while the text holds several folders. Without one, browsing picks a folder
  /// in the place of the one that the caret is at.
  void SetFolderListEditor(FolderListEditor editor) { editFolders_ = std::move(editor); }

  const CComboListEdit& GetEdit() const { return edit_; }
  CComboListEdit& GetEdit() { return edit_; }

  void Browse() override;
  /// The number of folders of an entry with several; the server of one with the long-path prefix of
  /// network paths.
  CString GetEntryLabel(const CString& entry) override;
  /// The long-path prefix of an entry, and the server that is its label, are left out.
  int GetEntryOffset(const CString& entry) override;
  CString GetCurrentText() override;

  BOOL PreTranslateMessage(MSG* message) override;

 protected:
  void PreSubclassWindow() override;
  BOOL OnReflectedNotification(UINT code, int previous) override;
  LRESULT OnTextChangeEnded(WPARAM wParam, LPARAM lParam);
  LRESULT OnListClosed(WPARAM wParam, LPARAM lParam);
  DECLARE_MESSAGE_MAP()

 private:
  bool IsCompletionShown() const;
  bool OnCompletionKey(UINT key);
  bool OnListKey(UINT key);
  void ApplyChosenRow();
  void BringUpToDate();
  void PickFolder();
  CString ShownEntry(const CString& entry);

  CComboListEdit edit_{*this};
  Provider listHistory_;
  Provider editHistory_;
  bool keepText_ = false;
  bool labelled_ = false;
  bool filledForced_ = false;
  std::shared_ptr<IAutoCompleteDropDown> dropDown_;  ///< Null while nothing is completed.

  FolderListEditor editFolders_;
  std::vector<CString> entries_;  ///< Of the history, by the item data of their rows.
  bool several_ = false;          ///< The text holds several folders.
};
