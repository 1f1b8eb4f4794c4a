#include <algorithm>
#include <iterator>
#include <string_view>

#include "platform/resource_reader.h"

namespace {

/// Set in the style when the template names a font.
constexpr DWORD kStyleSetFont = 0x40;

/// Standard classes that a template names by number.
constexpr WORD kFirstClassNumber = 0x80;
constexpr const wchar_t* kNumberedClasses[] = {L"Button",  L"Edit",      L"Static",
                                               L"ListBox", L"ScrollBar", L"ComboBox"};

/// Classes whose spelling a resource compiler may have changed.
constexpr const wchar_t* kNamedClasses[] = {
    L"SysTreeView32",   L"SysListView32",     L"msctls_trackbar32",
    L"msctls_updown32", L"msctls_progress32", L"SysTabControl32",
    L"SysHeader32",     L"SysLink",           L"ComboBoxEx32"};

wchar_t LowerAscii(wchar_t c) { return c >= L'A' && c <= L'Z' ? c - L'A' + L'a' : c; }

bool SameClass(const std::wstring& a, std::wstring_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](wchar_t x, wchar_t y) { return LowerAscii(x) == LowerAscii(y); });
}

std::wstring DocumentedSpelling(const std::wstring& name) {
  for (const wchar_t* known : kNumberedClasses) {
    if (SameClass(name, known)) return known;
  }
  for (const wchar_t* known : kNamedClasses) {
    if (SameClass(name, known)) return known;
  }
  return name;
}

std::wstring ReadClass(ResourceReader& reader) {
  const ResourceReader start = reader;
  const ResourceName name = reader.Name("the class of a control");
  if (!name.isNumber) return DocumentedSpelling(name.text);
  const std::size_t index = static_cast<std::size_t>(name.number) - kFirstClassNumber;
  if (name.number < kFirstClassNumber || index >= std::size(kNumberedClasses)) {
    start.Refuse("a control has the unknown class number " + std::to_string(name.number));
  }
  return kNumberedClasses[index];
}

/// Compilers write "no number" as -1 in 16 or in 32 bits.
int ControlNumber(DWORD id) { return id == 0xFFFF ? -1 : static_cast<int>(id); }

DialogItemTemplate ReadItem(ResourceReader& reader) {
  DialogItemTemplate item;
  reader.Align();
  reader.Dword("the help number of a control");
  item.exStyle = reader.Dword("the extended style of a control");
  item.style = reader.Dword("the style of a control");
  for (int* side : {&item.x, &item.y, &item.cx, &item.cy}) {
    *side = reader.Short("the place of a control");
  }
  item.id = ControlNumber(reader.Dword("the number of a control"));
  item.className = ReadClass(reader);
  // A number instead of a text names an image, which has no text.
  item.text = reader.Name("the text of a control").text;
  reader.Bytes(reader.Word("the length of a control's creation data"),
               "the creation data of a control");
  return item;
}

}  // namespace

DialogTemplate ReadDialogTemplate(ResourceReader reader) {
  DialogTemplate dialog;
  const WORD version = reader.Word("the version of a dialog");
  const WORD signature = reader.Word("the signature of a dialog");
  if (version != 1 || signature != 0xFFFF) reader.Refuse("the dialog is no extended template");

  reader.Dword("the help number of a dialog");
  dialog.exStyle = reader.Dword("the extended style of a dialog");
  dialog.style = reader.Dword("the style of a dialog");
  const WORD count = reader.Word("the number of controls");
  for (int* side : {&dialog.x, &dialog.y, &dialog.cx, &dialog.cy}) {
    *side = reader.Short("the place of a dialog");
  }
  reader.Name("the menu of a dialog");
  reader.Name("the class of a dialog");
  dialog.title = reader.Text("the title of a dialog");
  if ((dialog.style & kStyleSetFont) != 0) {
    dialog.pointSize = reader.Word("the font size of a dialog");
    reader.Word("the font weight of a dialog");
    reader.Word("the font slant of a dialog");
    reader.Text("the font name of a dialog");
  }
  for (WORD i = 0; i < count; ++i) dialog.items.push_back(ReadItem(reader));
  return dialog;
}
