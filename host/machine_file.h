#pragma once

// The facts of a machine, read from a file.

#include <map>
#include <optional>
#include <set>
#include <string>

#include "hollerin/application.h"
#include "host/outside.h"
#include "platform/machine.h"

class QByteArray;
class QJsonObject;
class QString;

/// When a store shall raise an exception.
struct ThrowRule {
  std::string store;  ///< "config", "master", "history" or "fourth".
  int call = 0;       ///< Counts reads and writes, from 1.
};

/// A machine whose facts come from a JSON object. A fact that the object leaves out stays that of
/// the real machine.
class MachineFile : public Machine {
 public:
  /// Null when the text is no JSON object, has an unknown key or a value of the wrong kind; `error`
  /// then says which one.
  static std::shared_ptr<const MachineFile> Parse(const QByteArray& text, QString& error);
  /// As Parse, for a file.
  static std::shared_ptr<const MachineFile> Load(const QString& path, QString& error);

  bool Portable() const override;
  int Processors() const override;
  std::optional<ShellRegistration> Registration() const override;
  std::optional<RegistryKey> FindRegistryKey(std::wstring_view path) const override;
  std::optional<std::optional<std::wstring>> LanguageFile() const override;
  bool Fails(std::wstring_view operation) const override;
  std::map<wchar_t, std::wstring> Drives() const override;
  std::optional<std::map<std::wstring, std::wstring>> Folders() const override;
  std::optional<std::vector<EditorFact>> Editors() const override;
  std::optional<std::vector<std::wstring>> Components() const override;
  std::optional<std::vector<DocumentFilter>> DocumentFilters() const override;
  std::optional<std::vector<OcrLanguage>> OcrLanguages() const override;
  std::optional<CacheContents> Cache() const override;
  bool Opens(std::wstring_view nativePath) const override;
  std::optional<bool> PlaysSound(std::wstring_view path) const override;
  bool UsesToolkitPickers() const override;

  /// From now on nothing is opened or played outside of the program, but added to `outside`, and
  /// pickers are such that a program can use them. A sound plays unless the file says otherwise.
  void StayInside(std::shared_ptr<Outside> outside) { outside_ = std::move(outside); }

  /// Logical pixels per inch; 0 leaves those of the screen.
  int Dpi() const { return dpi_; }
  const std::optional<ThrowRule>& Throws() const { return throws_; }
  const std::optional<HOLLERIN::Values>& DefaultConfig() const { return defaultConfig_; }
  const std::optional<HOLLERIN::Values>& DefaultMaster() const { return defaultMaster_; }

 private:
  void Take(const QJsonObject& facts);
  void TakeRegistrar(const QJsonObject& registrar);

  int dpi_ = 0;
  std::shared_ptr<Outside> outside_;  ///< Empty while the program is used by a person.
  std::optional<bool> portable_;
  std::optional<int> processors_;
  std::optional<ShellRegistration> registration_;
  std::optional<std::wstring> browserExtensions_;
  std::optional<std::optional<std::wstring>> language_;
  std::set<std::wstring, std::less<>> fails_;
  std::optional<bool> soundPlays_;
  std::optional<std::map<std::wstring, std::wstring>> folders_;
  std::optional<std::map<wchar_t, std::wstring>> drives_;
  std::optional<std::vector<EditorFact>> editors_;
  std::optional<std::vector<std::wstring>> components_;
  std::optional<std::vector<DocumentFilter>> filters_;
  std::optional<std::vector<OcrLanguage>> ocrLanguages_;
  std::optional<CacheContents> cache_;
  std::optional<ThrowRule> throws_;
  std::optional<HOLLERIN::Values> defaultConfig_;
  std::optional<HOLLERIN::Values> defaultMaster_;
};
