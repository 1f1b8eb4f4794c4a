#pragma once

// What the application that owns the stores uses of the configuration-store library: stores with a
// file, a look at their values, and the set-up of the process-wide objects.

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "ifc/config_data_mgr.h"
#include "ifc/log_mgr.h"
#include "platform/types.h"

namespace HOLLERIN {

/// A stored value in the type in which it was last written.
using Value = std::variant<bool, std::int32_t, std::wstring>;
using Section = std::map<std::wstring, Value>;
using Values = std::map<std::wstring, Section>;

/// A store that shows its values and may belong to a file.
class Store : public INTERNAL_IFC::IConfigDataMgr {
 public:
  virtual const Values& GetValues() const = 0;
  virtual void Write(const std::wstring& section, const std::wstring& key, Value value) = 0;
  virtual bool Remove(const std::wstring& section, const std::wstring& key) = 0;
};

/// What happened when a store was opened.
struct OpenReport {
  /// False when there was no file, or an unreadable one; the store is empty then.
  bool loaded = false;
  /// The new name of a damaged file that was put aside; empty when none was.
  std::wstring putAside;
  /// Why it was put aside, for a person; empty when nothing went wrong.
  std::wstring reason;
};

/// A store that belongs to the UTF-8 XML file at `path`, loaded from it. A file that cannot be
/// parsed is renamed, never overwritten. Null when a file exists that can be neither read nor put
/// aside; `report.reason` says why.
std::shared_ptr<Store> OpenStore(const std::wstring& path, OpenReport& report);

/// A store without a file.
std::shared_ptr<Store> CreateStore();

/// Where the process finds its files and the shipped defaults.
struct Application {
  std::wstring appFolder;   ///< Of "master.revert.xml"; ends in a separator.
  std::wstring langFolder;  ///< Of the language files; ends in a separator.
  /// The language file's name in langFolder; the default language where it cannot be read.
  std::wstring langFile = L"lang-en.xml";
  /// Where the registrar keeps its record; ends in a separator. Without one it keeps none.
  std::wstring dataFolder;
  std::optional<Values> defaultConfig;  ///< Replaces the shipped default configuration.
  std::optional<Values> defaultMaster;
  std::shared_ptr<INTERNAL_IFC::ILogMgr> log;
  std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> master;  ///< The global master configuration.
};

/// Sets the process up, once, before the settings library is loaded. Returns why the language could
/// not be loaded; empty when it was.
std::wstring SetUpApplication(Application application);

/// A log that writes lines to the file at `path`; a file that cannot be written is reported once on
/// standard error.
std::shared_ptr<INTERNAL_IFC::ILogMgr> CreateFileLog(const std::wstring& path);

/// A log that keeps its lines until they are taken, and passes them on to another log if given.
class MemoryLog : public INTERNAL_IFC::ILogMgr {
 public:
  virtual std::vector<std::wstring> TakeLines() = 0;
};
std::shared_ptr<MemoryLog> CreateMemoryLog(std::shared_ptr<INTERNAL_IFC::ILogMgr> next);

}  // namespace HOLLERIN
