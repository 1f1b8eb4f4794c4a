#pragma once

#include "core/config_dialog.h"
#include "foundation/geometry.h"
#include "ifc/config_interpreter.h"
#include "resources/resource.h"

/// The file extensions and options of one interpreter. They go into the interpreter, not into a
/// store. Run as Geometry::CGeometryWnd.
class CConfigEntryExtensionDlg : public CConfigDialog, public Geometry::ILayout {
 public:
  static constexpr UINT IDD = IDD_EXTENSION_PAGE;
  using Interpreter = std::shared_ptr<INTERNAL_IFC::IConfigInterpreter>;

  /// Nothing is exchanged without an interpreter.
  explicit CConfigEntryExtensionDlg(Interpreter interpreter)
      : CConfigDialog(IDD), interpreter_(std::move(interpreter)) {}

  /// The interpreter that later exchanges are about; the controls keep what they show.
  void SetInterpreter(Interpreter interpreter) { interpreter_ = std::move(interpreter); }

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  Interpreter interpreter_;
};
