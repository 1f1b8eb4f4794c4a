#include "hollerin/interpreter_text.h"

#include "hollerin/counted_text.h"

namespace HOLLERIN {
namespace {

constexpr std::wstring_view kMagic = L"INTERPRETERS1";

constexpr std::wstring InterpreterEntry::*kTexts[] = {
    &InterpreterEntry::name, &InterpreterEntry::key, &InterpreterEntry::extensions,
    &InterpreterEntry::info, &InterpreterEntry::type};
constexpr bool InterpreterEntry::*kFlags[] = {
    &InterpreterEntry::enabled, &InterpreterEntry::optionA, &InterpreterEntry::document,
    &InterpreterEntry::optionC};

constexpr std::uint64_t kSumStart = 0xCBF29CE484222325U;
constexpr std::uint64_t kSumFactor = 0x100000001B3U;

std::uint64_t Mix(std::uint64_t sum, std::uint64_t value) { return (sum ^ value) * kSumFactor; }

/// Each step is reversible in the sum and in the character, so one changed character always
/// changes the result. Lists can be long: four sums run side by side because a processor would
/// wait for every step of a single one.
std::uint64_t Checksum(std::wstring_view text) {
  constexpr std::size_t kLanes = 4;
  std::uint64_t lanes[kLanes] = {kSumStart, kSumStart + 1, kSumStart + 2, kSumStart + 3};
  const std::size_t whole = text.size() - text.size() % kLanes;
  for (std::size_t i = 0; i < whole; i += kLanes) {
    for (std::size_t k = 0; k < kLanes; ++k) lanes[k] = Mix(lanes[k], CodeOf(text[i + k]));
  }
  std::uint64_t sum = Mix(kSumStart, text.size());
  for (std::size_t i = whole; i < text.size(); ++i) sum = Mix(sum, CodeOf(text[i]));
  for (const std::uint64_t lane : lanes) sum = Mix(sum, lane);
  return sum;
}

/// About how long the entry is in the text.
std::size_t Length(const InterpreterEntry& entry) {
  constexpr std::size_t kLengthDigits = 6;
  std::size_t length = 1 + std::size(kFlags);
  for (const auto text : kTexts) length += (entry.*text).size() + kLengthDigits;
  return length;
}

bool ReadEntry(CountedReader<wchar_t>& reader, InterpreterEntry& entry) {
  for (const auto text : kTexts) {
    if (!reader.Text(entry.*text)) return false;
  }
  for (const auto flag : kFlags) {
    const wchar_t digit = reader.Tag();
    if (digit != L'0' && digit != L'1') return false;
    entry.*flag = digit == L'1';
  }
  return true;
}

}  // namespace

std::wstring FormatInterpreters(const std::vector<InterpreterEntry>& entries) {
  std::size_t length = kMagic.size() + 1 + kSumLength;
  for (const InterpreterEntry& entry : entries) length += Length(entry);
  std::wstring out;
  out.reserve(length);
  out = kMagic;
  CountedWriter<wchar_t> writer(out);
  for (const InterpreterEntry& entry : entries) {
    writer.Tag('I');
    for (const auto text : kTexts) writer.Text(entry.*text);
    for (const auto flag : kFlags) writer.Tag(entry.*flag ? '1' : '0');
  }
  writer.Tag('E');
  writer.Sum(Checksum(out));
  return out;
}

std::optional<std::vector<InterpreterEntry>> ParseInterpreters(std::wstring_view text) {
  const std::optional<std::uint64_t> sum = TakeSum(text);
  if (!sum || *sum != Checksum(text)) return std::nullopt;
  if (!text.starts_with(kMagic) || !text.ends_with(L'E')) return std::nullopt;
  text.remove_prefix(kMagic.size());
  text.remove_suffix(1);
  std::vector<InterpreterEntry> entries;
  CountedReader<wchar_t> reader(text);
  while (!reader.AtEnd()) {
    if (reader.Tag() != L'I' || !ReadEntry(reader, entries.emplace_back())) return std::nullopt;
  }
  return entries;
}

}  // namespace HOLLERIN
