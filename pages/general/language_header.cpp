#include "pages/general/language_header.h"

#include <bit>
#include <boost/regex.hpp>

#include "platform/text.h"

namespace {

/// The bytes without the beginning of a character at their end whose rest is missing.
std::string_view WithoutCutCharacter(std::string_view bytes) {
  constexpr std::size_t kLongest = 4;
  for (std::size_t back = 1; back < kLongest && back <= bytes.size(); ++back) {
    const auto byte = static_cast<unsigned char>(bytes[bytes.size() - back]);
    const int ones = std::countl_one(byte);
    if (ones == 1) continue;  // Inside a character.
    const bool cut = ones > static_cast<int>(back);
    return cut ? bytes.substr(0, bytes.size() - back) : bytes;
  }
  return bytes;
}

}  // namespace

std::optional<std::wstring> LanguageNameIn(std::string_view bytes) {
  static const boost::wregex pattern(LR"re(\<translation .*?lang="(.+?)")re", boost::regex::perl);
  const auto text = FromUtf8Strict(WithoutCutCharacter(bytes));
  boost::wsmatch match;
  if (!text || !boost::regex_search(*text, match, pattern)) return std::nullopt;
  return match[1].str();
}
