#pragma once

// A store that writes down what is read and written, in order.

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "hollerin/application.h"
#include "ifc/config_data_mgr.h"

/// Keeps its values in a real store. Lines read "int Options/TabSize 8": the type, the place, and
/// the default of a read or the value of a write.
class RecordingStore : public INTERNAL_IFC::IConfigDataMgr {
 public:
  std::shared_ptr<HOLLERIN::Store> values = HOLLERIN::CreateStore();
  std::vector<std::wstring> reads;
  std::vector<std::wstring> writes;
  bool failsReading = false;

  bool ReadBool(const std::wstring& section, const std::wstring& key, bool fallback) override {
    Read(L"bool", section, key, fallback ? L"true" : L"false");
    return values->ReadBool(section, key, fallback);
  }
  std::int32_t ReadInt(const std::wstring& section, const std::wstring& key,
                       std::int32_t fallback) override {
    Read(L"int", section, key, std::to_wstring(fallback));
    return values->ReadInt(section, key, fallback);
  }
  std::wstring ReadString(const std::wstring& section, const std::wstring& key,
                          const std::wstring& fallback) override {
    Read(L"text", section, key, fallback);
    return values->ReadString(section, key, fallback);
  }
  void WriteBool(const std::wstring& section, const std::wstring& key, bool value) override {
    writes.push_back(Line(L"bool", section, key, value ? L"true" : L"false"));
    values->WriteBool(section, key, value);
  }
  void WriteInt(const std::wstring& section, const std::wstring& key, std::int32_t value) override {
    writes.push_back(Line(L"int", section, key, std::to_wstring(value)));
    values->WriteInt(section, key, value);
  }
  void WriteString(const std::wstring& section, const std::wstring& key,
                   const std::wstring& value) override {
    writes.push_back(Line(L"text", section, key, value));
    values->WriteString(section, key, value);
  }

  HRESULT LoadFile(const std::wstring&, const std::wstring&) override { return E_NOTIMPL; }
  HRESULT Save() override { return E_NOTIMPL; }
  void Clear() override { values->Clear(); }
  void ClearSection(const std::wstring& section) override { values->ClearSection(section); }
  void SaveToText(std::wstring& text) override { values->SaveToText(text); }
  void SaveToNarrowText(std::string& text) override { values->SaveToNarrowText(text); }
  void LoadFromNarrowText(const std::string& text) override { values->LoadFromNarrowText(text); }
  void LoadFromText(const std::wstring& text) override { values->LoadFromText(text); }

 private:
  static std::wstring Line(const wchar_t* type, const std::wstring& section,
                           const std::wstring& key, const std::wstring& value) {
    return std::wstring(type) + L" " + section + L"/" + key + L" " + value;
  }
  void Read(const wchar_t* type, const std::wstring& section, const std::wstring& key,
            const std::wstring& fallback) {
    reads.push_back(Line(type, section, key, fallback));
    if (failsReading) throw std::runtime_error("the store cannot be read");
  }
};
