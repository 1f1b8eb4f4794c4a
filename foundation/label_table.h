#pragma once

// Label tables: the choices of a combo box as ids with texts, in the order in which they are shown.

#include <cstdint>
#include <span>

#include "platform/text.h"

struct LabelRow {
  std::int32_t id = 0;
  std::uint32_t string = 0;           ///< Language string number of the label; 0 for none.
  const wchar_t* fallback = nullptr;  ///< The label when `string` is 0; up to 50 characters.
};

/// The label that a row shows.
CString LabelText(const LabelRow& row);

/// The label of the first row with that id; "<invalid>" when no row has it.
CString LabelOf(std::span<const LabelRow> table, std::int32_t id);

/// The id of the first row whose label is exactly that text, case included; -1 when none is.
std::int32_t IdOf(std::span<const LabelRow> table, const CString& label);
