#include "hollerin/default_configuration.h"

namespace HOLLERIN {
namespace {

struct Row {
  const wchar_t* section;
  const wchar_t* key;
  std::variant<bool, std::int32_t> value;
};

constexpr Row kConfiguration[] = {
    // Search modes, and the sort that follows the search: column -1 is none.
    {L"Options", L"OnePhaseSearch", 0},
    {L"Options", L"DeferredSortCol", -1},
    {L"Options", L"DeferredSortAsc", 1},
    {L"Options", L"SearchAsYouType", 0},
    {L"Options", L"SearchAsYouTypeTextTab", 0},
    {L"Options", L"ShowHitCount", false},
    // Memory: megabytes, then lines and characters from which on results are reduced.
    {L"MemMgr", L"ApplyToCurrent", false},
    {L"MemMgr", L"UseMemMgr", true},
    {L"MemMgr", L"UseDefault", true},
    {L"MemMgr", L"MaxSearchMem", 500},
    {L"MemMgr", L"ReduceLines", 10000},
    {L"MemMgr", L"ReduceChars", 1000},
    // Greatest number of entries that the histories of drop-down lists keep.
    {L"Options", L"MaxDropDownHistory", 25},
    // Expressions.
    {L"Options", L"LikeSimilarity", 1},
    {L"Options", L"MaxNearDistance", 10},
    {L"Options", L"DOSStrict", false},
    {L"Options", L"DOSImplyBoundary", false},
    {L"Options", L"UseClassicRE", false},
    {L"Options", L"UseCharacterCollation", false},
    {L"Options", L"RegExMaxLines", 1000},
    {L"Options", L"HashingAlgorithms", 1},
};

}  // namespace

Values ShippedConfiguration() {
  Values values;
  for (const Row& row : kConfiguration) {
    std::visit([&](auto value) { values[row.section][row.key] = value; }, row.value);
  }
  return values;
}

Values ShippedMasterConfiguration(bool portable, const std::wstring& appFolder) {
  const bool besideProgram = portable && !appFolder.empty();
  return {{L"FOLDERS", {{L"CacheFolder", besideProgram ? appFolder + L"cache/" : std::wstring()}}}};
}

}  // namespace HOLLERIN
