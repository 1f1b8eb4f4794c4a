#pragma once

// What is told about a machine: the records that machine.h answers with.

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/types.h"

/// An external editor that a machine dictates.
struct EditorFact {
  std::wstring name;
  bool isDefault = false;
};

/// How the application is woven into the desktop.
struct ShellRegistration {
  bool resultFiles = false;  ///< Opens files of search results.
  bool folderMenu = false;   ///< Stands in the context menu of folders.
  bool fileMenu = false;     ///< Stands in the context menu of files.
  bool searchKey = false;    ///< Takes the place of the file manager's search.
  bool hotKey = false;       ///< Comes up at a global hot key.
  bool operator==(const ShellRegistration&) const = default;
};

/// A value of the registry: its type (REG_SZ, ...) and its bytes as they stand there.
struct RegistryValue {
  DWORD type = 0;
  std::vector<BYTE> bytes;
};
/// The values of one key by name.
using RegistryKey = std::map<std::wstring, RegistryValue>;

/// A program that extracts the text of documents with a certain extension.
struct DocumentFilter {
  std::wstring extension;  ///< Without a dot.
  std::wstring name;
  std::wstring location = {};   ///< Where the program lies.
  std::wstring arguments = {};  ///< Its arguments, with "%1" for the document.
  bool text = false;            ///< It reads nothing but plain text.
};

/// A language that text in pictures can be recognised in.
struct OcrLanguage {
  std::wstring code;
  std::wstring name;
  bool available = true;
};

/// What the text cache holds.
struct CacheContents {
  std::uint64_t items = 0;
  std::int64_t bytes = 0;
};
