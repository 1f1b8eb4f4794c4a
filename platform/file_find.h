#pragma once

// Searching a folder for names.

#include <memory>
#include <string>

#include "platform/text.h"

/// Walks the entries of one folder, in the order of the file system, whose names match a pattern:
///
///   CFileFind finder;
///   BOOL more = finder.FindFile(folder + L"lang*.xml");
///   while (more) {
///     more = finder.FindNextFile();
///     Use(finder.GetFileName());
///   }
class CFileFind {
 public:
  CFileFind();
  ~CFileFind();
  CFileFind(const CFileFind&) = delete;
  CFileFind& operator=(const CFileFind&) = delete;

  /// Begins the search and says whether an entry was found; FindNextFile makes it the current one.
  /// `pattern` is a path of either style; in its last part "*" stands for any characters and "?"
  /// for one, and case does not count. The last error is 0 when no entry matches, and otherwise
  /// says why the folder cannot be listed.
  BOOL FindFile(const std::wstring& pattern);
  /// Goes on to the entry found last. FALSE when it has no successor, with the last error as
  /// FindFile has it.
  BOOL FindNextFile();
  /// The current entry's name without its folder; folders are entries too.
  CString GetFileName() const;

 private:
  struct Search;
  std::unique_ptr<Search> search_;
};
