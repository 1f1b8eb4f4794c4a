#pragma once

// The facts of the machine, behind one interface so that a program or a test can replace them.
// The base class answers for the real machine.

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/machine_facts.h"

constexpr const char* kPortableMark = "portable";
constexpr std::size_t kMostFolderNames = 250000;

class Machine {
 public:
  virtual ~Machine();

  /// Whether the application runs as a portable installation: a file named kPortableMark lies
  /// beside the program.
  virtual bool Portable() const;

  /// The processors that this process may use; at least 1.
  virtual int Processors() const;

  /// How the application is woven into the desktop, when the machine dictates it; empty when the
  /// registrar's own record counts.
  virtual std::optional<ShellRegistration> Registration() const;

  /// The registry key with that path, its root's name included ("HKEY_CURRENT_USER\\SOFTWARE"), in
  /// whatever case; empty when there is none. The real machine has no registry.
  virtual std::optional<RegistryKey> FindRegistryKey(std::wstring_view path) const;

  /// The language file in use when the machine dictates one. The outer optional is empty when the
  /// configuration decides; the inner one is empty when there shall be no language manager.
  virtual std::optional<std::optional<std::wstring>> LanguageFile() const;

  /// Whether the function or operation of a sibling library with this name shall answer E_FAIL.
  virtual bool Fails(std::wstring_view operation) const;

  /// Where the drives of Windows-style paths lie: upper-case letter to folder of this system. The
  /// real machine has none.
  virtual std::map<wchar_t, std::wstring> Drives() const;

  /// The names of the folders in a folder of this system, links to folders included, in no order
  /// and at most kMostFolderNames; none when it cannot be read. Called on threads of their own, as
  /// a folder may be long or hang; ends early, with what it has, once `cancelled` is set.
  virtual std::vector<std::wstring> FolderNames(const std::wstring& nativeFolder,
                                                const std::atomic<bool>& cancelled) const;

  /// The placeholders of the application folders with the folders they stand for ("%DATA%"), when
  /// the machine dictates them; empty when they are those of the user.
  virtual std::optional<std::map<std::wstring, std::wstring>> Folders() const;

  /// The external editors, when the machine dictates them; empty when they are looked for.
  virtual std::optional<std::vector<EditorFact>> Editors() const;

  /// The programmatic identifiers of the components that can be created, when the machine dictates
  /// them; empty when their registrations decide.
  virtual std::optional<std::vector<std::wstring>> Components() const;

  /// The folders with the registrations of components, best first: "components" beside the program,
  /// and "quarrow/components" among the user's data.
  virtual std::vector<std::string> ComponentFolders() const;

  /// The document filters, when the machine dictates them; empty when they are to be found.
  virtual std::optional<std::vector<DocumentFilter>> DocumentFilters() const;

  /// The recognition languages, when the machine dictates them; empty when they are to be found.
  virtual std::optional<std::vector<OcrLanguage>> OcrLanguages() const;

  /// The figures of the text cache, when the machine dictates them; empty when they are those of
  /// its database.
  virtual std::optional<CacheContents> Cache() const;

  /// Opens a file or folder of this system in the desktop's place; false leaves it to the desktop.
  virtual bool Opens(std::wstring_view nativePath) const;

  /// Plays the sound file in the player's place, and says whether it plays; empty leaves it to the
  /// player.
  virtual std::optional<bool> PlaysSound(std::wstring_view path) const;

  /// Whether file and folder pickers shall be those of the toolkit also where the desktop has its
  /// own, so that a program can use them.
  virtual bool UsesToolkitPickers() const;
};

/// The machine in use; the real one until SetMachine replaces it. Never null.
const Machine& GetMachine();

/// The same for threads, which may go on when the machine has been replaced.
std::shared_ptr<const Machine> ShareMachine();

/// Replaces the machine in use; an empty pointer brings the real one back.
void SetMachine(std::shared_ptr<const Machine> machine);
