#pragma once

// The pickers of files and folders.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/text.h"
#include "platform/types.h"

class CWnd;

constexpr DWORD OFN_HIDEREADONLY = 0x00000004;  ///< No effect: there is no read-only box.
constexpr DWORD OFN_ALLOWMULTISELECT = 0x00000200;
constexpr DWORD OFN_FILEMUSTEXIST = 0x00001000;
constexpr DWORD OFN_EXPLORER = 0x00080000;  ///< No effect: there is one kind of picker.

/// The names do not fit into the buffer that the caller named.
constexpr DWORD FNERR_BUFFERTOOSMALL = 0x3003;

/// Why the last picker of this process answered IDCANCEL: 0 when the user cancelled it.
DWORD CommDlgExtendedError();

struct OPENFILENAMEW {
  DWORD Flags = 0;
  /// Characters of the longest text that the picked names together may have, each with a zero at
  /// its end. More is an error, and so is a proposed name that does not fit.
  DWORD nMaxFile = 4096;
};

/// Says that a file dialog opens a file; saving is not offered and does not compile.
struct OpenFileDialogFlag {
  consteval OpenFileDialogFlag(BOOL open) {
    if (!open) throw "only dialogs that open a file exist";
  }
};

/// Picks one file to open, or several with OFN_ALLOWMULTISELECT. The proposed name may be a path of
/// either style; picked names are paths of this system.
class CFileDialog {
 public:
  /// There is no default extension. `filter` has pairs of a text and patterns with "|" after each,
  /// and one more "|" at its end: "Sounds|*.wav;*.ogg||"; null or empty shows every file.
  explicit CFileDialog(OpenFileDialogFlag open, std::nullptr_t defaultExtension = nullptr,
                       const wchar_t* fileName = nullptr, DWORD flags = OFN_HIDEREADONLY,
                       const wchar_t* filter = nullptr, CWnd* parent = nullptr, DWORD size = 0,
                       BOOL vistaStyle = TRUE);
  virtual ~CFileDialog() = default;

  OPENFILENAMEW m_ofn;

  /// IDOK when the user picked; IDCANCEL otherwise (CommDlgExtendedError tells why).
  INT_PTR DoModal();

  /// The first picked path; empty before DoModal answered IDOK.
  CString GetPathName() const;
  /// The picked paths one after the other: a place that is 0 is behind the last.
  POSITION GetStartPosition() const { return picked_.empty() ? 0 : 1; }
  CString GetNextPathName(POSITION& position) const;

 protected:
  enum class Kind { kFile, kFolder };
  CFileDialog(Kind kind, const wchar_t* start, DWORD flags, const wchar_t* filter, CWnd* parent);

 private:
  DWORD CheckStart() const;
  DWORD CheckPicked() const;

  Kind kind_;
  std::wstring start_;
  std::wstring filter_;
  CWnd* parent_;
  std::vector<std::wstring> picked_;
};

/// Picks one existing folder, or several with OFN_ALLOWMULTISELECT.
class CFolderPickerDialog : public CFileDialog {
 public:
  /// `folder` is where the picker starts, in either style; null leaves that to the picker.
  explicit CFolderPickerDialog(const wchar_t* folder = nullptr, DWORD flags = 0,
                               CWnd* parent = nullptr)
      : CFileDialog(Kind::kFolder, folder, flags, nullptr, parent) {}
};
