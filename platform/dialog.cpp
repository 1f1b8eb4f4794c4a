#include "platform/dialog.h"

#include "platform/qt/dialog_builder.h"
#include "platform/qt/dialog_window.h"
#include "platform/qt/modal_run.h"
#include "platform/qt/window_placement.h"

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_MESSAGE(WM_INITDIALOG, &CDialog::OnInitDialogMessage)
ON_MESSAGE(WM_CLOSE, &CDialog::OnCloseMessage)
ON_COMMAND(IDOK, &CDialog::OnOKCommand)
ON_COMMAND(IDCANCEL, &CDialog::OnCancelCommand)
END_MESSAGE_MAP()

CDialog::CDialog(UINT templateId, CWnd* parent) : templateId_(templateId), parent_(parent) {}

CDialog::~CDialog() {
  if (run_ != nullptr) run_->DialogDies();
  CDialog::DestroyWindow();
}

INT_PTR CDialog::DoModal() {
  if (m_hWnd != nullptr) return -1;
  ModalRun run(*this);
  return run.Execute(templateId_, parent_);
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
  if (m_hWnd != nullptr) return FALSE;
  templateId_ = templateId;
  const HWND parentWindow = parent != nullptr ? parent->GetSafeHwnd() : nullptr;
  const HWND window = MakeDialogWindow(*this, templateId, parentWindow, DialogUse::Modeless);
  const Peer* peer = FindPeer(window);
  if (peer == nullptr) return FALSE;
  if ((peer->style & WS_VISIBLE) == 0) return TRUE;
  if (peer->parent != nullptr) {
    peer->widget->show();
  } else {
    OpenOnScreen(*peer);
  }
  return IsWindow(window);
}

void CDialog::EndDialog(int result) {
  if (run_ != nullptr) {
    run_->End(result);
  } else {
    ShowWindow(SW_HIDE);
  }
}

void CDialog::SetDefID(UINT id) {
  if (auto* peer = FindPeerAs<DialogPeer>(m_hWnd)) SetDefaultControl(*peer, static_cast<int>(id));
}

BOOL CDialog::OnInitDialog() {
  UpdateData(FALSE);
  return TRUE;
}

void CDialog::OnOK() {
  if (UpdateData(TRUE)) EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

LRESULT CDialog::OnInitDialogMessage(WPARAM, LPARAM) { return OnInitDialog(); }

LRESULT CDialog::OnCloseMessage(WPARAM, LPARAM) {
  // Closing is pressing Cancel, and as little possible while Cancel is disabled.
  const CWnd* cancel = GetDlgItem(IDCANCEL);
  if (cancel != nullptr && !cancel->IsWindowEnabled()) return 0;
  return SendMessage(WM_COMMAND, IDCANCEL,
                     cancel != nullptr ? reinterpret_cast<LPARAM>(cancel->m_hWnd) : 0);
}
