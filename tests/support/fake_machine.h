#pragma once

// A machine whose facts a test states.

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/machine.h"

struct FakeMachine : Machine {
  std::map<wchar_t, std::wstring> Drives() const override { return drives; }
  std::optional<std::map<std::wstring, std::wstring>> Folders() const override { return folders; }
  bool Fails(std::wstring_view operation) const override { return operation == fails; }
  bool Opens(std::wstring_view path) const override {
    opened.emplace_back(path);
    return opens;
  }
  std::vector<std::wstring> FolderNames(const std::wstring& folder,
                                        const std::atomic<bool>& cancelled) const override {
    return folderNames ? folderNames(folder) : Machine::FolderNames(folder, cancelled);
  }
  std::optional<bool> PlaysSound(std::wstring_view) const override { return sound; }

  std::map<wchar_t, std::wstring> drives;
  std::optional<std::map<std::wstring, std::wstring>> folders;
  std::function<std::vector<std::wstring>(const std::wstring&)> folderNames;
  std::wstring fails;
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
