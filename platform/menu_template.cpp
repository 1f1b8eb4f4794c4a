#include "platform/resource_reader.h"

namespace {

constexpr WORD kGrayed = 0x0001;
constexpr WORD kInactive = 0x0002;
constexpr WORD kPopup = 0x0010;
constexpr WORD kLast = 0x0080;

/// Far deeper than a person would follow; keeps damaged bytes from exhausting the stack.
constexpr int kMaxDepth = 32;

std::vector<MenuItemTemplate> ReadItems(ResourceReader& reader, int depth) {
  if (depth > kMaxDepth) reader.Refuse("the popups of a menu are nested too deeply");
  std::vector<MenuItemTemplate> items;
  WORD flags = 0;
  do {
    MenuItemTemplate item;
    flags = reader.Word("the flags of a menu item");
    item.grayed = (flags & (kGrayed | kInactive)) != 0;
    if ((flags & kPopup) == 0) item.command = reader.Word("the command of a menu item");
    item.text = reader.Text("the text of a menu item");
    if ((flags & kPopup) != 0) item.children = ReadItems(reader, depth + 1);
    items.push_back(std::move(item));
  } while ((flags & kLast) == 0);
  return items;
}

}  // namespace

std::vector<MenuItemTemplate> ReadMenuTemplate(ResourceReader reader) {
  if (reader.Word("the version of a menu") != 0) reader.Refuse("the menu is no plain template");
  reader.Bytes(reader.Word("the length of a menu's header"), "the header of a menu");
  return ReadItems(reader, 0);
}
