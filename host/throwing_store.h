#pragma once

// A store that fails at a chosen moment.

#include <memory>

#include "hollerin/application.h"

/// Passes everything on to another store; once armed, its n-th read or write raises a
/// std::runtime_error instead, a single time. Copying and clearing the whole store do not count.
class ThrowingStore : public INTERNAL_IFC::IConfigDataMgr {
 public:
  /// `call` counts from 1.
  ThrowingStore(std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store, int call);

  /// Counting starts here; a second call does nothing.
  void Arm();

  HRESULT LoadFile(const std::wstring& folder, const std::wstring& name) override;
  HRESULT Save() override;
  void Clear() override;
  void ClearSection(const std::wstring& section) override;
  void SaveToText(std::wstring& text) override;
  void SaveToNarrowText(std::string& text) override;
  void LoadFromNarrowText(const std::string& text) override;
  void LoadFromText(const std::wstring& text) override;
  bool ReadBool(const std::wstring& section, const std::wstring& key, bool defaultValue) override;
  std::int32_t ReadInt(const std::wstring& section, const std::wstring& key,
                       std::int32_t defaultValue) override;
  std::wstring ReadString(const std::wstring& section, const std::wstring& key,
                          const std::wstring& defaultValue) override;
  void WriteBool(const std::wstring& section, const std::wstring& key, bool value) override;
  void WriteInt(const std::wstring& section, const std::wstring& key, std::int32_t value) override;
  void WriteString(const std::wstring& section, const std::wstring& key,
                   const std::wstring& value) override;

 private:
  void Count();

  std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store_;
  int call_;
  int counted_ = 0;
  bool armed_ = false;
};
