#pragma once

// The edit part of a look-in combo. It knows which folder of several the caret is at, and keeps
// track of how its text changes.

#include <memory>

#include "controls/combo_list_edit_host.h"
#include "platform/autocomplete.h"
#include "platform/bcg.h"

/// Posted to the combo at the end of a change; wParam is 1 when the user has changed the text.
constexpr UINT kTextChangeEnded = 0x8071;

class CComboListEdit : public CBCGPEdit {
 public:
  /// How the text is changed.
  enum ChangeKind : std::uint32_t {
    kRemoving = 1,    ///< By Backspace or Delete.
    kTyping = 2,      ///< By a character.
    kSetting = 4,     ///< By the program, such as for a chosen row.
    kReplacing = 5,   ///< By the user in any other way: pasting, cutting, dropping, undoing.
    kCompleting = 6,  ///< By completion.
  };

  /// The change under way, or the last one.
  struct CChangeState {
    std::uint32_t kind = 0;
    std::wstring textBefore;
  };

  /// Stands for a change: when its last owner lets it go, the window is told.
  class CMonitorChange {
   public:
    explicit CMonitorChange(HWND notified) : notified_(notified) {}
    ~CMonitorChange();
    CMonitorChange(const CMonitorChange&) = delete;
    CMonitorChange& operator=(const CMonitorChange&) = delete;

    bool changed = false;  ///< The text is another one.
    bool byUser = false;   ///< The user had a part in it.

   private:
    HWND notified_;
  };

  /// The host must outlive the edit.
  explicit CComboListEdit(IComboListEditHost& host) : host_(host) {}

  /// Sets the text, as a change of the kind kSetting.
  void SetText(const CString& text);
  CString GetText() const;

  /// The monitor of the change under way, or a new one: whoever holds it makes all changes until it
  /// lets go one change.
  std::shared_ptr<CMonitorChange> MonitorChange();
  const CChangeState& LastChange() const { return state_; }
  /// Tells the edit that the user has changed its text; unless the edit saw that change itself, it
  /// was one of the kind kReplacing.
  void NoteEdited();

  void OnBrowse() override { host_.Browse(); }

 protected:
  void OnChar(UINT character, UINT repeats, UINT flags);
  void OnKeyDown(UINT key, UINT repeats, UINT flags);
  LRESULT OnReplaceSelection(WPARAM wParam, LPARAM lParam);
  LRESULT OnGetPart(WPARAM wParam, LPARAM lParam);
  DECLARE_MESSAGE_MAP()

 private:
  class Change;

  IComboListEditHost& host_;
  std::shared_ptr<CMonitorChange> monitor_;  ///< Held while a change of the edit's own is made.
  std::weak_ptr<CMonitorChange> watched_;
  CChangeState state_;
  std::wstring known_;  ///< The text after the last change.
};
