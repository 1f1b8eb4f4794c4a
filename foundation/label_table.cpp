#include "foundation/label_table.h"

#include <algorithm>

#include "foundation/language.h"

CString LabelText(const LabelRow& row) {
  return row.string != 0 ? LanguageString(row.string) : CString(row.fallback);
}

CString LabelOf(std::span<const LabelRow> table, std::int32_t id) {
  const auto row = std::ranges::find(table, id, &LabelRow::id);
  return row != table.end() ? LabelText(*row) : CString(L"<invalid>");
}

std::int32_t IdOf(std::span<const LabelRow> table, const CString& label) {
  const auto row = std::ranges::find(table, label, LabelText);
  return row != table.end() ? row->id : -1;
}
