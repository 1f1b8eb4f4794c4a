#pragma once

// A language file: UTF-8 XML.
//
//   <translation lang="English" code="en" version="1">
//     <application title="..." message="..."/>
//     <strings><text n="15">...</text></strings>
//     <common><text n="5">...</text></common>
//     <dialog n="5526" title="..."><text n="1">...</text><value n="1">600</value></dialog>
//     <menu n="5512"><text n="1">...</text></menu>
//   </translation>
//
// Elements and attributes that are not known are passed over, and so is what has no number or one
// that is no integer. Of two texts with one number the first wins.

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

namespace HOLLERIN {

template <class Number>
using NumberedTexts = std::unordered_map<Number, std::wstring>;

struct DialogTexts {
  std::optional<std::wstring> title;
  NumberedTexts<std::int32_t> texts;
  NumberedTexts<std::int32_t> values;
};

struct LanguageTexts {
  std::wstring appTitle;
  std::wstring messageCaption;
  NumberedTexts<std::uint32_t> strings;
  NumberedTexts<std::int32_t> common;
  std::unordered_map<std::int32_t, DialogTexts> dialogs;
  std::unordered_map<std::int32_t, NumberedTexts<std::int32_t>> menus;
};

/// Nothing when the bytes are not XML or no translation; `reason` says why, in English.
std::optional<LanguageTexts> ParseLanguageXml(std::string_view bytes, std::wstring& reason);

}  // namespace HOLLERIN
