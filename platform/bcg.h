#pragma once

// The classes of the control library that the dialogs are written with: dialogs with its style and
// controls that know how to draw themselves.

#include "platform/controls.h"
#include "platform/data_exchange.h"
#include "platform/dialog.h"
#include "platform/message_box.h"

/// What the control library keeps for the whole process.
struct CBCGPGlobalData {
  /// Whether dialogs are drawn by the visual manager.
  bool m_bUseVisualManagerInBuiltInDialogs = false;
  /// The regular font of dialogs.
  CFont fontRegular;
  int GetTextHeight() const { return fontRegular.GetHeight(); }
};
CBCGPGlobalData& GetGlobalData();

class CBCGPGlobalUtils {
 public:
  /// A length for 96 logical pixels per inch in those of the screen.
  int ScaleByDPI(int pixels) const;
};
extern CBCGPGlobalUtils globalUtils;

class CBCGPDialog : public CDialog {
 public:
  using CDialog::CDialog;
  void EnableVisualManagerStyle(BOOL enable, BOOL controlsToo) {
    visualManagerStyle_ = enable != FALSE && controlsToo != FALSE;
  }
  /// Lets the dialog take part in resizing: it gets a sizing border and a size grip.
  void EnableLayout(BOOL enable = TRUE);
  /// Lays the dialog out once for its present size, by a size message.
  void AdjustControlsLayout();

 protected:
  bool visualManagerStyle_ = false;
};

class CBCGPStatic : public CStatic {
 protected:
  /// Makes the static known as a section heading, as which the class draws it.
  void MarkAsSeparator();
};
class CBCGPEdit : public CEdit {
 public:
  /// The user wants to browse for what the edit holds: Alt+Right was pressed.
  virtual void OnBrowse() {}

 protected:
  void OnSysKeyDown(UINT key, UINT repeats, UINT flags);
  DECLARE_MESSAGE_MAP()
};
class CBCGPTreeCtrl : public CTreeCtrl {};

class CBCGPComboBox : public CComboBox {
 public:
  /// Indent of the row's text in pixels.
  void SetItemIndent(int row, int pixels);
  int GetItemIndent(int row) const;
  /// Colour of the row's text in the dropped list.
  void SetItemColor(int row, COLORREF colour);
};

/// Bits of the state that a button is drawn in.
constexpr UINT ODS_SELECTED = 0x0001;
constexpr UINT ODS_DISABLED = 0x0004;
constexpr UINT ODS_CHECKED = 0x0008;
constexpr UINT ODS_FOCUS = 0x0010;

class CBCGPButton : public CButton {
 public:
  enum FlatStyle { BUTTONSTYLE_3D, BUTTONSTYLE_SEMIFLAT, BUTTONSTYLE_FLAT };
  FlatStyle m_nFlatStyle = BUTTONSTYLE_3D;

  /// Shows image `index` of the list instead of the text, which stays the button's accessible
  /// name. The list must outlive the button.
  void SetButtonImage(const CImageList& images, int index);
  /// Index of the image shown; -1 for none.
  int GetButtonImage() const;
  /// The size that holds the content: image and margin, or text.
  virtual CSize SizeToContent(BOOL calculateOnly = FALSE);

 protected:
  void PreSubclassWindow() override;
  /// The state to draw, before it is drawn; a button may show itself otherwise than it is.
  virtual UINT OnAdjustDrawState(UINT state) { return state; }
  /// Margin around the image in pixels on each side.
  virtual int ImageMargin() const { return 5; }

 private:
  friend class ButtonPainter;
};

/// A button that shows a colour and opens a palette to choose another one.
class CBCGPColorButton : public CBCGPButton {
 public:
  COLORREF GetColor() const { return colour_; }
  virtual void SetColor(COLORREF colour);
  /// Gives the palette an entry with that caption that opens the full colour dialog.
  void EnableOtherButton(const CString& caption);
  const CString& OtherCaption() const { return other_; }

 protected:
  void PreSubclassWindow() override;
  /// Draws the face inside the button's border.
  virtual void OnDrawFace(CDC* dc, const CRect& rect, UINT state);

 private:
  friend class ButtonPainter;
  friend class ColourPalette;
  COLORREF colour_ = 0;
  CString other_;
};

/// Exchanges the colour of the colour button that is attached to control `id`; one without a colour
/// button is left alone.
void DDX_ColorButton(CDataExchange* exchange, int id, COLORREF& value);
