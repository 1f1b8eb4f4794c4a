#pragma once

// Fonts, drawing, images and image lists, and what is asked of the screen.

#include <memory>
#include <span>

#include "platform/geometry_types.h"
#include "platform/text.h"
#include "platform/types.h"

class CWnd;

constexpr int FW_NORMAL = 400;
constexpr int FW_BOLD = 700;
constexpr BYTE ANTIALIASED_QUALITY = 4;

struct LOGFONTW {
  LONG lfHeight = 0;  ///< Cell height in pixels when positive, character height when negative.
  LONG lfWeight = FW_NORMAL;
  BYTE lfQuality = 0;
  std::wstring lfFaceName;
};

/// A font; copies share the same one. Empty until created.
class CFont {
 public:
  CFont();
  ~CFont();
  CFont(const CFont&);
  CFont& operator=(const CFont&);

  BOOL CreateFontIndirect(const LOGFONTW& description);
  /// The system's interface font.
  BOOL CreateDialogFont();
  bool IsEmpty() const { return implementation_ == nullptr; }
  /// Height of the font's character cell in pixels.
  int GetHeight() const;

  struct Implementation;
  explicit CFont(std::shared_ptr<const Implementation> implementation);
  const Implementation* Get() const { return implementation_.get(); }

 private:
  std::shared_ptr<const Implementation> implementation_;
};

constexpr UINT DT_LEFT = 0x0000;
constexpr UINT DT_CENTER = 0x0001;
constexpr UINT DT_VCENTER = 0x0004;
constexpr UINT DT_WORDBREAK = 0x0010;
constexpr UINT DT_SINGLELINE = 0x0020;
constexpr UINT DT_END_ELLIPSIS = 0x8000;

/// A drawing surface, valid inside the message it came with; where its window is gone nothing is
/// drawn. Mnemonic marks ("&") are not shown.
class CDC {
 public:
  virtual ~CDC();
  CDC(const CDC&) = delete;
  CDC& operator=(const CDC&) = delete;

  /// Chooses the font of the texts drawn from here on.
  void SelectFont(const CFont& font);
  void SetTextColor(COLORREF colour);
  /// Draws inside the rectangle. DT_VCENTER and DT_END_ELLIPSIS need DT_SINGLELINE.
  void DrawText(const CString& text, const CRect& rect, UINT format);
  void FillSolidRect(const CRect& rect, COLORREF colour);
  CSize GetTextExtent(const CString& text) const;

  struct Implementation;

 protected:
  explicit CDC(std::unique_ptr<Implementation> implementation);
  std::unique_ptr<Implementation> implementation_;
};

/// The surface of a window inside its WM_PAINT handler. Starts with the window's own font.
class CPaintDC : public CDC {
 public:
  explicit CPaintDC(CWnd* window);
};

/// A system colour (COLOR_WINDOW ...) of the user's theme; black for an unknown number.
COLORREF GetSysColor(int index);

constexpr int LOGPIXELSX = 88;
constexpr int BITSPIXEL = 12;
constexpr int PLANES = 14;

/// A capability of the screen that shows the active window: logical pixels per inch, bits per
/// pixel, planes; 0 for an unknown one.
int GetScreenCaps(int index);

/// An image read from a PNG resource.
class CBCGPPngImage {
 public:
  CBCGPPngImage();
  ~CBCGPPngImage();
  /// Loads PNG resource `id` of the current module; FALSE when it is missing or damaged.
  BOOL Load(UINT id);
  /// Loads PNG bytes; FALSE when they are damaged.
  BOOL LoadFromMemory(std::span<const std::byte> bytes);
  CSize GetSize() const;

  struct Implementation;
  const Implementation* Get() const { return implementation_.get(); }

 private:
  std::unique_ptr<Implementation> implementation_;
};

constexpr UINT ILC_COLOR8 = 0x08;
constexpr UINT ILC_COLOR16 = 0x10;
constexpr UINT ILC_COLOR24 = 0x18;
constexpr UINT ILC_COLOR32 = 0x20;

/// Images of one size, numbered from 0.
class CImageList {
 public:
  CImageList();
  ~CImageList();
  CImageList(const CImageList&) = delete;
  CImageList& operator=(const CImageList&) = delete;

  /// Starts an empty list of images of cx by cy pixels; FALSE when a side is not positive. The
  /// colour depth in `flags` is the least that is asked for: images keep all their colours and
  /// their transparency. The counts only tell how much memory to expect.
  BOOL Create(int cx, int cy, UINT flags, int initial, int grow);
  /// Cuts a strip into images of the list's width and appends them; the index of the first one,
  /// -1 when the strip does not hold one image.
  int Add(const CBCGPPngImage& strip);
  int GetImageCount() const;
  CSize GetImageSize() const;

  struct Implementation;
  const Implementation* Get() const { return implementation_.get(); }

 private:
  std::unique_ptr<Implementation> implementation_;
};
