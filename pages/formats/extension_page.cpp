#include "pages/formats/extension_page.h"

#include "core/extension_list.h"
#include "platform/data_exchange.h"

namespace {

using INTERNAL_IFC::IConfigInterpreter;

/// A check box and the option of the interpreter that it shows.
struct OptionRow {
  int check;
  bool (IConfigInterpreter::*get)();
  void (IConfigInterpreter::*set)(bool);
  bool inverted = false;
};

constexpr OptionRow kOptions[] = {
    {IDC_EXTENSION_OPTION_A, &IConfigInterpreter::GetOptionA, &IConfigInterpreter::SetOptionA},
    {IDC_EXTENSION_DOCUMENT, &IConfigInterpreter::IsDocumentFormat,
     &IConfigInterpreter::SetDocumentFormat},
    {IDC_EXTENSION_NOT_OPTION_C, &IConfigInterpreter::GetOptionC, &IConfigInterpreter::SetOptionC,
     true},
};

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_EXTENSIONS, L"CY"},           {IDC_EXTENSION_INFO, L"CX+Y"},
    {IDC_EXTENSIONS_HINT, L"CX+Y"},    {IDC_EXTENSION_OPTION_A, L"CX+Y"},
    {IDC_EXTENSION_DOCUMENT, L"CX+Y"}, {IDC_EXTENSION_NOT_OPTION_C, L"CX+Y"},
    {IDC_EXTENSION_INFO_LABEL, L"Y"},
};

void ExchangeOption(CDataExchange* exchange, const OptionRow& row, IConfigInterpreter& entry) {
  int state = (entry.*row.get)() != row.inverted ? BST_CHECKED : BST_UNCHECKED;
  DDX_Check(exchange, row.check, state);
  (entry.*row.set)((state == BST_CHECKED) != row.inverted);
}

}  // namespace

BOOL CConfigEntryExtensionDlg::OnInitDialog() {
  CConfigDialog::OnInitDialog();
  Geometry::BindControls(*this, this, kLayout);
  if (interpreter_ == nullptr) return TRUE;
  SetDlgItemText(IDC_EXTENSION_NAME, interpreter_->GetName());
  SetDlgItemText(IDC_EXTENSION_INFO, interpreter_->GetInfoText());
  SetDlgItemText(IDC_EXTENSIONS, ExtensionLines(interpreter_->GetExtensions()));
  return TRUE;
}

void CConfigEntryExtensionDlg::DoDataExchange(CDataExchange* exchange) {
  CConfigDialog::DoDataExchange(exchange);
  if (interpreter_ == nullptr) return;
  for (const OptionRow& row : kOptions) ExchangeOption(exchange, row, *interpreter_);
  if (!exchange->m_bSaveAndValidate) return;
  CString lines;
  DDX_Text(exchange, IDC_EXTENSIONS, lines);
  interpreter_->SetExtensions(ExtensionList(lines.Str()));
}
