#pragma once

// The table of the values of a page or dialog. One row says where the store keeps a value, in which
// type and with which default, and which control shows it how; the frame of the pages
// (value_page.h) does the rest, and a dialog that is no page exchanges its Values itself. Rows are
// checked when the table is compiled.
//
//   constexpr auto kValues = page_values::MakeTable({
//       {L"Options", L"ShowHitCount", Bool(false), Check(IDC_SHOW_HIT_COUNT), 2},
//       {L"Options", L"MaxLineLength", Int(0), Number(IDC_MAX_LINE, {10, 9999999}), 1},
//   });
//
// Values are read in table order. The last two numbers of a row are its place (from 1) in the
// writing order and in the order in which the controls are exchanged; a table that leaves one of
// them out everywhere writes or exchanges in table order.

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "foundation/label_table.h"
#include "ifc/config_data_mgr.h"
#include "platform/data_exchange.h"

namespace page_values {

enum class Type : std::uint8_t { kBool, kInt, kText };

/// How the store keeps a value.
struct Stored {
  Type readAs = Type::kInt;
  Type writtenAs = Type::kInt;
  int number = 0;             ///< Default of a boolean or integer.
  const wchar_t* text = L"";  ///< Default of a text.
  int defaultRow = -1;        ///< The earlier row whose value is the default; -1 for none.
  bool read = true;           ///< Whether a load reads the value and shows it.
};

constexpr Stored Bool(bool defaultValue) {
  return {Type::kBool, Type::kBool, defaultValue ? 1 : 0};
}
/// Read as a boolean and written as the integer 0 or 1.
constexpr Stored BoolWrittenAsInt(bool defaultValue) {
  return {Type::kBool, Type::kInt, defaultValue ? 1 : 0};
}
constexpr Stored Int(int defaultValue) { return {Type::kInt, Type::kInt, defaultValue}; }
/// An integer whose default is the value just read for the row with that 0-based number.
constexpr Stored IntDefaultingToRow(int row) { return {Type::kInt, Type::kInt, 0, L"", row}; }
constexpr Stored Text(const wchar_t* defaultValue = L"") {
  return {Type::kText, Type::kText, 0, defaultValue};
}

/// A value that a load neither reads nor shows, because the page fills the control from elsewhere.
constexpr Stored Unread(Stored stored) {
  stored.read = false;
  return stored;
}

/// The numbers that a save accepts, bounds included. With `onlyWhileChecked` they are checked only
/// while that check box is set.
struct Range {
  int minimum = 0;
  int maximum = 0;
  int onlyWhileChecked = 0;
};

enum class Kind : std::uint8_t {
  kCheck,
  kRadio,
  kNumber,
  kSlider,
  kEdit,
  kExtensions,
  kLabels,
  kRow,
  kIndex,
  kBits,
  kColour
};

/// Which control shows a value, and how.
struct Control {
  Kind kind = Kind::kCheck;
  int id = 0;
  bool inverted = false;  ///< The control shows the opposite of a boolean.
  bool flag = false;      ///< Any integer above 0 counts as checked; written as 0 or 1.
  int buttons = 0;        ///< Radio buttons of the group, or rows of the combo box.
  bool ranged = false;
  Range range{};
  std::span<const LabelRow> labels{};
  std::span<const std::int32_t> offered{};  ///< Ids that can be chosen, in order; empty for all.
  std::span<const int> boxes{};
  int unit = 1;   ///< The edit of a number shows multiples of this, rounded towards 0 ...
  int usual = 0;  ///< ... and, unless it is 0, this where the stored number is not above 0.
  std::span<const int> numbers{};  ///< What the radio buttons stand for; empty for their indexes.
};

/// A check box. A boolean is true exactly when the box is checked; an integer is the box's state.
constexpr Control Check(int id) { return {Kind::kCheck, id}; }
/// A check box that is checked when the boolean is false.
constexpr Control InvertedCheck(int id) {
  return {.kind = Kind::kCheck, .id = id, .inverted = true};
}
/// A check box for an integer that counts as set when it is above 0.
constexpr Control FlagCheck(int id) { return {.kind = Kind::kCheck, .id = id, .flag = true}; }
/// The group of `buttons` radio buttons that starts with `first`. An integer is the index of the
/// checked button, shown as 0 when it names none; a boolean is true when the index is not 0.
constexpr Control Radio(int first, int buttons) {
  return {.kind = Kind::kRadio, .id = first, .buttons = buttons};
}
/// A group of radio buttons that stand for these integers, in order. Any other integer is shown as
/// the first of them, and no choice is saved as the first of them.
constexpr Control RadioOf(int first, std::span<const int> numbers) {
  return {.kind = Kind::kRadio,
          .id = first,
          .buttons = static_cast<int>(numbers.size()),
          .numbers = numbers};
}
/// Two radio buttons for a boolean that is true when the first one is checked.
constexpr Control InvertedRadio(int first) {
  return {.kind = Kind::kRadio, .id = first, .inverted = true, .buttons = 2};
}
/// An edit with a decimal integer.
constexpr Control Number(int id, Range range) {
  return {.kind = Kind::kNumber, .id = id, .ranged = true, .range = range};
}
/// An edit with the kilobytes of a number of bytes; `usual` kilobytes stand for no stored number.
constexpr Control Kilobytes(int id, Range range, int usual) {
  Control control = Number(id, range);
  control.unit = 1024;
  control.usual = usual;
  return control;
}
constexpr Control Slider(int id, Range range) {
  return {.kind = Kind::kSlider, .id = id, .ranged = true, .range = range};
}
/// An edit whose text is the value, as it stands.
constexpr Control Edit(int id) { return {Kind::kEdit, id}; }
/// An edit of several lines for a list of file extensions (extension_list.h), one on each line.
constexpr Control Extensions(int id) { return {Kind::kExtensions, id}; }
/// A combo box that shows the label of an id. The page fills it; an id without a label shows no
/// selection, and a text that is no label is written as -1.
constexpr Control Labels(int id, std::span<const LabelRow> labels) {
  return {.kind = Kind::kLabels, .id = id, .labels = labels};
}
/// As Labels, with only these ids to choose from, in this order. Another id of the table is shown
/// as the first of them.
constexpr Control SomeLabels(int id, std::span<const LabelRow> labels,
                             std::span<const std::int32_t> offered) {
  return {.kind = Kind::kLabels, .id = id, .labels = labels, .offered = offered};
}
/// A combo box whose row numbers, from 0 on, are the values; any other value, and no selection, is
/// 0. The page fills it with `rows` rows.
constexpr Control ChosenRow(int id, int rows) {
  return {.kind = Kind::kRow, .id = id, .buttons = rows};
}
/// A combo box that shows the labels in their order and whose selected row is the value. A value
/// without a row selects none, and no selection is written as -1.
constexpr Control Index(int id, std::span<const LabelRow> labels) {
  return {.kind = Kind::kIndex, .id = id, .labels = labels};
}
/// One check box for each bit of an integer, lowest bit first. Other bits are not carried over.
constexpr Control Bits(std::span<const int> boxes) {
  return {.kind = Kind::kBits, .id = boxes[0], .boxes = boxes};
}
/// A colour button for a COLORREF kept as an integer.
constexpr Control Colour(int id) { return {.kind = Kind::kColour, .id = id}; }

struct Row {
  const wchar_t* section = L"";
  const wchar_t* key = L"";
  Stored stored{};
  Control control{};
  int written = 0;
  int exchanged = 0;
};

using Order = std::span<const std::uint8_t>;

/// A table with its orders worked out: row numbers in the order of writing and of exchange.
template <std::size_t kRows>
struct Table {
  std::array<Row, kRows> rows{};
  std::array<std::uint8_t, kRows> written{};
  std::array<std::uint8_t, kRows> exchanged{};
};

/// A table of any length. The table must outlive it; tables are constants.
struct TableView {
  TableView() = default;
  template <std::size_t kRows>
  constexpr TableView(const Table<kRows>& table)
      : rows(table.rows), written(table.written), exchanged(table.exchanged) {}

  std::span<const Row> rows;
  Order written;
  Order exchanged;
};

namespace checks {

consteval bool OffersKnownIds(const Control& control) {
  for (const std::int32_t id : control.offered) {
    bool known = false;
    for (const LabelRow& label : control.labels) known = known || label.id == id;
    if (!known) return false;
  }
  return true;
}

consteval bool Fits(const Row& row, int index) {
  const bool isText = row.stored.readAs == Type::kText;
  const bool isBool = row.stored.readAs == Type::kBool;
  const Control& control = row.control;
  if (control.id <= 0 || row.stored.defaultRow >= index) return false;
  if (control.inverted && !isBool) return false;
  if ((control.flag || !control.numbers.empty()) && isBool) return false;
  if (control.ranged && control.range.minimum > control.range.maximum) return false;
  constexpr int kGreatest = 0x7FFFFFFF;
  if (control.unit < 1 || (control.unit > 1 && control.range.maximum > kGreatest / control.unit)) {
    return false;
  }
  switch (control.kind) {
    case Kind::kCheck:
      return !isText;
    case Kind::kRadio:
      return !isText && control.buttons >= 2 && (!isBool || control.buttons == 2);
    case Kind::kEdit:
    case Kind::kExtensions:
      return isText;
    case Kind::kNumber:
    case Kind::kSlider:
    case Kind::kColour:
      return !isText && !isBool;
    case Kind::kLabels:
      return !isText && !isBool && !control.labels.empty() && OffersKnownIds(control);
    case Kind::kRow:
      return !isText && !isBool && control.buttons >= 1;
    case Kind::kIndex:
      return !isText && !isBool && !control.labels.empty();
    case Kind::kBits:
      return !isText && !isBool && control.boxes.size() <= 31;
  }
  return false;
}

/// Puts the row numbers in the order of their places; every place from 1 on is taken once.
template <std::size_t kRows>
consteval std::array<std::uint8_t, kRows> Sort(const Row (&rows)[kRows], int Row::*place) {
  std::array<std::uint8_t, kRows> order{};
  std::array<bool, kRows> taken{};
  for (std::size_t index = 0; index < kRows; ++index) {
    const std::size_t at =
        rows[0].*place == 0 ? index : static_cast<std::size_t>(rows[index].*place - 1);
    if (rows[0].*place == 0 && rows[index].*place != 0)
      throw "some rows name their place, others do not";
    if (at >= kRows || taken[at])
      throw "the places of the rows are not 1, 2, 3 and so on, each once";
    taken[at] = true;
    order[at] = static_cast<std::uint8_t>(index);
  }
  return order;
}

}  // namespace checks

template <std::size_t kRows>
consteval Table<kRows> MakeTable(const Row (&rows)[kRows]) {
  static_assert(kRows <= 255);
  Table<kRows> table;
  for (std::size_t index = 0; index < kRows; ++index) {
    if (!checks::Fits(rows[index], static_cast<int>(index)))
      throw "the control cannot show this value";
    table.rows[index] = rows[index];
  }
  table.written = checks::Sort(rows, &Row::written);
  table.exchanged = checks::Sort(rows, &Row::exchanged);
  return table;
}

/// The values of a table on their way between store and controls; lives for one exchange.
class Values {
 public:
  /// Reads every value in table order, except those that a load leaves alone.
  Values(const TableView& table, INTERNAL_IFC::IConfigDataMgr& store);
  /// Exchanges every control; a save checks the ranges and raises CUserException at the first
  /// value that is refused.
  void Exchange(CDataExchange* exchange);
  void Write(INTERNAL_IFC::IConfigDataMgr& store) const;

 private:
  struct Value {
    int number = 0;  ///< As the store has it; a boolean is 0 or 1.
    CString text;
  };
  void Read(const Row& row, Value& value, INTERNAL_IFC::IConfigDataMgr& store) const;

  TableView table_;
  std::vector<Value> values_;
};

/// The number that the control shows for a stored one, and the other way round.
int ToControl(const Row& row, int stored);
int ToStored(const Row& row, int shown);

}  // namespace page_values
