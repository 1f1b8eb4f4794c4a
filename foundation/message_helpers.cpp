#include "foundation/message_helpers.h"

#include "foundation/error_text.h"
#include "foundation/globals.h"
#include "foundation/language.h"
#include "platform/message_box.h"
#include "platform/wnd.h"

namespace {

constexpr UINT kPlainMessageStyle = MB_TASKMODAL | MB_ICONEXCLAMATION;
constexpr const wchar_t* kFallbackCaption = L"Application Message";

std::wstring OrFallback(std::wstring text) {
  return text.empty() ? kFallbackCaption : std::move(text);
}

std::wstring CaptionField() {
  const auto& manager = Process().language;
  return OrFallback(manager != nullptr ? manager->GetMessageCaption() : std::wstring());
}

std::wstring Title(const wchar_t* caption) {
  if (caption != nullptr && *caption != L'\0') return caption;
  const auto& manager = Process().language;
  return OrFallback(manager != nullptr ? manager->GetAppTitle() : std::wstring());
}

/// The message has been shown; a log that fails has nowhere to be reported.
void LogQuietly(const std::wstring& text) {
  try {
    if (const auto log = ApplicationLog(); log != nullptr) log->LogLine(text);
  } catch (...) {
  }
}

void EnableOwner(HWND owner) {
  if (CWnd* window = CWnd::FromHandle(owner); window != nullptr) window->EnableWindow(TRUE);
}

}  // namespace

int ShowMessageText(const CString& text, UINT type, const wchar_t* caption) {
  BCGP_MSGBOXPARAMS parameters;
  parameters.hwndOwner = AfxGetSafeOwner();
  EnableOwner(parameters.hwndOwner);
  parameters.lpszText = ShortenForDisplay(text.Str());
  parameters.lpszCaption = CaptionField();
  if (std::wstring title = Title(caption); title != parameters.lpszCaption) {
    parameters.lpszTitle = std::move(title);
  }
  parameters.dwStyle = type | kPlainMessageStyle;
  const int button = BCGPMessageBoxIndirect(parameters);
  LogQuietly(parameters.lpszText);
  EnableOwner(parameters.hwndOwner);
  return button;
}

int ShowLangMessage(UINT text, UINT type, UINT caption) {
  const CString title = caption != 0 ? LanguageString(caption) : CString();
  return ShowMessageText(LanguageString(text), type, title);
}

void ShowErrorText(const CString& text) { ShowMessageText(text, MB_OK); }
