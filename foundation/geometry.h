#pragma once

// The layout engine: moves and stretches the controls of a dialog when its size changes.
//
// A dialog class that binds controls derives from Geometry::ILayout beside its dialog base and
// calls BindControls (or BindControl) right after its base's OnInitDialog. It is run as
// CGeometryWnd<T>, which supplies the operations; without that wrapper the class is abstract and
// does not compile.

#include <memory>
#include <span>
#include <string_view>

#include "foundation/layout_state.h"

namespace Geometry {

/// Limits the layout of a dialog from outside.
class IGeometryWnd {
 public:
  virtual ~IGeometryWnd() = default;
  /// Greatest client size, in pixels, that controls are laid out for; 0 means no limit.
  virtual void SetMaxLayoutSize(int cx, int cy) = 0;
};

/// What a dialog that lays out its controls can call.
class ILayout {
 public:
  virtual ~ILayout() = default;
  /// Binds control `id`; one that is bound already gets the new constraint and keeps its first
  /// rectangle. `parent` is the dialog. Always true.
  virtual bool BindControl(int id, CConstraint& constraint, CWnd* parent) = 0;
  /// Nothing when the control is not bound.
  virtual void UnbindControl(int id) = 0;
  /// As IGeometryWnd's.
  virtual void SetMaxLayoutSize(int cx, int cy) = 0;
  /// Switches layout on size messages off or on again; it starts on.
  virtual void EnableGeometry(bool enable) = 0;
  /// Lays the controls out for the last size message.
  virtual void ApplyLayout() = 0;
  virtual void UnbindAll() = 0;
};

/// One row of a dialog's table of bindings.
struct ControlConstraint {
  int id = 0;
  std::wstring_view text;  ///< A constraint text, such as "CX+Y".
};

/// Binds every control of the table, in order.
void BindControls(ILayout& layout, CWnd* dialog, std::span<const ControlConstraint> table);

/// A dialog whose controls are laid out. T derives from CBaseTranslateDialog and from ILayout.
template <class T>
class CGeometryWnd : public T, public IGeometryWnd {
 public:
  using T::T;

  bool BindControl(int id, CConstraint& constraint, CWnd* parent) override {
    state_.List().Bind(id, constraint, parent);
    return true;
  }
  void UnbindControl(int id) override { state_.List().Unbind(id); }
  void SetMaxLayoutSize(int cx, int cy) override { state_.SetMaximum(cx, cy); }
  void EnableGeometry(bool enable) override { state_.Enable(enable); }
  void ApplyLayout() override { state_.ApplyLayout(*this); }
  void UnbindAll() override { state_.List().UnbindAll(); }

 protected:
  /// Acts before the class's message map, and after its set-up.
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_GETMINMAXINFO) {
      state_.OnMinMaxInfo(*this, *reinterpret_cast<MINMAXINFO*>(lParam));
    } else if (message == WM_SIZE) {
      state_.OnSize(*this, static_cast<UINT>(wParam), CSize(static_cast<DWORD>(lParam)));
    }
    const LRESULT result = T::WindowProc(message, wParam, lParam);
    if (message == WM_INITDIALOG && IsWindow(this->m_hWnd)) state_.EndSetup(*this);
    return result;
  }

 private:
  CLayoutState state_;
};

/// A laid-out dialog that can be made from its class alone.
template <class T>
class CGeometryDynCreateWnd : public CGeometryWnd<T> {
 public:
  using CGeometryWnd<T>::CGeometryWnd;
  static std::shared_ptr<T> CreateObject() { return std::make_shared<CGeometryDynCreateWnd>(); }
};

}  // namespace Geometry
