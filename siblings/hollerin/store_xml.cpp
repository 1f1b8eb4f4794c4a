#include "hollerin/store_xml.h"

#include <array>

#include "hollerin/escape.h"
#include "hollerin/value_conversion.h"
#include "hollerin/xml_document.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

constexpr const char* kVersion = "1";
/// Names of the types, in the order of the alternatives of Value.
constexpr std::array<const char*, 3> kTypes = {"bool", "int", "string"};

// Writing.

pugi::xml_node AppendNamed(pugi::xml_node parent, const char* element, const std::wstring& name) {
  pugi::xml_node node = parent.append_child(element);
  const bool escaped = NeedsEscape(name);
  node.append_attribute(escaped ? "escaped-name" : "name")
      .set_value(ToUtf8(escaped ? Escape(name) : name).c_str());
  return node;
}

void AppendValue(pugi::xml_node section, const std::wstring& key, const Value& value) {
  pugi::xml_node node = AppendNamed(section, "value", key);
  node.append_attribute("type").set_value(kTypes[value.index()]);
  std::wstring text = ToText(value);
  if (NeedsEscape(text)) {
    node.append_attribute("escaped").set_value("true");
    text = Escape(text);
  }
  if (!text.empty()) node.text().set(ToUtf8(text).c_str());
}

struct TextSink : pugi::xml_writer {
  std::string text;
  void write(const void* data, std::size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }
};

// Reading.

class Reader {
 public:
  explicit Reader(std::wstring& reason) : reason_(reason) {}

  bool Configuration(const pugi::xml_node& root) {
    if (std::string_view(root.name()) != "configuration") {
      return Fail(root, L"the root element is not \"configuration\"");
    }
    Attributes attributes;
    if (!ReadAttributes(root, {"version"}, attributes)) return false;
    if (std::string_view(attributes[0].value()) != kVersion) {
      return Fail(root, L"unknown version");
    }
    return Children(root, "section", &Reader::SectionElement);
  }

  Values values;

 private:
  static constexpr std::size_t kMaxAttributes = 4;
  using Attributes = std::array<pugi::xml_attribute, kMaxAttributes>;

  bool Fail(const pugi::xml_node& node, const wchar_t* what) {
    reason_ = ReasonAt(what, node.offset_debug());
    return false;
  }

  /// Sorts the attributes by the given names; each may stand there once and no other may.
  bool ReadAttributes(const pugi::xml_node& node, std::initializer_list<const char*> names,
                      Attributes& out) {
    for (const pugi::xml_attribute& attribute : node.attributes()) {
      std::size_t place = 0;
      for (const char* name : names) {
        if (std::string_view(attribute.name()) == name) break;
        ++place;
      }
      if (place == names.size()) return Fail(node, L"unknown attribute");
      if (out[place]) return Fail(node, L"an attribute stands there twice");
      out[place] = attribute;
    }
    return true;
  }

  bool Children(const pugi::xml_node& parent, const char* name,
                bool (Reader::*read)(const pugi::xml_node&)) {
    for (const pugi::xml_node& child : parent.children()) {
      if (child.type() == pugi::node_element) {
        if (std::string_view(child.name()) != name) return Fail(child, L"unknown element");
        if (!(this->*read)(child)) return false;
      } else if (!IsBlank(child.value())) {
        return Fail(child, L"text between the elements");
      }
    }
    return true;
  }

  /// The name out of its two attributes, of which one must be there.
  bool Name(const pugi::xml_node& node, const Attributes& attributes, std::wstring& name) {
    const auto& [plain, escaped, type, mark] = attributes;
    if (static_cast<bool>(plain) == static_cast<bool>(escaped)) {
      return Fail(node, L"it takes either a name or an escaped name");
    }
    name = FromUtf8(plain ? plain.value() : escaped.value());
    return plain || Unescaped(node, name);
  }

  bool Unescaped(const pugi::xml_node& node, std::wstring& text) {
    std::optional<std::wstring> result = Unescape(text);
    if (!result) return Fail(node, L"malformed escape");
    text = std::move(*result);
    return true;
  }

  bool SectionElement(const pugi::xml_node& node) {
    Attributes attributes;
    std::wstring name;
    if (!ReadAttributes(node, {"name", "escaped-name"}, attributes)) return false;
    if (!Name(node, attributes, name)) return false;
    section_ = &values[name];
    if (!Children(node, "value", &Reader::ValueElement)) return false;
    if (section_->empty()) values.erase(name);
    return true;
  }

  bool ValueElement(const pugi::xml_node& node) {
    Attributes attributes;
    if (!ReadAttributes(node, {"name", "escaped-name", "type", "escaped"}, attributes)) {
      return false;
    }
    std::wstring key, text;
    if (!Name(node, attributes, key)) return false;
    if (!ElementText(node, text)) return Fail(node, L"an element inside a value");
    if (attributes[3]) {
      if (std::string_view(attributes[3].value()) != "true") {
        return Fail(node, L"unknown kind of escape");
      }
      if (!Unescaped(node, text)) return false;
    }
    Value value;
    if (!Convert(node, attributes[2].value(), text, value)) return false;
    if (!section_->emplace(std::move(key), std::move(value)).second) {
      return Fail(node, L"a value stands there twice");
    }
    return true;
  }

  bool Convert(const pugi::xml_node& node, std::string_view type, std::wstring& text,
               Value& value) {
    if (type == kTypes[2]) {
      value = std::move(text);
      return true;
    }
    if (type == kTypes[0]) {
      value = text == L"true";
      return text == L"true" || text == L"false" || Fail(node, L"neither true nor false");
    }
    if (type != kTypes[1]) return Fail(node, L"unknown type");
    const std::optional<std::int32_t> number = ParseInt(text);
    if (!number) return Fail(node, L"not an integer");
    value = *number;
    return true;
  }

  std::wstring& reason_;
  Section* section_ = nullptr;
};

}  // namespace

std::string FormatStoreXml(const Values& values) {
  pugi::xml_document document;
  pugi::xml_node declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version").set_value("1.0");
  declaration.append_attribute("encoding").set_value("UTF-8");
  pugi::xml_node root = document.append_child("configuration");
  root.append_attribute("version").set_value(kVersion);
  for (const auto& [name, section] : values) {
    pugi::xml_node node = AppendNamed(root, "section", name);
    for (const auto& [key, value] : section) AppendValue(node, key, value);
  }
  TextSink sink;
  document.save(sink, "  ", pugi::format_default, pugi::encoding_utf8);
  return std::move(sink.text);
}

std::optional<Values> ParseStoreXml(std::string_view bytes, std::wstring& reason) {
  pugi::xml_document document;
  if (!ParseXml(bytes, document, reason)) return std::nullopt;
  Reader reader(reason);
  if (!reader.Configuration(document.document_element())) return std::nullopt;
  return std::move(reader.values);
}

}  // namespace HOLLERIN
