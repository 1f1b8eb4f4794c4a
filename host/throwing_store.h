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

  HRESULT Reserved1() override { return E_NOTIMPL; }
  HRESULT Reserved2() override { return E_NOTIMPL; }
  HRESULT Reserved3() override { return E_NOTIMPL; }
  HRESULT LoadFile(const std::wstring& folder, const std::wstring& name) override;
  HRESULT Reserved5() override { return E_NOTIMPL; }
  HRESULT Reserved6() override { return E_NOTIMPL; }
  HRESULT Save() override;
  HRESULT Reserved8() override { return E_NOTIMPL; }
  HRESULT Reserved9() override { return E_NOTIMPL; }
  HRESULT Reserved10() override { return E_NOTIMPL; }
  HRESULT Reserved11() override { return E_NOTIMPL; }
  HRESULT Reserved12() override { return E_NOTIMPL; }
  void Clear() override;
  void ClearSection(const std::wstring& section) override;
  HRESULT Reserved15() override { return E_NOTIMPL; }
  void SaveToText(std::wstring& text) override;
  void SaveToNarrowText(std::string& text) override;
  HRESULT Reserved18() override { return E_NOTIMPL; }
  void LoadFromNarrowText(const std::string& text) override;
  void LoadFromText(const std::wstring& text) override;
  HRESULT Reserved21() override { return E_NOTIMPL; }
  HRESULT Reserved22() override { return E_NOTIMPL; }
  HRESULT Reserved23() override { return E_NOTIMPL; }
  HRESULT Reserved24() override { return E_NOTIMPL; }
  HRESULT Reserved25() override { return E_NOTIMPL; }
  HRESULT Reserved26() override { return E_NOTIMPL; }
  HRESULT Reserved27() override { return E_NOTIMPL; }
  HRESULT Reserved28() override { return E_NOTIMPL; }
  HRESULT Reserved29() override { return E_NOTIMPL; }
  bool ReadBool(const std::wstring& section, const std::wstring& key, bool defaultValue) override;
  std::int32_t ReadInt(const std::wstring& section, const std::wstring& key,
                       std::int32_t defaultValue) override;
  HRESULT Reserved32() override { return E_NOTIMPL; }
  HRESULT Reserved33() override { return E_NOTIMPL; }
  std::wstring ReadString(const std::wstring& section, const std::wstring& key,
                          const std::wstring& defaultValue) override;
  HRESULT Reserved35() override { return E_NOTIMPL; }
  HRESULT Reserved36() override { return E_NOTIMPL; }
  HRESULT Reserved37() override { return E_NOTIMPL; }
  void WriteBool(const std::wstring& section, const std::wstring& key, bool value) override;
  void WriteInt(const std::wstring& section, const std::wstring& key, std::int32_t value) override;
  HRESULT Reserved40() override { return E_NOTIMPL; }
  HRESULT Reserved41() override { return E_NOTIMPL; }
  void WriteString(const std::wstring& section, const std::wstring& key,
                   const std::wstring& value) override;

 private:
  void Count();

  std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store_;
  int call_;
  int counted_ = 0;
  bool armed_ = false;
};
