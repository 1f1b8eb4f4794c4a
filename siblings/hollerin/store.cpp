#include "hollerin/store.h"

#include "hollerin/store_text.h"
#include "hollerin/value_conversion.h"

namespace HOLLERIN {

ConfigStore::ConfigStore(Values values, std::string systemPath)
    : values_(std::move(values)), path_(std::move(systemPath)) {
  std::erase_if(values_, [](const auto& section) { return section.second.empty(); });
}

void ConfigStore::Clear() { values_.clear(); }

void ConfigStore::ClearSection(const std::wstring& section) { values_.erase(section); }

void ConfigStore::SaveToText(std::wstring& text) { FormatStoreText(values_, text); }

void ConfigStore::SaveToNarrowText(std::string& text) { FormatStoreText(values_, text); }

void ConfigStore::LoadFromText(const std::wstring& text) {
  if (std::optional<Values> values = ParseStoreText(text)) values_.swap(*values);
}

void ConfigStore::LoadFromNarrowText(const std::string& text) {
  if (std::optional<Values> values = ParseStoreText(text)) values_.swap(*values);
}

const Value* ConfigStore::Find(const std::wstring& section, const std::wstring& key) const {
  const auto values = values_.find(section);
  if (values == values_.end()) return nullptr;
  const auto value = values->second.find(key);
  return value == values->second.end() ? nullptr : &value->second;
}

const std::wstring* ConfigStore::FindText(const std::wstring& section,
                                          const std::wstring& key) const {
  return std::get_if<std::wstring>(Find(section, key));
}

bool ConfigStore::ReadBool(const std::wstring& section, const std::wstring& key,
                           bool defaultValue) {
  const Value* const value = Find(section, key);
  return value == nullptr ? defaultValue : ToBool(*value).value_or(defaultValue);
}

std::int32_t ConfigStore::ReadInt(const std::wstring& section, const std::wstring& key,
                                  std::int32_t defaultValue) {
  const Value* const value = Find(section, key);
  return value == nullptr ? defaultValue : ToInt(*value).value_or(defaultValue);
}

std::wstring ConfigStore::ReadString(const std::wstring& section, const std::wstring& key,
                                     const std::wstring& defaultValue) {
  const Value* const value = Find(section, key);
  return value == nullptr ? defaultValue : ToText(*value);
}

void ConfigStore::WriteBool(const std::wstring& section, const std::wstring& key, bool value) {
  Write(section, key, value);
}

void ConfigStore::WriteInt(const std::wstring& section, const std::wstring& key,
                           std::int32_t value) {
  Write(section, key, value);
}

void ConfigStore::WriteString(const std::wstring& section, const std::wstring& key,
                              const std::wstring& value) {
  Write(section, key, value);
}

void ConfigStore::Write(const std::wstring& section, const std::wstring& key, Value value) {
  values_[section].insert_or_assign(key, std::move(value));
}

bool ConfigStore::Remove(const std::wstring& section, const std::wstring& key) {
  const auto values = values_.find(section);
  if (values == values_.end() || values->second.erase(key) == 0) return false;
  if (values->second.empty()) values_.erase(values);
  return true;
}

std::shared_ptr<Store> CreateStore() { return std::make_shared<ConfigStore>(); }

}  // namespace HOLLERIN
