#include "host/throwing_store.h"

#include <stdexcept>
#include <utility>

ThrowingStore::ThrowingStore(std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store, int call)
    : store_(std::move(store)), call_(call) {}

void ThrowingStore::Arm() { armed_ = true; }

void ThrowingStore::Count() {
  if (!armed_ || counted_ >= call_) return;
  if (++counted_ == call_) throw std::runtime_error("The store cannot be reached");
}

HRESULT ThrowingStore::LoadFile(const std::wstring& folder, const std::wstring& name) {
  return store_->LoadFile(folder, name);
}

HRESULT ThrowingStore::Save() { return store_->Save(); }

void ThrowingStore::Clear() { store_->Clear(); }

void ThrowingStore::ClearSection(const std::wstring& section) { store_->ClearSection(section); }

void ThrowingStore::SaveToText(std::wstring& text) { store_->SaveToText(text); }

void ThrowingStore::SaveToNarrowText(std::string& text) { store_->SaveToNarrowText(text); }

void ThrowingStore::LoadFromNarrowText(const std::string& text) {
  store_->LoadFromNarrowText(text);
}

void ThrowingStore::LoadFromText(const std::wstring& text) { store_->LoadFromText(text); }

bool ThrowingStore::ReadBool(const std::wstring& section, const std::wstring& key,
                             bool defaultValue) {
  Count();
  return store_->ReadBool(section, key, defaultValue);
}

std::int32_t ThrowingStore::ReadInt(const std::wstring& section, const std::wstring& key,
                                    std::int32_t defaultValue) {
  Count();
  return store_->ReadInt(section, key, defaultValue);
}

std::wstring ThrowingStore::ReadString(const std::wstring& section, const std::wstring& key,
                                       const std::wstring& defaultValue) {
  Count();
  return store_->ReadString(section, key, defaultValue);
}

void ThrowingStore::WriteBool(const std::wstring& section, const std::wstring& key, bool value) {
  Count();
  store_->WriteBool(section, key, value);
}

void ThrowingStore::WriteInt(const std::wstring& section, const std::wstring& key,
                             std::int32_t value) {
  Count();
  store_->WriteInt(section, key, value);
}

void ThrowingStore::WriteString(const std::wstring& section, const std::wstring& key,
                                const std::wstring& value) {
  Count();
  store_->WriteString(section, key, value);
}
