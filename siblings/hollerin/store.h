#pragma once

// The store, in memory and with its file.

#include "hollerin/application.h"

namespace HOLLERIN {

/// A section without values does not exist.
class ConfigStore : public Store {
 public:
  /// `systemPath` names the store's file; empty for none. Nothing is read.
  explicit ConfigStore(Values values = {}, std::string systemPath = {});

  /// Sets the thread's last system error when it fails. A file of the store's name that turned out
  /// damaged since it was read is put aside first.
  HRESULT Save() override;
  HRESULT LoadFile(const std::wstring& folder, const std::wstring& name) override;

  void Clear() override;
  void ClearSection(const std::wstring& section) override;

  void SaveToText(std::wstring& text) override;
  void SaveToNarrowText(std::string& text) override;
  void LoadFromText(const std::wstring& text) override;
  void LoadFromNarrowText(const std::string& text) override;

  bool ReadBool(const std::wstring& section, const std::wstring& key, bool defaultValue) override;
  std::int32_t ReadInt(const std::wstring& section, const std::wstring& key,
                       std::int32_t defaultValue) override;
  std::wstring ReadString(const std::wstring& section, const std::wstring& key,
                          const std::wstring& defaultValue) override;
  void WriteBool(const std::wstring& section, const std::wstring& key, bool value) override;
  void WriteInt(const std::wstring& section, const std::wstring& key, std::int32_t value) override;
  void WriteString(const std::wstring& section, const std::wstring& key,
                   const std::wstring& value) override;

  const Values& GetValues() const override { return values_; }
  void Write(const std::wstring& section, const std::wstring& key, Value value) override;
  bool Remove(const std::wstring& section, const std::wstring& key) override;

  /// The value as it is kept, until the store changes; null when there is none, or none that was
  /// last written as a text.
  const std::wstring* FindText(const std::wstring& section, const std::wstring& key) const;

 private:
  const Value* Find(const std::wstring& section, const std::wstring& key) const;

  Values values_;
  std::string path_;
};

}  // namespace HOLLERIN
