#pragma once

// Completion of what the user types into an edit, in the vocabulary of the shell.
//
// Completed are the names of folders. A path is completed when it begins with "/", with "~/" (the
// user's own folder, whose full path takes the place of the "~") or in Windows style; both "\" and
// "/" separate the names of a Windows-style path. Of the folder up to the last separator, those
// folders are offered whose names begin with the rest, case aside; hidden ones, whose names begin
// with a dot, only when the rest does too. They are sorted by name, case aside; at most
// kMostCompletions are shown. The folder is read in the background: keys never wait for it, and an
// answer for what is typed no longer is dropped.
//
// The list of suggestions never takes the focus. While it is shown, Up and Down walk through it and
// put the suggestions into the edit, Enter and Tab keep what the edit holds, Escape brings back
// what was typed; each of the three closes it.

#include <memory>

#include "platform/types.h"

constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002U);

/// Options of IACList2.
constexpr DWORD ACLO_FILESYSONLY = 0x10;

/// Options of IAutoComplete2.
constexpr DWORD ACO_AUTOSUGGEST = 0x01;         ///< Shows a list of suggestions.
constexpr DWORD ACO_AUTOAPPEND = 0x02;          ///< Appends the first one, selected, while typing.
constexpr DWORD ACO_UPDOWNKEYDROPSLIST = 0x10;  ///< Up and Down open the list.

/// Status of IAutoCompleteDropDown.
constexpr DWORD ACDD_VISIBLE = 0x01;

/// Greatest number of suggestions in the list.
constexpr int kMostCompletions = 1000;

class IUnknown {
 public:
  virtual ~IUnknown() = default;
};

/// A source of names: the folders of the file system.
class IACList : public virtual IUnknown {};

class IACList2 : public IACList {
 public:
  /// E_INVALIDARG for anything but ACLO_FILESYSONLY, which a list needs before it is used.
  virtual HRESULT SetOptions(DWORD options) = 0;
};

class IAutoComplete : public virtual IUnknown {
 public:
  /// Completes what is typed into the edit part of a combo box, for as long as that lives.
  /// E_INVALIDARG for any other window, for a list that is not set to the file system, and with a
  /// registry path or a format, which are for lists of other things.
  virtual HRESULT Init(HWND edit, const std::shared_ptr<IUnknown>& list, LPCWSTR registryPath,
                       LPCWSTR format) = 0;
};

class IAutoComplete2 : public IAutoComplete {
 public:
  /// Any of the ACO_ options. E_INVALIDARG for others, E_FAIL before Init.
  virtual HRESULT SetOptions(DWORD options) = 0;
};

class IAutoCompleteDropDown : public virtual IUnknown {
 public:
  /// ACDD_VISIBLE while the list of suggestions is shown, else 0. Never fails; an edit that is gone
  /// shows no list.
  virtual HRESULT GetDropDownStatus(DWORD* flags) = 0;
};

/// A completion object that is tied to no edit yet (CLSID_AutoComplete). Statuses of these two:
/// S_OK, or E_FAIL when the machine says so.
HRESULT CreateAutoComplete(std::shared_ptr<IAutoComplete>* object);
/// A list of the folders of the file system (CLSID_ACListISF).
HRESULT CreateACListISF(std::shared_ptr<IACList>* object);

/// Whether the machine says that an object shall not have the interface of that name.
bool LacksInterface(const wchar_t* name);

/// Another interface of an object: E_NOINTERFACE, with `result` left alone, when it has none.
/// `name` is the interface's, as the machine knows it.
template <class Interface, class Object>
HRESULT QueryInterface(const std::shared_ptr<Object>& object, const wchar_t* name,
                       std::shared_ptr<Interface>* result) {
  auto found = std::dynamic_pointer_cast<Interface>(object);
  if (found == nullptr || LacksInterface(name)) return E_NOINTERFACE;
  *result = std::move(found);
  return S_OK;
}

/// The part of an edit's text that the user completes now, where it is not the whole text. Places
/// count the characters of the wide text.
struct AUTOCOMPLETEPART {
  LPCWSTR text = L"";    ///< In: the whole text.
  int caret = 0;         ///< In.
  int start = 0;         ///< Out.
  int end = 0;           ///< Out.
  wchar_t excluded = 0;  ///< Out: a character that a completed name must not hold; 0 for none.
};

/// Asks an edit for that part; lParam is the address of an AUTOCOMPLETEPART. An edit that fills it
/// answers TRUE.
constexpr UINT ACM_GETPART = 0x0400 + 200;
