#include <QApplication>
#include <QClipboard>
#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <new>

#include "platform/message_box.h"
#include "platform/qt/peer.h"

namespace {

struct Block {
  std::unique_ptr<std::byte[]> bytes;
  std::size_t size = 0;
  unsigned locks = 0;
};

/// Handles count on and are never given twice, so that a stale one is found out.
std::map<HGLOBAL, Block>& Blocks() {
  static std::map<HGLOBAL, Block> blocks;
  return blocks;
}

Block* FindBlock(HGLOBAL memory) {
  const auto found = Blocks().find(memory);
  if (found != Blocks().end()) return &found->second;
  SetLastError(EINVAL);
  return nullptr;
}

bool clipboardOpen = false;

bool RequireOpen() {
  if (!clipboardOpen) SetLastError(EPERM);
  return clipboardOpen;
}

/// The text up to its zero, or to the end of a block without one.
std::wstring TextOf(const Block& block) {
  std::wstring text(block.size / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), block.bytes.get(), text.size() * sizeof(wchar_t));
  text.resize(std::min(text.find(L'\0'), text.size()));
  return text;
}

}  // namespace

BOOL OpenClipboard(HWND owner) {
  if (owner != nullptr && !IsWindow(owner)) {
    SetLastError(EINVAL);
    return FALSE;
  }
  if (clipboardOpen) {
    SetLastError(EBUSY);
    return FALSE;
  }
  clipboardOpen = true;
  return TRUE;
}

BOOL EmptyClipboard() {
  if (!RequireOpen()) return FALSE;
  QApplication::clipboard()->clear();
  return TRUE;
}

BOOL SetClipboardData(UINT format, HGLOBAL memory) {
  if (!RequireOpen()) return FALSE;
  const Block* block = FindBlock(memory);
  if (block == nullptr) return FALSE;
  if (format != CF_UNICODETEXT) {
    SetLastError(EINVAL);
    return FALSE;
  }
  QApplication::clipboard()->setText(ToQt(TextOf(*block)));
  GlobalFree(memory);
  return TRUE;
}

BOOL CloseClipboard() {
  if (!RequireOpen()) return FALSE;
  clipboardOpen = false;
  return TRUE;
}

HGLOBAL GlobalAlloc(UINT flags, std::size_t bytes) {
  Block block;
  // No object is larger than that; an empty block has an address as well.
  if (bytes < PTRDIFF_MAX) {
    const std::size_t size = std::max<std::size_t>(bytes, 1);
    block.bytes.reset(new (std::nothrow) std::byte[size]);
  }
  if (block.bytes == nullptr) {
    SetLastError(ENOMEM);
    return nullptr;
  }
  block.size = bytes;
  if ((flags & GMEM_ZEROINIT) != 0) std::memset(block.bytes.get(), 0, bytes);
  static std::uintptr_t last = 0;
  const auto handle = reinterpret_cast<HGLOBAL>(++last);
  Blocks().emplace(handle, std::move(block));
  return handle;
}

void* GlobalLock(HGLOBAL memory) {
  Block* block = FindBlock(memory);
  if (block == nullptr) return nullptr;
  ++block->locks;
  return block->bytes.get();
}

BOOL GlobalUnlock(HGLOBAL memory) {
  Block* block = FindBlock(memory);
  if (block == nullptr || block->locks == 0) return FALSE;
  return --block->locks != 0;
}

void GlobalFree(HGLOBAL memory) { Blocks().erase(memory); }
