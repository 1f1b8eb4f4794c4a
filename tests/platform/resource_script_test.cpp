#include "platform/resource_script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/module.h"
#include "script_builder.h"

namespace {

struct Item {
  unsigned id;
  std::u16string className;
  unsigned classNumber;
  std::u16string text;
  unsigned creationBytes;
};

Bytes Dialog(const std::vector<Item>& items, bool font) {
  Builder dialog;
  dialog.Words({1, 0xFFFF}).Dword(77).Dword(0x00010000).Dword(0x90C80000U | (font ? 0x48 : 0));
  dialog.Word(static_cast<unsigned>(items.size())).Words({0, 0xFFFF, 300, 200});
  dialog.Words({0, 0}).Text(u"{1}");
  if (font) dialog.Words({8, 400, 0x0100}).Text(u"MS Shell Dlg");
  for (const Item& item : items) {
    dialog.Align().Dword(0).Dword(0x20).Dword(0x50010000).Words({7, 8, 50, 14}).Dword(item.id);
    if (item.className.empty()) {
      dialog.Words({0xFFFF, item.classNumber});
    } else {
      dialog.Text(item.className);
    }
    if (item.text == u"#") {
      dialog.Words({0xFFFF, 5507});
    } else {
      dialog.Text(item.text);
    }
    dialog.Word(item.creationBytes);
    for (unsigned i = 0; i < item.creationBytes; ++i) dialog.bytes.push_back(std::byte(0xEE));
  }
  return dialog.bytes;
}

Bytes Menu() {
  Builder menu;
  menu.Words({0, 4}).Dword(0xAAAAAAAA);
  menu.Word(0x10).Text(u"{1}").Words({0, 35004}).Text(u"{2}").Words({0x81, 35005}).Text(u"{3}");
  return menu.Word(0x80).Word(9).Text(u"last").bytes;
}

Bytes Strings() {
  Builder block;
  for (int i = 0; i < 16; ++i) block.Counted(i == 7 ? u"{9}" : i == 15 ? u"\xD83D\xDD0D" : u"");
  return block.bytes;
}

const std::vector<Item> kItems = {
    {5300, u"BUTTON", 0, u"&Push", 0},     {0xFFFFFFFF, u"", 0x82, u"#", 3},
    {0xFFFF, u"SYSTREEVIEW32", 0, u"", 5}, {70000, u"", 0x85, u"x", 0},
    {5, u"MSCTLS_TRACKBAR32", 0, u"", 1},  {6, u"Own", 0, u"y", 0},
};

Bytes WholeScript() {
  Builder script = Script();
  script.Resource(kDialog, 5515, Dialog(kItems, true))
      .Resource(kDialog, 5516, Dialog(kItems, false));
  script.Resource(kMenu, 5512, Menu()).Resource(kString, 5031 / 16 + 1, Strings());
  return script.Resource(0, 5507, {std::byte(1), std::byte(2), std::byte(3)}, u"PNG").bytes;
}

std::size_t Aligned(std::size_t offset) { return (offset + 3) & ~std::size_t{3}; }

TEST(ResourceScript, ReadsDialogs) {
  const Bytes bytes = WholeScript();
  ResourceError error;
  const auto script = ResourceScript::Parse(bytes, error);
  ASSERT_NE(script, nullptr) << error.reason;
  for (const UINT id : {5515U, 5516U}) {
    const auto dialog = script->Dialog(id, error);
    ASSERT_TRUE(dialog.has_value()) << error.reason;
    EXPECT_EQ(dialog->title, L"{1}");
    EXPECT_EQ(dialog->exStyle, 0x00010000U);
    EXPECT_EQ(dialog->y, -1);
    EXPECT_EQ(dialog->cx, 300);
    EXPECT_EQ(dialog->pointSize, id == 5515 ? 8 : 0);
    const struct {
      int id;
      const wchar_t *className, *text;
    } expected[] = {{5300, L"Button", L"&Push"},    {-1, L"Static", L""},
                    {-1, L"SysTreeView32", L""},    {70000, L"ComboBox", L"x"},
                    {5, L"msctls_trackbar32", L""}, {6, L"Own", L"y"}};
    ASSERT_EQ(dialog->items.size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
      EXPECT_EQ(dialog->items[i].id, expected[i].id);
      EXPECT_EQ(dialog->items[i].className, expected[i].className);
      EXPECT_EQ(dialog->items[i].text, expected[i].text);
      EXPECT_EQ(dialog->items[i].style, 0x50010000U);
      EXPECT_EQ(dialog->items[i].cy, 14);
    }
  }
}

TEST(ResourceScript, ReadsMenusStringsAndData) {
  const Bytes bytes = WholeScript();
  ResourceError error;
  const auto script = ResourceScript::Parse(bytes, error);
  ASSERT_NE(script, nullptr) << error.reason;

  const auto menu = script->Menu(5512, error);
  ASSERT_TRUE(menu.has_value()) << error.reason;
  ASSERT_EQ(menu->size(), 2U);
  ASSERT_EQ(menu->front().children.size(), 2U);
  EXPECT_EQ(menu->front().text, L"{1}");
  EXPECT_EQ(menu->front().children[0].command, 35004U);
  EXPECT_FALSE(menu->front().children[0].grayed);
  EXPECT_TRUE(menu->front().children[1].grayed);
  EXPECT_EQ(menu->back().command, 9U);

  EXPECT_EQ(script->String(5031, error), L"{9}");
  EXPECT_EQ(script->String(5039, error), L"\U0001F50D");
  EXPECT_FALSE(script->String(5032, error).has_value()) << "its place in the block is empty";
  EXPECT_FALSE(script->String(0xFFFFFFFF, error).has_value());
  EXPECT_EQ(script->Data(L"png", 5507).size(), 3U);
  EXPECT_TRUE(script->Data(L"PNG", 1).empty());
  EXPECT_FALSE(script->Dialog(1, error).has_value());
  EXPECT_FALSE(script->Menu(5515, error).has_value()) << "a dialog is no menu";
  EXPECT_EQ(error.reason, "") << "what is missing is not damaged";
}

TEST(ResourceScript, RefusesEveryScriptThatEndsEarly) {
  const Bytes whole = WholeScript();
  std::vector<std::size_t> ends = {32};
  for (const Bytes& data : {Dialog(kItems, true), Dialog(kItems, false), Menu(), Strings()}) {
    const std::size_t header = Aligned(ends.back());
    ends.push_back(header + 32 + data.size());
  }
  for (std::size_t length = 0; length < whole.size() - 1; ++length) {
    // A copy of its own lets a sanitizer see a read behind the end.
    const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    ResourceError error;
    const bool accepted = ResourceScript::Parse(cut, error) != nullptr;
    // Between two resources nothing is missing but padding.
    const bool between = std::any_of(ends.begin(), ends.end(), [length](std::size_t end) {
      return length >= end && length <= Aligned(end);
    });
    EXPECT_EQ(accepted, between) << length;
    if (!accepted) {
      EXPECT_FALSE(error.reason.empty()) << length;
      EXPECT_LE(error.offset, length);
    }
  }
}

TEST(ResourceScript, RefusesEveryResourceThatEndsEarly) {
  const auto check = [](unsigned type, unsigned id, const Bytes& whole, auto read) {
    for (std::size_t length = 0; length <= whole.size(); ++length) {
      const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
      const Bytes bytes = Script().Resource(type, id, cut).bytes;
      ResourceError error;
      const auto script = ResourceScript::Parse(bytes, error);
      ASSERT_NE(script, nullptr);
      EXPECT_EQ(read(*script, error), length == whole.size()) << "type " << type << " " << length;
      EXPECT_EQ(error.reason.empty(), length == whole.size());
      EXPECT_LE(error.offset, 64 + length);
    }
  };
  check(kDialog, 1, Dialog(kItems, true), [](const ResourceScript& script, ResourceError& error) {
    return script.Dialog(1, error).has_value();
  });
  check(kMenu, 1, Menu(), [](const ResourceScript& script, ResourceError& error) {
    return script.Menu(1, error).has_value();
  });
  check(kString, 1, Strings(), [](const ResourceScript& script, ResourceError& error) {
    return script.String(15, error).has_value();
  });
}

TEST(ResourceScript, RefusesImpossibleContent) {
  Builder menu;
  menu.Words({0, 0});
  for (int i = 0; i < 1000; ++i) menu.Word(0x90).Text(u"");
  const struct {
    const char* what;
    unsigned type;
    Bytes data;
    const char* reason;
  } rows[] = {
      {"plain dialog", kDialog, Builder().Dword(0x90C80000).Dword(0).Dword(0).bytes,
       "the dialog is no extended template"},
      {"unknown class number", kDialog, Dialog({{1, u"", 0x86, u"", 0}}, true),
       "a control has the unknown class number 134"},
      {"extended menu", kMenu, Builder().Words({1, 4}).Dword(0).bytes,
       "the menu is no plain template"},
      {"endless popups", kMenu, menu.bytes, "the popups of a menu are nested too deeply"},
  };
  for (const auto& row : rows) {
    const Bytes bytes = Script().Resource(row.type, 1, row.data).bytes;
    ResourceError error;
    const auto script = ResourceScript::Parse(bytes, error);
    ASSERT_NE(script, nullptr) << row.what;
    const bool read = row.type == kDialog ? script->Dialog(1, error).has_value()
                                          : script->Menu(1, error).has_value();
    EXPECT_FALSE(read) << row.what;
    EXPECT_EQ(error.reason, row.reason);
  }

  ResourceError error;
  const Bytes unsigned_ = Builder().Resource(kMenu, 1, Menu()).bytes;
  EXPECT_EQ(ResourceScript::Parse(unsigned_, error), nullptr);
  EXPECT_EQ(error.reason, "the script does not start with the empty resource");
  Bytes wrong = WholeScript();
  wrong[36] = std::byte(0x24);
  EXPECT_EQ(ResourceScript::Parse(wrong, error), nullptr);
  EXPECT_EQ(error.offset, 32U);
  EXPECT_EQ(error.reason, "the header of a resource says that it has 36 bytes");
}

TEST(Module, IsCurrentForALifetimeAlsoWhenAnExceptionPasses) {
  const Bytes bytes = WholeScript();
  const CModule module(L"library", bytes);
  const AFX_MODULE_STATE state(&module);
  CString text;
  try {
    const AFX_MAINTAIN_STATE2 current(state);
    EXPECT_EQ(AfxGetResourceHandle(), &module);
    EXPECT_TRUE(text.LoadString(5031));
    EXPECT_EQ(AfxLoadResource(L"PNG", 5507).size(), 3U);
    EXPECT_EQ(AfxFindMenuModule(5512), &module);
    EXPECT_EQ(AfxFindMenuModule(5513), nullptr);
    throw 1;
  } catch (int) {
  }
  EXPECT_EQ(text, L"{9}");
  EXPECT_EQ(AfxGetResourceHandle(), nullptr);
  EXPECT_TRUE(AfxLoadResource(L"PNG", 5507).empty());
}

TEST(Module, ReportsADamagedScriptAndHasNoResources) {
  testing::internal::CaptureStderr();
  const Bytes bytes(40, std::byte(0));
  const CModule module(L"library", bytes);
  EXPECT_EQ(module.Resources(), nullptr);
  EXPECT_NE(testing::internal::GetCapturedStderr().find("library: the resources are damaged at "
                                                        "offset 0: the script does not start"),
            std::string::npos);
}

}  // namespace
