#pragma once

// The store, in memory and with its file.

#include "hollerin/application.h"

namespace HOLLERIN {

/// Answers the operations that nobody calls.
class ReservedOperations : public Store {
 public:
  HRESULT Reserved1() override { return E_NOTIMPL; }
  HRESULT Reserved2() override { return E_NOTIMPL; }
  HRESULT Reserved3() override { return E_NOTIMPL; }
  HRESULT Reserved5() override { return E_NOTIMPL; }
  HRESULT Reserved6() override { return E_NOTIMPL; }
  HRESULT Reserved8() override { return E_NOTIMPL; }
  HRESULT Reserved9() override { return E_NOTIMPL; }
  HRESULT Reserved10() override { return E_NOTIMPL; }
  HRESULT Reserved11() override { return E_NOTIMPL; }
  HRESULT Reserved12() override { return E_NOTIMPL; }
  HRESULT Reserved15() override { return E_NOTIMPL; }
  HRESULT Reserved18() override { return E_NOTIMPL; }
  HRESULT Reserved21() override { return E_NOTIMPL; }
  HRESULT Reserved22() override { return E_NOTIMPL; }
  HRESULT Reserved23() override { return E_NOTIMPL; }
  HRESULT Reserved24() override { return E_NOTIMPL; }
  HRESULT Reserved25() override { return E_NOTIMPL; }
  HRESULT Reserved26() override { return E_NOTIMPL; }
  HRESULT Reserved27() override { return E_NOTIMPL; }
  HRESULT Reserved28() override { return E_NOTIMPL; }
  HRESULT Reserved29() override { return E_NOTIMPL; }
  HRESULT Reserved32() override { return E_NOTIMPL; }
  HRESULT Reserved33() override { return E_NOTIMPL; }
  HRESULT Reserved35() override { return E_NOTIMPL; }
  HRESULT Reserved36() override { return E_NOTIMPL; }
  HRESULT Reserved37() override { return E_NOTIMPL; }
  HRESULT Reserved40() override { return E_NOTIMPL; }
  HRESULT Reserved41() override { return E_NOTIMPL; }
};

/// A section without values does not exist.
class ConfigStore : public ReservedOperations {
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

 private:
  const Value* Find(const std::wstring& section, const std::wstring& key) const;

  Values values_;
  std::string path_;
};

}  // namespace HOLLERIN
