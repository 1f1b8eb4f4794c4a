#include "quimbly/found_editors.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>

#include "platform/find_program.h"
#include "platform/text.h"
#include "platform/user_folder.h"
#include "quimbly/desktop_entry.h"

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostBytes = 1 << 20;  ///< Of a desktop entry.
constexpr int kMostFiles = 10000;            ///< Of one data folder.
constexpr int kDeepestFolder = 4;

struct KnownProgram {
  const char* program;
  const wchar_t* name;
};
constexpr KnownProgram kKnownPrograms[] = {
    {"code", L"Visual Studio Code"},
    {"emacs", L"Emacs"},
    {"geany", L"Geany"},
    {"gedit", L"gedit"},
    {"gvim", L"GVim"},
    {"joe", L"JOE"},
    {"kate", L"Kate"},
    {"micro", L"Micro"},
    {"mousepad", L"Mousepad"},
    {"nano", L"nano"},
    {"nvim", L"Neovim"},
    {"subl", L"Sublime Text"},
    {"vim", L"Vim"},
};

/// An editor with the name of its program's file.
struct Candidate {
  FoundEditor editor;
  std::string program;
};

/// Whether a path, or a name looked for in the search path, leads to a program.
bool CanRun(const std::string& program) {
  if (program.find('/') == program.npos) return FindProgram(program).has_value();
  return program.front() == '/' && IsProgram(program);
}

/// The locale of texts, by the environment.
std::string Locale() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

/// The application files of a data folder, by what the desktop calls them: the path below the
/// folder, with "-" for its separators.
std::map<std::string, fs::path> ApplicationFiles(const fs::path& folder) {
  std::map<std::string, fs::path> files;
  std::error_code error;
  fs::recursive_directory_iterator entry(folder, error);
  for (int seen = 0; !error && entry != fs::recursive_directory_iterator() && seen < kMostFiles;
       entry.increment(error), ++seen) {
    if (entry.depth() >= kDeepestFolder) entry.disable_recursion_pending();
    if (entry->path().extension() != ".desktop") continue;
    std::string id = entry->path().lexically_relative(folder).string();
    std::replace(id.begin(), id.end(), '/', '-');
    files.emplace(std::move(id), entry->path());
  }
  return files;
}

std::string FileNameOf(const std::string& program) {
  return program.substr(program.rfind('/') + 1);
}

void AddDesktopEditors(std::vector<Candidate>& candidates) {
  const std::vector<std::string> locales = LocaleForms(Locale());
  std::set<std::string> known;
  for (const std::string& folder : DataFolders()) {
    for (const auto& [id, path] : ApplicationFiles(folder + "/applications")) {
      if (!known.insert(id).second) continue;
      const auto file = KeyFile::Load(path, kMostBytes);
      const auto entry = file ? ReadEditorEntry(*file, locales) : std::nullopt;
      if (!entry || !CanRun(entry->program)) continue;
      if (!entry->probe.empty() && !CanRun(entry->probe)) continue;
      candidates.push_back({{FromUtf8(id), entry->name}, FileNameOf(entry->program)});
    }
  }
}

void AddKnownPrograms(std::vector<Candidate>& candidates) {
  const std::size_t fromDesktop = candidates.size();
  for (const KnownProgram& known : kKnownPrograms) {
    const auto first = candidates.begin();
    const bool listed = std::any_of(
        first, first + static_cast<std::ptrdiff_t>(fromDesktop),
        [&known](const Candidate& candidate) { return candidate.program == known.program; });
    if (listed || !CanRun(known.program)) continue;
    candidates.push_back({{FromUtf8(known.program), known.name}, known.program});
  }
}

/// Editors of one name are told apart by their programs, or by what the desktop calls them.
void MakeNamesUnique(std::vector<Candidate>& candidates) {
  std::map<std::wstring, int> names;
  for (const Candidate& candidate : candidates) ++names[candidate.editor.name];
  std::set<std::wstring> taken;
  for (Candidate& candidate : candidates) {
    FoundEditor& editor = candidate.editor;
    const std::wstring plain = editor.name;
    if (names[plain] > 1) editor.name = plain + L" (" + FromUtf8(candidate.program) + L')';
    if (!taken.insert(editor.name).second) editor.name = plain + L" (" + editor.id + L')';
  }
}

}  // namespace

std::vector<FoundEditor> FindEditors() {
  std::vector<Candidate> candidates;
  AddDesktopEditors(candidates);
  AddKnownPrograms(candidates);
  MakeNamesUnique(candidates);
  std::vector<FoundEditor> editors;
  editors.reserve(candidates.size());
  for (Candidate& candidate : candidates) editors.push_back(std::move(candidate.editor));
  return editors;
}
