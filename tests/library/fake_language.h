#pragma once

// A language whose texts a test chooses.

#include <map>
#include <utility>

#include "ifc/language_mgr.h"

class FakeLanguage : public RES::ILanguageMgr {
 public:
  std::map<std::uint32_t, std::wstring> strings;
  std::map<std::pair<std::int32_t, std::int32_t>, std::wstring> placeholders;
  std::map<std::pair<std::int32_t, std::int32_t>, std::wstring> values;
  std::wstring appTitle;
  std::wstring messageCaption;

  std::wstring TranslateText(std::int32_t dialog, const std::wstring& text, std::int32_t) override {
    return L"[" + std::to_wstring(dialog) + L" " + text + L"]";
  }
  const wchar_t* GetDialogValue(std::int32_t dialog, std::int32_t selector) override {
    return Find(values, std::pair(dialog, selector));
  }
  const wchar_t* GetString(std::uint32_t number) override { return Find(strings, number); }
  const wchar_t* GetPlaceholderText(std::int32_t dialog, std::int32_t number,
                                    std::int32_t) override {
    return Find(placeholders, std::pair(dialog, number));
  }
  std::wstring GetAppTitle() override { return appTitle; }
  std::wstring GetMessageCaption() override { return messageCaption; }

 private:
  template <class Texts, class Key>
  static const wchar_t* Find(const Texts& texts, const Key& key) {
    const auto text = texts.find(key);
    return text != texts.end() ? text->second.c_str() : nullptr;
  }
};
