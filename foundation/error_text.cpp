#include "foundation/error_text.h"

#include <iomanip>
#include <sstream>
#include <system_error>

#include "foundation/language.h"
#include "resources/text_ids.h"

namespace {

constexpr const wchar_t* kBlankLine = L"\r\n\r\n";
constexpr std::size_t kShownWhole = 2000;
constexpr std::size_t kShownOfEachEnd = 1000;

std::wstring SystemErrorText(std::uint32_t error) {
  if (error == 0) return {};
  return FromUtf8(std::system_category().message(static_cast<int>(error)));
}

/// The language's text, or the fixed English one while there is none.
std::wstring TextOr(UINT number, const wchar_t* fallback) {
  const auto text = FindLanguageString(number);
  return text.has_value() && !text->IsEmpty() ? text->Str() : fallback;
}

std::wstring Heading(bool interactive) {
  if (!interactive) return L"ERROR: ";
  return TextOr(TextId::kErrorOccurred,
                L"An error has occurred. If the problem persists please contact technical "
                L"support.") +
         kBlankLine + TextOr(TextId::kAdditionalInformation, L"Additional information") + L":" +
         kBlankLine;
}

/// Of a path with a drive only the file name; a path too short to be one is left out.
std::wstring_view ShownSource(std::wstring_view path) {
  if (path.size() <= 2) return {};
  if (path.substr(1, 2) != L":\\") return path;
  return path.substr(path.find_last_of(L"\\/") + 1);
}

}  // namespace

std::wstring DescribeRecord(const ErrorRecord& record) {
  if (!FAILED(record.status)) return record.task;
  std::wostringstream text;
  text.imbue(std::locale::classic());
  text << record.task << (record.detail ? L" " : L" failed") << kBlankLine << std::hex << L"0x"
       << static_cast<std::uint32_t>(record.status) << L" (0x" << record.systemError;
  if (const std::wstring system = SystemErrorText(record.systemError); !system.empty()) {
    text << L' ' << system;
  }
  text << L')';
  if (record.line >= 0) text << L" - :" << std::dec << record.line;
  return text.str();
}

std::wstring BuildErrorText(bool interactive, std::wstring_view context, std::wstring_view source,
                            const ErrorRecord& record) {
  std::wstring text;
  if (!record.detail) text += Heading(interactive);
  if (!context.empty()) {
    text += TextOr(TextId::kProblemRunningTask, L"Problem running task") + L": ";
    text.append(context).append(kBlankLine);
  }
  if (record.detail) return text += record.task;
  return text.append(DescribeRecord(record)).append(L" - ").append(ShownSource(source));
}

std::wstring ShortenForDisplay(std::wstring_view text) {
  if (text.size() <= kShownWhole) return std::wstring(text);
  std::wstring shown(text.substr(0, kShownOfEachEnd));
  shown += L"\r\n...\r\n";
  return shown.append(text.substr(text.size() - kShownOfEachEnd));
}
