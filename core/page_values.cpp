#include "core/page_values.h"

#include <algorithm>

#include "core/extension_list.h"
#include "platform/bcg.h"
#include "platform/controls.h"

namespace page_values {

namespace {

void CheckRange(CDataExchange* exchange, const Control& control, int value) {
  if (!control.ranged) return;
  const Range& range = control.range;
  if (range.onlyWhileChecked != 0 &&
      exchange->m_pDlgWnd->IsDlgButtonChecked(range.onlyWhileChecked) == 0) {
    return;
  }
  DDV_MinMaxInt(exchange, value, range.minimum, range.maximum);
}

/// The id whose label stands for the given one.
int ShownId(const Control& control, int id) {
  const bool offered =
      control.offered.empty() || std::ranges::find(control.offered, id) != control.offered.end();
  const bool known = std::ranges::find(control.labels, id, &LabelRow::id) != control.labels.end();
  return known && !offered ? control.offered.front() : id;
}

void ExchangeLabel(CDataExchange* exchange, const Control& control, int& id) {
  CString label = LabelOf(control.labels, ShownId(control, id));
  DDX_CBStringExact(exchange, control.id, label);
  id = IdOf(control.labels, label);
}

void ExchangeBits(CDataExchange* exchange, const Control& control, int& bits) {
  int shown = 0;
  for (std::size_t bit = 0; bit < control.boxes.size(); ++bit) {
    int state = bits >> bit & 1;
    DDX_Check(exchange, control.boxes[bit], state);
    if (state == BST_CHECKED) shown |= 1 << bit;
  }
  bits = shown;
}

void ExchangeColour(CDataExchange* exchange, const Control& control, int& number) {
  auto colour = static_cast<COLORREF>(number);
  DDX_ColorButton(exchange, control.id, colour);
  number = static_cast<int>(colour);
}

void ExchangeText(CDataExchange* exchange, const Control& control, CString& stored) {
  if (control.kind == Kind::kEdit) return DDX_Text(exchange, control.id, stored);
  CString lines = ExtensionLines(stored.Str());
  DDX_Text(exchange, control.id, lines);
  stored = ExtensionList(lines.Str());
}

void ExchangeNumber(CDataExchange* exchange, const Row& row, int& stored) {
  const Control& control = row.control;
  int shown = ToControl(row, stored);
  switch (control.kind) {
    case Kind::kCheck:
      DDX_Check(exchange, control.id, shown);
      break;
    case Kind::kRadio:
      DDX_Radio(exchange, control.id, shown);
      break;
    case Kind::kSlider:
      DDX_Slider(exchange, control.id, shown);
      CheckRange(exchange, control, shown);
      break;
    case Kind::kLabels:
      ExchangeLabel(exchange, control, shown);
      break;
    case Kind::kRow:
    case Kind::kIndex:
      DDX_CBIndex(exchange, control.id, shown);
      break;
    case Kind::kBits:
      ExchangeBits(exchange, control, shown);
      break;
    case Kind::kColour:
      ExchangeColour(exchange, control, shown);
      break;
    default:
      DDX_Text(exchange, control.id, shown);
      CheckRange(exchange, control, shown);
  }
  stored = ToStored(row, shown);
}

int IndexOf(std::span<const int> numbers, int stored) {
  const auto found = std::ranges::find(numbers, stored);
  return found != numbers.end() ? static_cast<int>(found - numbers.begin()) : 0;
}

}  // namespace

int ToControl(const Row& row, int stored) {
  const Control& control = row.control;
  if (control.inverted) return stored == 0 ? 1 : 0;
  if (control.flag) return stored > 0 ? 1 : 0;
  if (!control.numbers.empty()) return IndexOf(control.numbers, stored);
  const bool counted = control.kind == Kind::kRadio || control.kind == Kind::kRow;
  if (counted && (stored < 0 || stored >= control.buttons)) return 0;
  if (control.usual != 0 && stored <= 0) return control.usual;
  return stored / control.unit;
}

int ToStored(const Row& row, int shown) {
  const Control& control = row.control;
  const bool isBool = row.stored.readAs == Type::kBool;
  if (control.inverted) return control.kind == Kind::kRadio ? shown == 0 : shown != BST_CHECKED;
  if (!control.numbers.empty()) {
    return control.numbers[static_cast<std::size_t>(std::max(shown, 0))];
  }
  if (control.kind == Kind::kRadio && isBool) return shown != 0 ? 1 : 0;
  if (isBool || control.flag) return shown == BST_CHECKED ? 1 : 0;
  if (control.kind == Kind::kRow && (shown < 0 || shown >= control.buttons)) return 0;
  return shown * control.unit;
}

Values::Values(const TableView& table, INTERNAL_IFC::IConfigDataMgr& store)
    : table_(table), values_(table.rows.size()) {
  for (std::size_t index = 0; index < values_.size(); ++index) {
    if (table_.rows[index].stored.read) Read(table_.rows[index], values_[index], store);
  }
}

void Values::Read(const Row& row, Value& value, INTERNAL_IFC::IConfigDataMgr& store) const {
  const Stored& stored = row.stored;
  switch (stored.readAs) {
    case Type::kBool:
      value.number = store.ReadBool(row.section, row.key, stored.number != 0) ? 1 : 0;
      break;
    case Type::kInt: {
      const bool other = stored.defaultRow >= 0;
      const int fallback =
          other ? values_[static_cast<std::size_t>(stored.defaultRow)].number : stored.number;
      value.number = store.ReadInt(row.section, row.key, fallback);
      break;
    }
    case Type::kText:
      value.text = store.ReadString(row.section, row.key, stored.text);
      break;
  }
}

void Values::Exchange(CDataExchange* exchange) {
  for (const std::uint8_t index : table_.exchanged) {
    const Row& row = table_.rows[index];
    if (!row.stored.read && !exchange->m_bSaveAndValidate) continue;
    Value& value = values_[index];
    if (row.stored.readAs == Type::kText) {
      ExchangeText(exchange, row.control, value.text);
    } else {
      ExchangeNumber(exchange, row, value.number);
    }
  }
}

void Values::Write(INTERNAL_IFC::IConfigDataMgr& store) const {
  for (const std::uint8_t index : table_.written) {
    const Row& row = table_.rows[index];
    const Value& value = values_[index];
    switch (row.stored.writtenAs) {
      case Type::kBool:
        store.WriteBool(row.section, row.key, value.number != 0);
        break;
      case Type::kInt:
        store.WriteInt(row.section, row.key, value.number);
        break;
      case Type::kText:
        store.WriteString(row.section, row.key, value.text.Str());
        break;
    }
  }
}

}  // namespace page_values
