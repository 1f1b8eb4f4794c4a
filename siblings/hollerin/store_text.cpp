#include "hollerin/store_text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <type_traits>

#include "hollerin/code_points.h"

namespace HOLLERIN {
namespace {

constexpr std::string_view kMagic = "HOLLERIN1";
constexpr std::size_t kChecksumLength = 16;
constexpr std::string_view kHexDigits = "0123456789abcdef";

/// Each step is reversible in the sum and in the character, so one changed character always
/// changes the result.
template <class Char>
std::uint64_t Checksum(std::basic_string_view<Char> text) {
  std::uint64_t sum = 0xCBF29CE484222325U;
  for (const Char character : text) {
    sum = (sum ^ static_cast<std::make_unsigned_t<Char>>(character)) * 0x100000001B3U;
  }
  return sum;
}

bool IsAscii(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(), [](wchar_t c) { return CodeOf(c) < 0x80; });
}

template <class Char>
class TextWriter {
 public:
  explicit TextWriter(std::basic_string<Char>& out) : out_(out) {}

  void Tag(char tag) { out_.push_back(static_cast<Char>(tag)); }

  template <class Integer>
  void Number(Integer number, char end) {
    char digits[24];
    const auto result = std::to_chars(digits, digits + sizeof digits, number);
    out_.append(digits, result.ptr);
    Tag(end);
  }

  void Text(const std::wstring& text) {
    if constexpr (std::is_same_v<Char, wchar_t>) {
      Number(text.size(), ':');
      out_.append(text);
    } else if (IsAscii(text)) {
      Number(text.size(), ':');
      out_.append(text.begin(), text.end());
    } else {
      std::size_t size = 0;
      for (const wchar_t c : text) size += CodeSize(CodeOf(c));
      Number(size, ':');
      for (const wchar_t c : text) AppendCode(out_, CodeOf(c));
    }
  }

  void Entry(const std::wstring& key, const Value& value) {
    if (const bool* truth = std::get_if<bool>(&value)) {
      Tag('b');
      Text(key);
      Tag(*truth ? '1' : '0');
    } else if (const std::int32_t* number = std::get_if<std::int32_t>(&value)) {
      Tag('i');
      Text(key);
      Number(*number, ';');
    } else {
      Tag('s');
      Text(key);
      Text(std::get<std::wstring>(value));
    }
  }

  void End() {
    Tag('E');
    const std::uint64_t sum = Checksum(std::basic_string_view<Char>(out_));
    for (int shift = 60; shift >= 0; shift -= 4) Tag(kHexDigits[sum >> shift & 15U]);
  }

 private:
  std::basic_string<Char>& out_;
};

template <class Char>
void Format(const Values& values, std::basic_string<Char>& text) {
  text.assign(kMagic.begin(), kMagic.end());
  TextWriter<Char> writer(text);
  for (const auto& [name, section] : values) {
    writer.Tag('S');
    writer.Text(name);
    for (const auto& [key, value] : section) writer.Entry(key, value);
  }
  writer.End();
}

/// Reads the parts of a text; every function is false, or 0, when its part does not stand there.
template <class Char>
class TextReader {
 public:
  explicit TextReader(std::basic_string_view<Char> text)
      : at_(text.data()), end_(text.data() + text.size()) {}

  bool AtEnd() const { return at_ == end_; }
  Char Tag() { return AtEnd() ? Char{} : *at_++; }

  bool Number(std::int64_t& number, char end) {
    const bool negative = !AtEnd() && *at_ == '-' && at_++ != nullptr;
    const Char* const start = at_;
    number = 0;
    for (; !AtEnd() && *at_ >= '0' && *at_ <= '9'; ++at_) {
      if (number > std::numeric_limits<std::int32_t>::max()) return false;
      number = number * 10 + (*at_ - '0');
    }
    if (negative) number = -number;
    return at_ != start && Tag() == static_cast<Char>(end);
  }

  bool Text(std::wstring& text) {
    std::int64_t length = 0;
    if (!Number(length, ':') || length < 0 || length > end_ - at_) return false;
    const Char* const end = at_ + length;
    if constexpr (std::is_same_v<Char, wchar_t>) {
      text.assign(at_, end);
      at_ = end;
      return true;
    } else {
      return Decode(end, text);
    }
  }

  bool Entry(char type, Value& value) {
    if (type == 'b') {
      const Char digit = Tag();
      value = digit == '1';
      return digit == '0' || digit == '1';
    }
    if (type == 'i') {
      std::int64_t number = 0;
      if (!Number(number, ';') || number != static_cast<std::int32_t>(number)) return false;
      value = static_cast<std::int32_t>(number);
      return true;
    }
    return type == 's' && Text(value.emplace<std::wstring>());
  }

 private:
  bool Decode(const Char* end, std::wstring& text) {
    text.resize(static_cast<std::size_t>(end - at_));
    std::size_t length = 0;
    while (at_ != end) {
      std::uint32_t code = 0;
      if (!TakeCode(at_, end, code)) return false;
      text[length++] = static_cast<wchar_t>(code);
    }
    text.resize(length);
    return true;
  }

  const Char* at_;
  const Char* end_;
};

/// Appends an entry to a map that is being filled in order; null when the key is there already.
template <class Map>
typename Map::mapped_type* AppendNew(Map& map, std::wstring&& key) {
  const std::size_t before = map.size();
  const auto place = map.emplace_hint(map.end(), std::move(key), typename Map::mapped_type{});
  return map.size() == before ? nullptr : &place->second;
}

template <class Char>
std::optional<Values> ParseEntries(std::basic_string_view<Char> text) {
  Values values;
  Section* section = nullptr;
  TextReader<Char> reader(text);
  while (!reader.AtEnd()) {
    std::wstring name;
    const Char tag = reader.Tag();
    if (!reader.Text(name)) return std::nullopt;
    if (tag == 'S') {
      if (section != nullptr && section->empty()) return std::nullopt;
      section = AppendNew(values, std::move(name));
      if (section == nullptr) return std::nullopt;
      continue;
    }
    Value* const value = section == nullptr ? nullptr : AppendNew(*section, std::move(name));
    if (value == nullptr || tag < 0 || tag > 'z') return std::nullopt;
    if (!reader.Entry(static_cast<char>(tag), *value)) return std::nullopt;
  }
  if (section != nullptr && section->empty()) return std::nullopt;
  return values;
}

template <class Char>
std::optional<Values> Parse(std::basic_string_view<Char> text) {
  if (text.size() < kMagic.size() + 1 + kChecksumLength) return std::nullopt;
  const auto sumText = text.substr(text.size() - kChecksumLength);
  text.remove_suffix(kChecksumLength);
  std::uint64_t sum = 0;
  for (const Char digit : sumText) {
    const std::size_t place = digit < 0 || digit > 'f' ? std::string_view::npos
                                                       : kHexDigits.find(static_cast<char>(digit));
    if (place == std::string_view::npos) return std::nullopt;
    sum = sum << 4 | place;
  }
  if (sum != Checksum(text)) return std::nullopt;
  if (!std::equal(kMagic.begin(), kMagic.end(), text.begin()) || text.back() != 'E') {
    return std::nullopt;
  }
  text.remove_suffix(1);
  text.remove_prefix(kMagic.size());
  return ParseEntries(text);
}

}  // namespace

void FormatStoreText(const Values& values, std::wstring& text) { Format(values, text); }
void FormatStoreText(const Values& values, std::string& text) { Format(values, text); }

std::optional<Values> ParseStoreText(std::wstring_view text) { return Parse(text); }
std::optional<Values> ParseStoreText(std::string_view text) { return Parse(text); }

}  // namespace HOLLERIN
