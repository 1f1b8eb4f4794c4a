#pragma once

// Reading XML strictly: what the parser would drop or change in silence is refused first.

#include <pugixml.hpp>
#include <string>

namespace HOLLERIN {

/// Parses UTF-8 XML with one root element. False, with a reason in English that names the offset,
/// when the bytes are not well-formed, not UTF-8, hold characters or references that XML does not
/// know, or declare a document type.
bool ParseXml(std::string_view bytes, pugi::xml_document& document, std::wstring& reason);

/// The characters of an element without its child elements; false when it has some.
bool ElementText(const pugi::xml_node& element, std::wstring& text);

/// Whether the text is nothing but the white space of XML.
bool IsBlank(std::string_view text);

/// A reason: what is wrong, and at which byte.
std::wstring ReasonAt(const std::wstring& what, std::ptrdiff_t offset);

}  // namespace HOLLERIN
