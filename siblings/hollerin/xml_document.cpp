#include "hollerin/xml_document.h"

#include <strings.h>

#include <algorithm>
#include <optional>

#include "hollerin/code_points.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

/// What may stand between "&" and ";".
bool IsKnownReference(std::string_view name) {
  for (const std::string_view known : {"amp", "lt", "gt", "quot", "apos"}) {
    if (name == known) return true;
  }
  if (!name.starts_with('#')) return false;
  name.remove_prefix(1);
  const bool hexadecimal = name.starts_with('x');
  if (hexadecimal) name.remove_prefix(1);
  if (name.empty() || name.size() > 8) return false;
  std::uint32_t code = 0;
  for (const char digit : name) {
    const bool decimalDigit = digit >= '0' && digit <= '9';
    const char lower = static_cast<char>(digit | 0x20);
    if (!decimalDigit && (!hexadecimal || lower < 'a' || lower > 'f')) return false;
    code = code * (hexadecimal ? 16 : 10) +
           static_cast<std::uint32_t>(decimalDigit ? digit - '0' : lower - 'a' + 10);
  }
  return IsXmlCharacter(code);
}

bool StartsReference(std::string_view text) {
  const std::size_t end = text.substr(0, 16).find(';');
  return end != text.npos && IsKnownReference(text.substr(1, end - 1));
}

/// The end of the comment, the character data or the instruction that starts here; 0 when none.
std::size_t LiteralLength(std::string_view text) {
  constexpr std::string_view kLiterals[][2] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
  for (const auto& [start, stop] : kLiterals) {
    if (!text.starts_with(start)) continue;
    const std::size_t end = text.find(stop, start.size());
    return end == text.npos ? text.size() : end + stop.size();
  }
  return 0;
}

/// The first byte that the parser would pass over although it is not XML.
std::optional<std::size_t> FirstBadByte(std::string_view bytes) {
  const char* const start = bytes.data();
  const char* const end = start + bytes.size();
  const char* literalEnd = start;
  for (const char* at = start; at != end;) {
    const auto offset = static_cast<std::size_t>(at - start);
    if (at >= literalEnd && *at == '<') literalEnd = at + LiteralLength(bytes.substr(offset));
    if (at >= literalEnd && *at == '&' && !StartsReference(bytes.substr(offset))) return offset;
    std::uint32_t code = 0;
    if (!TakeCode(at, end, code) || !IsXmlCharacter(code)) return offset;
  }
  return std::nullopt;
}

bool IsReadableEncoding(const pugi::xml_node& declaration) {
  const pugi::xml_attribute encoding = declaration.attribute("encoding");
  if (!encoding) return true;
  const char* const name = encoding.value();
  return strcasecmp(name, "UTF-8") == 0 || strcasecmp(name, "US-ASCII") == 0;
}

/// Looks at everything beside the root element; the parser accepts any number of anything there.
bool CheckTopLevel(const pugi::xml_document& document, std::wstring& reason) {
  int roots = 0;
  for (const pugi::xml_node& node : document.children()) {
    const pugi::xml_node_type type = node.type();
    roots += type == pugi::node_element ? 1 : 0;
    const bool declarationIsFine = type != pugi::node_declaration || IsReadableEncoding(node);
    const bool known = type == pugi::node_element || type == pugi::node_declaration ||
                       (type == pugi::node_pcdata && IsBlank(node.value()));
    if (known && declarationIsFine && roots <= 1) continue;
    const wchar_t* const what = type == pugi::node_doctype ? L"a document type is not allowed"
                                : !declarationIsFine       ? L"the encoding is not UTF-8"
                                                           : L"something stands beside the root";
    reason = ReasonAt(what, node.offset_debug());
    return false;
  }
  if (roots == 0) reason = L"there is no root element";
  return roots == 1;
}

}  // namespace

std::wstring ReasonAt(const std::wstring& what, std::ptrdiff_t offset) {
  return what + L" (at byte " + std::to_wstring(offset) + L")";
}

bool ParseXml(std::string_view bytes, pugi::xml_document& document, std::wstring& reason) {
  if (const std::optional<std::size_t> bad = FirstBadByte(bytes)) {
    reason = ReasonAt(L"not UTF-8 text that XML can hold", static_cast<std::ptrdiff_t>(*bad));
    return false;
  }
  constexpr unsigned kOptions = pugi::parse_default | pugi::parse_ws_pcdata |
                                pugi::parse_declaration | pugi::parse_doctype |
                                pugi::parse_fragment;
  const pugi::xml_parse_result result =
      document.load_buffer(bytes.data(), bytes.size(), kOptions, pugi::encoding_utf8);
  if (!result) {
    reason = ReasonAt(FromUtf8(result.description()), result.offset);
    return false;
  }
  return CheckTopLevel(document, reason);
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

bool ElementText(const pugi::xml_node& element, std::wstring& text) {
  text.clear();
  for (const pugi::xml_node& child : element.children()) {
    if (child.type() != pugi::node_pcdata && child.type() != pugi::node_cdata) return false;
    text += FromUtf8(child.value());
  }
  return true;
}

}  // namespace HOLLERIN
