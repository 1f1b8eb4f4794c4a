#pragma once

// The file form of a store: readable UTF-8 XML.
//
//   <?xml version="1.0" encoding="UTF-8"?>
//   <configuration version="1">
//     <section name="Options">
//       <value name="ShowHitCount" type="bool">true</value>
//       <value name="MaxLineLength" type="int">1000</value>
//       <value name="Prefix" type="string" escaped="true">\u{20}two\u{A}lines</value>
//     </section>
//   </configuration>
//
// A text that XML cannot carry is escaped (escape.h) and marked escaped="true"; such a name stands
// in the attribute "escaped-name" instead of "name". Sections and values stand in the order of
// their names, so that equal stores make equal files.
//
// A file is read so that saving it again loses nothing but comments and layout: whatever is not
// understood (another version, an unknown element, attribute or type, a key twice in its section,
// text between the elements, another encoding, a document type) makes the whole file damaged. A
// section may be split over several elements.

#include <optional>
#include <string>

#include "hollerin/application.h"

namespace HOLLERIN {

std::string FormatStoreXml(const Values& values);

/// Nothing when the bytes are damaged; `reason` says in English what is wrong and where.
std::optional<Values> ParseStoreXml(std::string_view bytes, std::wstring& reason);

}  // namespace HOLLERIN
