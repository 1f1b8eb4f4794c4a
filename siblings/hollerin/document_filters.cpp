#include "hollerin/document_filters.h"

#include <algorithm>
#include <set>

#include "platform/find_program.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

/// Where several programs read one extension, the first one that is found is used.
struct Extractor {
  const char* program;
  const wchar_t* reads;       ///< For people.
  const wchar_t* extensions;  ///< Separated by ",".
  const wchar_t* arguments;   ///< Those that write the document's text to standard output.
  bool text = false;
};

constexpr Extractor kExtractors[] = {
    {"pdftotext", L"PDF documents", L"pdf", L"-q -enc UTF-8 %1 -"},
    {"docx2txt", L"Word documents", L"docx,docm", L"%1 -"},
    {"antiword", L"Word 97 documents", L"doc", L"-m UTF-8.txt %1"},
    {"catdoc", L"Word 97 documents", L"doc,dot", L"-d utf-8 %1"},
    {"xlsx2csv", L"Excel workbooks", L"xlsx,xlsm", L"--all %1"},
    {"xls2csv", L"Excel 97 workbooks", L"xls,xlt", L"-d utf-8 %1"},
    {"catppt", L"PowerPoint 97 presentations", L"ppt,pps,pot", L"-d utf-8 %1"},
    {"odt2txt", L"OpenDocument files", L"odt,ott,ods,odp,odg", L"--encoding=UTF-8 %1"},
    {"unrtf", L"Rich text", L"rtf", L"--text %1"},
    {"wpd2text", L"WordPerfect documents", L"wpd", L"%1"},
    {"wps2text", L"Works documents", L"wps", L"%1"},
    {"abw2text", L"AbiWord documents", L"abw,zabw", L"%1"},
    {"mwaw2text", L"Old Mac documents", L"cwk,mwp", L"%1"},
    {"pages2text", L"Pages documents", L"pages", L"%1"},
    {"key2text", L"Keynote presentations", L"key", L"%1"},
    {"vsd2text", L"Visio drawings", L"vsd,vsdx", L"%1"},
    {"cdr2text", L"CorelDRAW drawings", L"cdr", L"%1"},
    {"djvutxt", L"DjVu documents", L"djvu,djv", L"%1"},
    {"ps2ascii", L"PostScript", L"ps,eps", L"%1"},
    {"mutool", L"XPS documents", L"xps,oxps", L"draw -q -F txt %1"},
    {"catdvi", L"DVI documents", L"dvi", L"--output-encoding=UTF-8 %1"},
    {"book2text", L"E-books", L"fb2,pdb", L"%1"},
    {"pandoc", L"E-books and notebooks", L"epub,ipynb", L"-t plain %1"},
    {"archmage", L"Compiled HTML help", L"chm", L"-d %1"},
    {"html2text", L"Web pages", L"html,htm,xhtml", L"-utf8 %1"},
    {"w3m", L"Web pages", L"html,htm,xhtml", L"-dump -T text/html -O UTF-8 %1"},
    {"msgconvert", L"Outlook messages", L"msg", L"--outfile - %1"},
    {"sqlite3", L"SQLite databases", L"sqlite,sqlite3", L"-readonly %1 .dump"},
    {"exiftool", L"Picture, sound and film facts",
     L"jpg,jpeg,tif,tiff,png,heic,mp3,m4a,flac,mp4,mov,avi", L"-charset UTF8 -a %1"},
    {"detex", L"TeX sources", L"tex,ltx", L"%1", true},
    {"deroff", L"Manual page sources", L"man,roff", L"%1", true},
};

std::vector<std::wstring> SplitExtensions(std::wstring_view list) {
  std::vector<std::wstring> extensions;
  while (!list.empty()) {
    const std::size_t length = std::min(list.find(L','), list.size());
    extensions.emplace_back(list.substr(0, length));
    list.remove_prefix(std::min(length + 1, list.size()));
  }
  return extensions;
}

/// The search path is looked through once for each program.
std::vector<DocumentFilter> FindExtractors() {
  std::vector<DocumentFilter> filters;
  std::set<std::wstring> known;
  for (const Extractor& extractor : kExtractors) {
    const std::optional<std::string> path = FindProgram(extractor.program);
    if (!path) continue;
    const std::wstring name = extractor.reads + (L" (" + FromUtf8(extractor.program) + L")");
    for (const std::wstring& extension : SplitExtensions(extractor.extensions)) {
      if (!known.insert(extension).second) continue;
      filters.push_back({extension, name, FromUtf8(*path), extractor.arguments, extractor.text});
    }
  }
  std::sort(filters.begin(), filters.end(),
            [](const auto& a, const auto& b) { return a.extension < b.extension; });
  return filters;
}

std::wstring WithoutDots(std::wstring_view extension) {
  constexpr std::wstring_view kTrimmed = L". ";
  const std::size_t first = extension.find_first_not_of(kTrimmed);
  if (first == extension.npos) return {};
  return std::wstring(extension.substr(first, extension.find_last_not_of(kTrimmed) - first + 1));
}

std::vector<DocumentFilter> Checked(std::vector<DocumentFilter> filters) {
  std::set<std::wstring> known = {L""};
  std::erase_if(filters, [&known](DocumentFilter& filter) {
    filter.extension = WithoutDots(filter.extension);
    return !known.insert(filter.extension).second;
  });
  return filters;
}

}  // namespace

std::vector<DocumentFilter> FindDocumentFilters() {
  if (auto dictated = GetMachine().DocumentFilters()) return Checked(std::move(*dictated));
  return FindExtractors();
}

}  // namespace HOLLERIN
