#include "pages/formats/transform_page.h"

#include "foundation/message_helpers.h"
#include "platform/component.h"
#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr auto kValues = MakeTable({
    {L"CustomTransform", L"MSXMLProgId", Text(), Edit(IDC_TRANSFORM_COMPONENT)},
});

constexpr PageDescription kPage = {kValues};

bool CanCreate(const std::wstring& progId) {
  CLSID classId;
  if (FAILED(CLSIDFromProgID(progId, &classId))) return false;
  void* made = nullptr;
  if (FAILED(CoCreateInstance(classId, nullptr, CLSCTX_ALL, IID_IUnknown, &made))) return false;
  static_cast<IUnknown*>(made)->Release();
  return true;
}

}  // namespace

CConfigEntryAdvTransformDlg::CConfigEntryAdvTransformDlg() : CValuePage(IDD, kPage) {}

void CConfigEntryAdvTransformDlg::EndExchange(CDataExchange* exchange, const StoreHandle&) {
  if (!exchange->m_bSaveAndValidate) return;
  CString progId;
  GetDlgItemText(IDC_TRANSFORM_COMPONENT, progId);
  if (progId.IsEmpty() || CanCreate(progId.Str())) return;
  ShowLangMessage(TextId::kTransformNotCreated, MB_OK);
  exchange->PrepareEditCtrl(IDC_TRANSFORM_COMPONENT);
  exchange->Fail();
}
