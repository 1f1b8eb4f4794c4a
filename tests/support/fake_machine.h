#pragma once

// A machine whose facts a test states.

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/machine.h"

struct FakeMachine : Machine {
  bool Portable() const override { return portable; }
  int Processors() const override { return processors; }
  std::optional<ShellRegistration> Registration() const override { return registration; }
  std::optional<RegistryKey> FindRegistryKey(std::wstring_view path) const override {
    const auto key = registry.find(std::wstring(path));
    if (key == registry.end()) return std::nullopt;
    return key->second;
  }
  std::map<wchar_t, std::wstring> Drives() const override { return drives; }
  std::optional<std::map<std::wstring, std::wstring>> Folders() const override { return folders; }
  std::optional<std::vector<DocumentFilter>> DocumentFilters() const override { return filters; }
  std::optional<std::vector<OcrLanguage>> OcrLanguages() const override { return languages; }
  std::optional<CacheContents> Cache() const override { return cache; }
  bool Fails(std::wstring_view operation) const override { return operation == fails; }
  bool Opens(std::wstring_view path) const override {
    opened.emplace_back(path);
    return opens;
  }
  std::optional<std::vector<EditorFact>> Editors() const override { return editors; }
  std::optional<std::vector<std::wstring>> Components() const override { return components; }
  std::vector<std::string> ComponentFolders() const override { return componentFolders; }
  std::vector<std::wstring> FolderNames(const std::wstring& folder,
                                        const std::atomic<bool>& cancelled) const override {
    return folderNames ? folderNames(folder) : Machine::FolderNames(folder, cancelled);
  }
  std::optional<bool> PlaysSound(std::wstring_view) const override { return sound; }

  bool portable = false;
  int processors = 4;
  std::optional<ShellRegistration> registration;
  std::map<std::wstring, RegistryKey> registry;
  std::map<wchar_t, std::wstring> drives;
  std::optional<std::map<std::wstring, std::wstring>> folders;
  std::optional<std::vector<DocumentFilter>> filters;
  std::optional<std::vector<OcrLanguage>> languages;
  std::optional<CacheContents> cache;
  std::function<std::vector<std::wstring>(const std::wstring&)> folderNames;
  std::wstring fails;
  std::optional<std::vector<EditorFact>> editors;
  std::optional<std::vector<std::wstring>> components;
  std::vector<std::string> componentFolders;
  bool opens = true;
  std::optional<bool> sound;
  mutable std::vector<std::wstring> opened;
};

/// Puts a fake machine in place of the real one for as long as it lives.
class ScopedMachine {
 public:
  ScopedMachine() { SetMachine(machine_); }
  ~ScopedMachine() { SetMachine(nullptr); }
  FakeMachine* operator->() { return machine_.get(); }

 private:
  std::shared_ptr<FakeMachine> machine_ = std::make_shared<FakeMachine>();
};
