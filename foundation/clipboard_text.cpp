#include "foundation/clipboard_text.h"

#include <cstring>

#include "foundation/exception.h"
#include "platform/message_box.h"

namespace {

/// A memory block until the clipboard takes it over.
class ClipboardMemory {
 public:
  explicit ClipboardMemory(std::size_t bytes)
      : memory_(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, bytes)) {}
  ~ClipboardMemory() {
    if (memory_ != nullptr) GlobalFree(memory_);
  }
  ClipboardMemory(const ClipboardMemory&) = delete;
  ClipboardMemory& operator=(const ClipboardMemory&) = delete;

  HGLOBAL Get() const { return memory_; }
  void Release() { memory_ = nullptr; }

 private:
  HGLOBAL memory_;
};

/// The clipboard while it is this library's; given back on every way out.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) : open_(OpenClipboard(owner)) {}
  ~OpenedClipboard() { Close(); }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;

  bool IsOpen() const { return open_ != FALSE; }
  BOOL Close() {
    if (!open_) return TRUE;
    open_ = FALSE;
    return CloseClipboard();
  }

 private:
  BOOL open_;
};

/// Whole characters and a terminating zero.
std::size_t BlockSize(std::size_t bytes) {
  const std::size_t characters = (bytes + sizeof(wchar_t) - 1) / sizeof(wchar_t);
  return (characters + 1) * sizeof(wchar_t);
}

HRESULT Succeeded(bool done) { return done ? S_OK : E_FAIL; }

}  // namespace

HRESULT CopyToClipboard(const void* bytes, std::size_t count, HWND owner) {
  if (count == 0) return E_FAIL;
  ClipboardMemory memory(BlockSize(count));
  ThrowHr(Succeeded(memory.Get() != nullptr), L"Allocating memory to put into clipboard");
  void* target = GlobalLock(memory.Get());
  ThrowHr(Succeeded(target != nullptr), L"Locking memory to put into clipboard");
  std::memcpy(target, bytes, count);
  GlobalUnlock(memory.Get());

  OpenedClipboard clipboard(owner);
  ThrowHr(Succeeded(clipboard.IsOpen()), L"Opening clipboard");
  ThrowHr(Succeeded(EmptyClipboard()), L"Emptying clipboard");
  ThrowHr(Succeeded(SetClipboardData(CF_UNICODETEXT, memory.Get())), L"Setting clipboard data");
  memory.Release();
  ThrowHr(Succeeded(clipboard.Close()), L"Saving data to clipboard");
  return S_OK;
}

HRESULT CopyTextToClipboard(const CString& text, HWND owner) {
  return CopyToClipboard(text.GetString(), text.Str().size() * sizeof(wchar_t), owner);
}
