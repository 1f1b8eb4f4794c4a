#include "hollerin/language_file.h"

#include <charconv>

#include "hollerin/xml_document.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

template <class Number>
std::optional<Number> NumberOf(const pugi::xml_node& element) {
  const std::string_view text = element.attribute("n").value();
  Number number{};
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec != std::errc{} || result.ptr != text.data() + text.size()) return std::nullopt;
  return number;
}

template <class Number>
void ReadNumbered(const pugi::xml_node& parent, const char* name, NumberedTexts<Number>& texts) {
  for (const pugi::xml_node& element : parent.children(name)) {
    const std::optional<Number> number = NumberOf<Number>(element);
    std::wstring text;
    if (number && ElementText(element, text)) texts.emplace(*number, std::move(text));
  }
}

void ReadDialog(const pugi::xml_node& element, LanguageTexts& texts) {
  const std::optional<std::int32_t> number = NumberOf<std::int32_t>(element);
  if (!number) return;
  DialogTexts& dialog = texts.dialogs[*number];
  const pugi::xml_attribute title = element.attribute("title");
  if (title && !dialog.title) dialog.title = FromUtf8(title.value());
  ReadNumbered(element, "text", dialog.texts);
  ReadNumbered(element, "value", dialog.values);
}

void ReadMenu(const pugi::xml_node& element, LanguageTexts& texts) {
  const std::optional<std::int32_t> number = NumberOf<std::int32_t>(element);
  if (number) ReadNumbered(element, "text", texts.menus[*number]);
}

void ReadApplication(const pugi::xml_node& element, LanguageTexts& texts) {
  if (texts.appTitle.empty()) texts.appTitle = FromUtf8(element.attribute("title").value());
  if (texts.messageCaption.empty()) {
    texts.messageCaption = FromUtf8(element.attribute("message").value());
  }
}

void ReadStrings(const pugi::xml_node& element, LanguageTexts& texts) {
  ReadNumbered(element, "text", texts.strings);
}

void ReadCommon(const pugi::xml_node& element, LanguageTexts& texts) {
  ReadNumbered(element, "text", texts.common);
}

struct ElementRow {
  std::string_view name;
  void (*read)(const pugi::xml_node&, LanguageTexts&);
};
constexpr ElementRow kElements[] = {{"application", ReadApplication},
                                    {"strings", ReadStrings},
                                    {"common", ReadCommon},
                                    {"dialog", ReadDialog},
                                    {"menu", ReadMenu}};

}  // namespace

std::optional<LanguageTexts> ParseLanguageXml(std::string_view bytes, std::wstring& reason) {
  pugi::xml_document document;
  if (!ParseXml(bytes, document, reason)) return std::nullopt;
  const pugi::xml_node root = document.document_element();
  if (std::string_view(root.name()) != "translation") {
    reason = ReasonAt(L"the root element is not \"translation\"", root.offset_debug());
    return std::nullopt;
  }
  LanguageTexts texts;
  for (const pugi::xml_node& child : root.children()) {
    for (const ElementRow& row : kElements) {
      if (row.name == child.name()) row.read(child, texts);
    }
  }
  return texts;
}

}  // namespace HOLLERIN
