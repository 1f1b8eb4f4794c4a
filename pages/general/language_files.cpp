#include "pages/general/language_files.h"

#include <array>

#include "controls/path.h"
#include "flumbrel/flumbrel.h"
#include "foundation/exception.h"
#include "hollerin/hollerin.h"
#include "pages/general/language_header.h"
#include "platform/file_find.h"

namespace {

constexpr const wchar_t* kNamePattern = L"lang*.xml";

std::string ReadHeader(const std::wstring& path) {
  std::shared_ptr<INTERNAL_IFC::IFileStream> stream;
  ThrowHr(FLUMBREL::OpenRead(path, FLUMBREL::kSharedReading, &stream),
          L"Opening xml language file");
  std::array<char, kLanguageHeaderSize> bytes = {};
  std::uint32_t count = 0;
  ThrowHr(stream->Read(bytes.data(), bytes.size(), &count), L"Reading XML header");
  return std::string(bytes.data(), count);
}

}  // namespace

std::wstring LanguageFolder() {
  std::wstring folder;
  ThrowHr(HOLLERIN::GetLangFileLocation(&folder), L"Getting lang file location");
  return WithSeparator(folder);
}

void VisitLanguageFiles(const std::wstring& folder, const LanguageVisitor& visit) {
  CFileFind finder;
  BOOL more = finder.FindFile(folder + kNamePattern);
  // Without an entry a folder that cannot be listed is told from one without language files.
  if (!more && GetLastError() != 0) ThrowHr(E_FAIL, L"Listing language files");
  while (more) {
    more = finder.FindNextFile();
    const bool broken = !more && GetLastError() != 0;
    const std::wstring file = finder.GetFileName().Str();
    if (const auto language = LanguageNameIn(ReadHeader(folder + file))) visit(file, *language);
    if (broken) ThrowHr(E_FAIL, L"Listing language files");
  }
}
