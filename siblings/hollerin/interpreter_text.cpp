#include "hollerin/interpreter_text.h"

#include <bit>
#include <utility>

#include "hollerin/counted_text.h"

namespace HOLLERIN {
namespace {

constexpr std::wstring_view kMagic = L"INTERPRETERS1";

constexpr std::wstring_view InterpreterView::*kTexts[] = {
    &InterpreterView::name, &InterpreterView::key, &InterpreterView::extensions,
    &InterpreterView::info, &InterpreterView::type};
constexpr bool InterpreterView::*kFlags[] = {&InterpreterView::enabled, &InterpreterView::optionA,
                                             &InterpreterView::document, &InterpreterView::optionC};

constexpr std::uint64_t kSumStart = 0xCBF29CE484222325U;
constexpr std::uint64_t kSumFactor = 0x100000001B3U;

/// The product spreads to the top only; turning it lets every bit reach all others in time.
constexpr std::uint64_t Mix(std::uint64_t sum, std::uint64_t value) {
  return std::rotl((sum ^ value) * kSumFactor, 29);
}

/// Each step is reversible in the sum and in the two characters that it takes, so one changed
/// character always changes the result. Lists can be long: four sums run side by side because a
/// processor would wait for every step of a single one.
std::uint64_t Checksum(std::wstring_view text) {
  constexpr std::size_t kLanes = 4;
  constexpr std::size_t kStep = 2 * kLanes;
  std::uint64_t lanes[kLanes] = {kSumStart, kSumStart + 1, kSumStart + 2, kSumStart + 3};
  const wchar_t* at = text.data();
  for (std::size_t step = text.size() / kStep; step > 0; --step, at += kStep) {
    for (std::size_t k = 0; k < kLanes; ++k) {
      lanes[k] = Mix(lanes[k], CodeOf(at[2 * k]) | std::uint64_t{CodeOf(at[2 * k + 1])} << 32);
    }
  }
  std::uint64_t sum = Mix(kSumStart, text.size());
  for (std::size_t rest = text.size() % kStep; rest > 0; --rest) sum = Mix(sum, CodeOf(*at++));
  for (const std::uint64_t lane : lanes) sum = Mix(sum, lane);
  return sum;
}

/// Characters of a counted text.
std::size_t CountedLength(std::size_t length) {
  std::size_t digits = 1;
  for (std::size_t rest = length; rest > 9; rest /= 10) ++digits;
  return digits + 1 + length;
}

bool ReadEntry(CountedReader<wchar_t>& reader, InterpreterView& entry) {
  if (reader.Tag() != L'I') return false;
  for (const auto text : kTexts) {
    if (!reader.Held(entry.*text)) return false;
  }
  for (const auto flag : kFlags) {
    const wchar_t digit = reader.Tag();
    if (digit != L'0' && digit != L'1') return false;
    entry.*flag = digit == L'1';
  }
  return true;
}

}  // namespace

std::size_t InterpreterLength(const InterpreterView& entry) {
  std::size_t length = 1 + std::size(kFlags);
  for (const auto text : kTexts) length += CountedLength((entry.*text).size());
  return length;
}

InterpreterWriter::InterpreterWriter(std::size_t length) {
  text_.reserve(kMagic.size() + length + 1 + kSumLength);
  text_ = kMagic;
}

void InterpreterWriter::Add(const InterpreterView& entry) {
  CountedWriter<wchar_t> writer(text_);
  writer.Tag('I');
  for (const auto text : kTexts) writer.Text(entry.*text);
  for (const auto flag : kFlags) writer.Tag(entry.*flag ? '1' : '0');
}

std::wstring InterpreterWriter::Finish() {
  CountedWriter<wchar_t> writer(text_);
  writer.Tag('E');
  writer.Sum(Checksum(text_));
  return std::move(text_);
}

std::wstring FormatInterpreters(const std::vector<InterpreterView>& entries) {
  std::size_t length = 0;
  for (const InterpreterView& entry : entries) length += InterpreterLength(entry);
  InterpreterWriter writer(length);
  for (const InterpreterView& entry : entries) writer.Add(entry);
  return writer.Finish();
}

bool VisitInterpreters(std::wstring_view text,
                       const std::function<void(const InterpreterView&)>& visit) {
  const std::optional<std::uint64_t> sum = TakeSum(text);
  if (!sum || *sum != Checksum(text)) return false;
  if (!text.starts_with(kMagic) || !text.ends_with(L'E')) return false;
  text.remove_prefix(kMagic.size());
  text.remove_suffix(1);
  CountedReader<wchar_t> reader(text);
  while (!reader.AtEnd()) {
    InterpreterView entry;
    if (!ReadEntry(reader, entry)) return false;
    visit(entry);
  }
  return true;
}

std::optional<std::vector<InterpreterView>> ParseInterpreters(std::wstring_view text) {
  std::vector<InterpreterView> entries;
  entries.reserve(UsualCount(text.size()));
  const auto add = [&entries](const InterpreterView& entry) { entries.push_back(entry); };
  if (!VisitInterpreters(text, add)) return std::nullopt;
  return entries;
}

}  // namespace HOLLERIN
