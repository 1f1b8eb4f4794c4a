#include "hollerin/store_text.h"

#include <algorithm>
#include <type_traits>

#include "hollerin/counted_text.h"

namespace HOLLERIN {
namespace {

constexpr std::string_view kMagic = "HOLLERIN1";

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

template <class Char>
void WriteEntry(CountedWriter<Char>& writer, const std::wstring& key, const Value& value) {
  if (const bool* truth = std::get_if<bool>(&value)) {
    writer.Tag('b');
    writer.Text(key);
    writer.Tag(*truth ? '1' : '0');
  } else if (const std::int32_t* number = std::get_if<std::int32_t>(&value)) {
    writer.Tag('i');
    writer.Text(key);
    writer.Number(*number, ';');
  } else {
    writer.Tag('s');
    writer.Text(key);
    writer.Text(std::get<std::wstring>(value));
  }
}

template <class Char>
void Format(const Values& values, std::basic_string<Char>& text) {
  text.assign(kMagic.begin(), kMagic.end());
  CountedWriter<Char> writer(text);
  for (const auto& [name, section] : values) {
    writer.Tag('S');
    writer.Text(name);
    for (const auto& [key, value] : section) WriteEntry(writer, key, value);
  }
  writer.Tag('E');
  writer.Sum(Checksum(std::basic_string_view<Char>(text)));
}

/// Reads the value of an entry; false when it does not stand there.
template <class Char>
bool ReadValue(CountedReader<Char>& reader, char type, Value& value) {
  if (type == 'b') {
    const Char digit = reader.Tag();
    value = digit == '1';
    return digit == '0' || digit == '1';
  }
  if (type == 'i') {
    std::int64_t number = 0;
    if (!reader.Number(number, ';') || number != static_cast<std::int32_t>(number)) return false;
    value = static_cast<std::int32_t>(number);
    return true;
  }
  return type == 's' && reader.Text(value.emplace<std::wstring>());
}

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
  CountedReader<Char> reader(text);
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
    if (!ReadValue(reader, static_cast<char>(tag), *value)) return std::nullopt;
  }
  if (section != nullptr && section->empty()) return std::nullopt;
  return values;
}

template <class Char>
std::optional<Values> Parse(std::basic_string_view<Char> text) {
  const std::optional<std::uint64_t> sum = TakeSum(text);
  if (!sum || *sum != Checksum(text) || text.size() < kMagic.size() + 1) return std::nullopt;
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
