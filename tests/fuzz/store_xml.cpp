// Any bytes may stand in a store's file or be given to it as a text. What is accepted must come
// back the same from every form.

#include "hollerin/store_xml.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "hollerin/store_text.h"

using namespace HOLLERIN;

namespace {

void CheckForms(const Values& values) {
  std::wstring reason, wide;
  std::string narrow;
  FormatStoreText(values, wide);
  FormatStoreText(values, narrow);
  if (ParseStoreText(wide) != values || ParseStoreText(narrow) != values) std::abort();
  if (ParseStoreXml(FormatStoreXml(values), reason) != values) std::abort();
}

/// Values made of the input: a text between two zero bytes is a section, a key or a value in turn.
Values ValuesFrom(std::string_view bytes) {
  Values values;
  std::wstring texts[3];
  for (std::size_t n = 0; !bytes.empty(); n = (n + 1) % 3) {
    const std::size_t length = std::min(bytes.find('\0'), bytes.size()) / sizeof(wchar_t);
    texts[n].resize(length);
    std::memcpy(texts[n].data(), bytes.data(), length * sizeof(wchar_t));
    bytes.remove_prefix(std::min(bytes.size(), length * sizeof(wchar_t) + 1));
    if (n == 2) values[texts[0]][texts[1]] = texts[2];
  }
  return values;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  std::wstring reason;
  if (const auto values = ParseStoreXml(bytes, reason)) CheckForms(*values);
  if (const auto values = ParseStoreText(bytes)) CheckForms(*values);
  CheckForms(ValuesFrom(bytes));
  return 0;
}
