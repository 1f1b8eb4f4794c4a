// What is found on the machine: document filters and recognition languages.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>

#include "hollerin/hollerin.h"
#include "hollerin/temporary_folder.h"
#include "platform/find_program.h"
#include "support/fake_machine.h"

namespace {

using namespace HOLLERIN;
using Texts = std::vector<std::wstring>;

/// An environment variable that is put back at the end.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const std::string& value) : name_(name) {
    if (const char* const old = std::getenv(name)) old_ = old;
    setenv(name, value.c_str(), 1);
  }
  ~ScopedVariable() { old_ ? setenv(name_, old_->c_str(), 1) : unsetenv(name_); }

 private:
  const char* name_;
  std::optional<std::string> old_;
};

void PutProgram(const std::filesystem::path& path, mode_t mode = 0755) {
  Put(path, "#!/bin/sh\n");
  chmod(path.c_str(), mode);
}

Texts Extensions(INTERNAL_IFC::IFilterMgr& manager, bool excludeText) {
  Texts extensions = {L"left over"};
  EXPECT_EQ(manager.GetFilterExtensions(extensions, excludeText), S_OK);
  return extensions;
}

/// Name and location.
std::pair<std::wstring, std::wstring> Filter(INTERNAL_IFC::IFilterMgr& manager,
                                             const std::wstring& extension) {
  std::pair<std::wstring, std::wstring> filter = {L"?", L"?"};
  EXPECT_EQ(manager.GetFilterName(extension, filter.first), S_OK);
  EXPECT_EQ(manager.GetFilterLocation(extension, filter.second), S_OK);
  return filter;
}

std::shared_ptr<INTERNAL_IFC::IFilterMgr> FilterManager() {
  std::shared_ptr<INTERNAL_IFC::IFilterMgr> manager;
  EXPECT_EQ(CreateFilterMgr(&manager, nullptr), S_OK);
  return manager;
}

TEST(FindProgram, TheFirstFolderWithAProgramOfThatNameCounts) {
  const TemporaryFolder a, b;
  PutProgram(a / "data", 0644);
  std::filesystem::create_directory(a / "folder");
  PutProgram(b / "data");
  PutProgram(b / "folder");
  PutProgram(a / "both");
  PutProgram(b / "both");
  const std::string first = a.Path(), second = b.Path();
  const ScopedVariable path("PATH", ":relative:" + first + ":/missing:" + second + "/");
  EXPECT_EQ(FindProgram("data"), second + "/data");
  EXPECT_EQ(FindProgram("folder"), second + "/folder");
  EXPECT_EQ(FindProgram("both"), first + "/both");
  for (const char* name : {"", "none", "/bin/sh", "../both"}) {
    EXPECT_FALSE(FindProgram(name)) << name;
  }
}

TEST(DocumentFilters, ProgramsOnTheSearchPathAreFilters) {
  const TemporaryFolder folder;
  const ScopedVariable path("PATH", folder.Path());
  const auto manager = FilterManager();
  EXPECT_EQ(Extensions(*manager, false), Texts());
  for (const char* program : {"pdftotext", "catdoc", "detex"}) PutProgram(folder / program);
  EXPECT_EQ(Extensions(*manager, false), (Texts{L"doc", L"dot", L"ltx", L"pdf", L"tex"}));
  EXPECT_EQ(Extensions(*manager, true), (Texts{L"doc", L"dot", L"pdf"}));
  EXPECT_EQ(Filter(*manager, L"PDF").second, (folder / "pdftotext").wstring());
  EXPECT_EQ(Filter(*manager, L"doc").second, (folder / "catdoc").wstring());
  PutProgram(folder / "antiword");
  EXPECT_EQ(Extensions(*manager, true), (Texts{L"doc", L"dot", L"pdf"}));
  EXPECT_EQ(Filter(*manager, L"doc").second, (folder / "antiword").wstring());
  EXPECT_EQ(Filter(*manager, L"dot").second, (folder / "catdoc").wstring());
  EXPECT_EQ(Filter(*manager, L"xls"), (std::pair<std::wstring, std::wstring>()));
}

TEST(DocumentFilters, TheMachineDictatesThem) {
  ScopedMachine machine;
  machine->filters = {{L"zoo", L"Zoo", L"/z"},
                      {L".doc", L"Words", L"/w"},
                      {L"doc", L"Twice", L"/t"},
                      {L" ", L"Blank", L"/b"},
                      {L"txt", L"Plain", L"", L"", true}};
  const auto manager = FilterManager();
  EXPECT_EQ(Extensions(*manager, false), (Texts{L"zoo", L"doc", L"txt"}));
  EXPECT_EQ(Extensions(*manager, true), (Texts{L"zoo", L"doc"}));
  EXPECT_EQ(Filter(*manager, L"Doc").first, L"Words");
  EXPECT_EQ(Filter(*manager, L"txt").second, L"");
}

class OcrLanguages : public testing::Test {
 protected:
  /// The codes that are available, or all.
  static Texts Codes(bool all = false) {
    std::shared_ptr<INTERNAL_IFC::IOCRLangMap> map;
    EXPECT_EQ(LoadOCRLangMap(&map), S_OK);
    std::vector<std::shared_ptr<INTERNAL_IFC::IOCRLanguage>> languages;
    EXPECT_EQ(map->GetLanguages(languages), S_OK);
    Texts codes;
    for (const auto& language : languages) {
      if (all || language->IsAvailable()) codes.push_back(language->GetCode());
    }
    return codes;
  }
  static std::wstring Name(const wchar_t* code) {
    std::shared_ptr<INTERNAL_IFC::IOCRLangMap> map;
    EXPECT_EQ(LoadOCRLangMap(&map), S_OK);
    std::shared_ptr<INTERNAL_IFC::IOCRLanguage> language;
    EXPECT_EQ(map->FindLanguage(language, code), S_OK);
    return language == nullptr ? L"(none)" : language->GetDisplayName();
  }
};

TEST_F(OcrLanguages, ALanguageIsAvailableWhereItsDataLie) {
  const TemporaryFolder folder;
  const ScopedVariable prefix("TESSDATA_PREFIX", folder.Path());
  EXPECT_EQ(Codes(), Texts());
  EXPECT_GT(Codes(true).size(), 100U);
  for (const char* file : {"eng.traineddata", "deu.traineddata", "osd.traineddata",
                           "own.traineddata", "fra.txt", "ita"}) {
    Put(folder / file, "");
  }
  std::filesystem::create_directory(folder / "spa.traineddata");
  EXPECT_EQ(Codes(), (Texts{L"deu", L"eng", L"own"}));
  EXPECT_EQ(Name(L"chi_sim"), L"Chinese (simplified)");
  EXPECT_EQ(Name(L"own"), L"own");
  EXPECT_EQ(Name(L"osd"), L"(none)");
  EXPECT_EQ(Name(L"ENG"), L"(none)");
  // Older engines name the folder around the data.
  std::filesystem::create_directory(folder / "tessdata");
  Put(folder / "tessdata" / "fin.traineddata", "");
  EXPECT_EQ(Codes(), Texts{L"fin"});
}

TEST_F(OcrLanguages, TheMachineDictatesThem) {
  ScopedMachine machine;
  machine->languages = {{L"xx", L"Xish", true}, {L"eng", L"English", false}};
  EXPECT_EQ(Codes(true), (Texts{L"xx", L"eng"}));
  EXPECT_EQ(Codes(), Texts{L"xx"});
  EXPECT_EQ(Name(L"xx"), L"Xish");
}

TEST(MachineSources, EveryOperationFailsWhenTheMachineSaysSo) {
  ScopedMachine machine;
  machine->filters = {{L"doc", L"Words", L"/w"}};
  machine->languages = {{L"eng", L"English", true}};
  const auto filters = FilterManager();
  std::shared_ptr<INTERNAL_IFC::IFilterMgr> otherFilters;
  std::shared_ptr<INTERNAL_IFC::IOCRLangMap> languages, otherLanguages;
  ASSERT_EQ(LoadOCRLangMap(&languages), S_OK);
  Texts extensions;
  std::wstring text;
  std::vector<std::shared_ptr<INTERNAL_IFC::IOCRLanguage>> all;
  std::shared_ptr<INTERNAL_IFC::IOCRLanguage> language;
  const std::pair<const wchar_t*, std::function<HRESULT()>> calls[] = {
      {L"CreateFilterMgr", [&] { return CreateFilterMgr(&otherFilters, nullptr); }},
      {L"GetFilterExtensions", [&] { return filters->GetFilterExtensions(extensions, false); }},
      {L"GetFilterLocation", [&] { return filters->GetFilterLocation(L"doc", text); }},
      {L"GetFilterName", [&] { return filters->GetFilterName(L"doc", text); }},
      {L"LoadOCRLangMap", [&] { return LoadOCRLangMap(&otherLanguages); }},
      {L"GetLanguages", [&] { return languages->GetLanguages(all); }},
      {L"FindLanguage", [&] { return languages->FindLanguage(language, L"eng"); }},
  };
  for (const auto& [name, call] : calls) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(name)));
    EXPECT_EQ(call(), S_OK);
    machine->fails = name;
    EXPECT_EQ(call(), E_FAIL);
    machine->fails.clear();
  }
  EXPECT_EQ(text, L"");
  EXPECT_TRUE(extensions.empty() && all.empty() && language == nullptr);
}

}  // namespace
