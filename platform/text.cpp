#include "platform/text.h"

#include <QChar>
#include <algorithm>

#include "platform/module.h"
#include "platform/qt/peer.h"
#include "platform/resource_script.h"

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsScalar(char32_t code) { return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF); }

void AppendUtf8(std::string& out, char32_t code) {
  const auto put = [&out](char32_t byte) { out += static_cast<char>(byte); };
  const auto tail = [&](int shift) { put(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0 | code >> 6), tail(0);
  } else if (code < 0x10000) {
    put(0xE0 | code >> 12), tail(6), tail(0);
  } else {
    put(0xF0 | code >> 18), tail(12), tail(6), tail(0);
  }
}

/// A lead byte's kind: how many bytes follow, the bits it carries, and the least code point that
/// needs that many bytes (smaller ones are malformed).
struct LeadByte {
  unsigned char mask, value;
  unsigned following;
  char32_t least;
};
constexpr LeadByte kLeadBytes[] = {
    {0x80, 0x00, 0, 0}, {0xE0, 0xC0, 1, 0x80}, {0xF0, 0xE0, 2, 0x800}, {0xF8, 0xF0, 3, 0x10000}};

/// Decodes the code point at the start of `bytes`; its length, or 0 when it is malformed.
std::size_t DecodeUtf8(std::string_view bytes, char32_t& code) {
  const auto first = static_cast<unsigned char>(bytes.front());
  for (const LeadByte& lead : kLeadBytes) {
    if ((first & lead.mask) != lead.value) continue;
    if (bytes.size() <= lead.following) return 0;
    code = first & static_cast<unsigned char>(~lead.mask);
    for (unsigned i = 1; i <= lead.following; ++i) {
      const auto next = static_cast<unsigned char>(bytes[i]);
      if ((next & 0xC0) != 0x80) return 0;
      code = code << 6 | (next & 0x3F);
    }
    return code >= lead.least && IsScalar(code) ? lead.following + 1 : 0;
  }
  return 0;
}

/// The wide text, and whether every byte was well-formed.
std::pair<std::wstring, bool> Decode(std::string_view bytes) {
  std::pair<std::wstring, bool> result = {{}, true};
  result.first.reserve(bytes.size());
  while (!bytes.empty()) {
    char32_t code = kReplacement;
    const std::size_t length = DecodeUtf8(bytes, code);
    result.first += static_cast<wchar_t>(length != 0 ? code : kReplacement);
    result.second = result.second && length != 0;
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return result;
}

/// Independent of the process' locale, so that texts compare alike everywhere.
char32_t Fold(wchar_t character) { return QChar::toCaseFolded(static_cast<char32_t>(character)); }

bool IsBlank(wchar_t character) { return QChar::isSpace(static_cast<char32_t>(character)); }

}  // namespace

std::string ToUtf8(std::wstring_view text) {
  std::string out;
  out.reserve(text.size());
  for (const wchar_t character : text) {
    const auto code = static_cast<char32_t>(character);
    AppendUtf8(out, IsScalar(code) ? code : kReplacement);
  }
  return out;
}

std::wstring FromUtf8(std::string_view bytes) { return Decode(bytes).first; }

std::optional<std::wstring> FromUtf8Strict(std::string_view bytes) {
  auto [text, valid] = Decode(bytes);
  if (!valid) return std::nullopt;
  return std::move(text);
}

std::wstring FromUtf16(std::span<const BYTE> bytes) {
  QString text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    text += QChar(static_cast<char16_t>(bytes[i] | bytes[i + 1] << 8));
  }
  return FromQt(text);
}

CString CString::Left(int count) const {
  return text_.substr(0, static_cast<std::size_t>(std::max(count, 0)));
}

CString CString::Mid(int first) const {
  return text_.substr(std::min(static_cast<std::size_t>(std::max(first, 0)), text_.size()));
}

int CString::Find(const wchar_t* part, int start) const {
  if (part == nullptr) return -1;
  const std::size_t at = text_.find(part, static_cast<std::size_t>(std::max(start, 0)));
  return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

int CString::CompareNoCase(const wchar_t* other) const {
  const std::wstring_view right = other != nullptr ? other : L"";
  const std::size_t common = std::min(text_.size(), right.size());
  for (std::size_t i = 0; i < common; ++i) {
    const char32_t a = Fold(text_[i]);
    const char32_t b = Fold(right[i]);
    if (a != b) return a < b ? -1 : 1;
  }
  if (text_.size() == right.size()) return 0;
  return text_.size() < right.size() ? -1 : 1;
}

CString& CString::MakeLower() {
  for (wchar_t& character : text_) {
    character = static_cast<wchar_t>(QChar::toLower(static_cast<char32_t>(character)));
  }
  return *this;
}

CString& CString::Trim() {
  text_.erase(text_.begin(), std::find_if_not(text_.begin(), text_.end(), IsBlank));
  text_.erase(std::find_if_not(text_.rbegin(), text_.rend(), IsBlank).base(), text_.end());
  return *this;
}

BOOL CString::LoadString(UINT id) {
  const HINSTANCE module = AfxGetResourceHandle();
  if (module == nullptr || module->Resources() == nullptr) return FALSE;
  ResourceError error;
  auto text = module->Resources()->String(id, error);
  if (!text) return FALSE;
  text_ = std::move(*text);
  return TRUE;
}
