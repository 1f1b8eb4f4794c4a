#include "pages/general/shell_page.h"

#include "controls/registry_text.h"
#include "foundation/catch_chain.h"
#include "foundation/language.h"
#include "foundation/message_helpers.h"
#include "hollerin/com_registrar.h"
#include "hollerin/hollerin.h"
#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kSource = L"Brisquel/ConfigEntryGeneralShellDlg";
constexpr const wchar_t* kShell = L"Shell";
constexpr const wchar_t* kOptions = L"Options";
constexpr const wchar_t* kInstanceModeKey = L"SingleInstanceMode";

/// Row numbers are the stored modes.
constexpr DialogText kInstanceModes[] = {TextId::kInstanceAnother, TextId::kInstanceForShell,
                                         TextId::kInstanceSingle};
constexpr int kModes = static_cast<int>(std::size(kInstanceModes));

/// What the set-up shows itself.
constexpr Stored kShellFlag = Unread(Bool(false));
constexpr Stored kShownMode = Unread(Int(0));

constexpr auto kValues = MakeTable({
    {kShell, L"AssociateSRF", kShellFlag, Check(IDC_ASSOCIATE_RESULTS)},
    {kShell, L"AddToDirCM", kShellFlag, Check(IDC_FOLDER_MENU)},
    {kShell, L"AddToFileCM", kShellFlag, Check(IDC_FILE_MENU)},
    {kShell, L"ReplaceF3", kShellFlag, Check(IDC_REPLACE_F3)},
    {kShell, L"EnableHotKey", kShellFlag, Check(IDC_HOT_KEY)},
    {kOptions, kInstanceModeKey, kShownMode, ChosenRow(IDC_INSTANCE_MODE, kModes)},
    {kOptions, L"FastContextMenuDisabled", Bool(false), InvertedCheck(IDC_FAST_MENU)},
    {kOptions, L"FastContextMenu", Int(50), Number(IDC_FAST_MENU_LIMIT, {1, 999999})},
});

constexpr int kHeadings[] = {IDC_FAST_MENU_HEADING};

constexpr int kFastMenuLimit[] = {IDC_FAST_MENU_LIMIT_LABEL, IDC_FAST_MENU_LIMIT};
constexpr EnablingRule kRules[] = {{kFastMenuLimit, WhenChecked<IDC_FAST_MENU>}};

constexpr PageDescription kPage = {kValues, kHeadings, kRules, WithoutStore::kBlank};

/// What the registrar answers, in the order of the values.
enum Flag : std::size_t { kResultFiles, kFolderMenu, kFileMenu, kSearchKey, kHotKey, kFlags };
using Flags = std::array<VARIANT_BOOL, kFlags>;

std::span<const Row> FlagRows() { return std::span(kValues.rows).first<kFlags>(); }

Flags AskRegistrar() {
  std::shared_ptr<HOLLERIN::ICOMRegistrar> registrar;
  ThrowHr(HOLLERIN::CreateCOMRegistrar(&registrar), L"Creating COM Registrar");
  Flags flags = {};
  VARIANT_BOOL reserved = VARIANT_FALSE;
  ThrowHr(registrar->GetShellIntegration(&flags[kResultFiles], &flags[kFolderMenu], &reserved,
                                         &flags[kSearchKey]),
          L"Loading current associations");
  ThrowHr(registrar->GetHotKeyEnabled(&flags[kHotKey]), L"Getting hotkey setting");
  ThrowHr(registrar->GetFileContextMenu(&flags[kFileMenu]), L"Getting file context menu setting");
  return flags;
}

/// Replacing the key works by an extension of the browser.
bool BrowserExtensionsEnabled() {
  const auto text =
      ReadRegistryText(HKEY_CURRENT_USER, L"SOFTWARE\\Microsoft\\Internet Explorer\\Main",
                       L"Enable Browser Extensions");
  return text && CString(*text).CompareNoCase(L"yes") == 0;
}

}  // namespace

BEGIN_MESSAGE_MAP(CConfigEntryGeneralShellDlg, CValuePage)
ON_BN_CLICKED(IDC_REPLACE_F3, &ThisClass::OnReplaceF3)
END_MESSAGE_MAP()

CConfigEntryGeneralShellDlg::CConfigEntryGeneralShellDlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryGeneralShellDlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  const auto show = [this] {
    const StoreHandle store = StoreForExchange();
    if (HOLLERIN::IsPortableInstall() != 0) {
      DisableIntegration(*store);
    } else {
      ShowIntegration(*store);
    }
    ShowInstanceMode(*store);
  };
  RunGuarded(show, MakeLogDisplay, CString(), kSource);
  return TRUE;
}

void CConfigEntryGeneralShellDlg::BindMembers(CDataExchange* exchange) {
  DDX_Control(exchange, IDC_INSTANCE_MODE, instanceMode_);
}

void CConfigEntryGeneralShellDlg::ShowIntegration(INTERNAL_IFC::IConfigDataMgr& store) {
  const Flags flags = AskRegistrar();
  std::size_t flag = 0;
  for (const Row& row : FlagRows()) {
    CheckDlgButton(row.control.id, flags[flag++] == VARIANT_TRUE ? BST_CHECKED : BST_UNCHECKED);
  }
  flag = 0;
  for (const Row& row : FlagRows()) store.WriteBool(row.section, row.key, flags[flag++] != 0);
}

void CConfigEntryGeneralShellDlg::DisableIntegration(INTERNAL_IFC::IConfigDataMgr& store) {
  store.WriteBool(kShell, L"USBDriveConfig", true);
  for (const Row& row : FlagRows()) GetDlgItem(row.control.id)->EnableWindow(FALSE);
}

void CConfigEntryGeneralShellDlg::ShowInstanceMode(INTERNAL_IFC::IConfigDataMgr& store) {
  for (const DialogText& mode : kInstanceModes) {
    instanceMode_.AddString(LanguagePlaceholder(mode.dialog, mode.number));
  }
  const int stored = store.ReadInt(kOptions, kInstanceModeKey, 0);
  instanceMode_.SetCurSel(stored >= 0 && stored < kModes ? stored : 0);
}

void CConfigEntryGeneralShellDlg::OnReplaceF3() {
  if (IsDlgButtonChecked(IDC_REPLACE_F3) == 0 || BrowserExtensionsEnabled()) return;
  const HWND window = m_hWnd;
  const int answer = ShowLangMessage(TextId::kAskReplaceF3, MB_YESNO);
  // The box may have stayed open beyond the page's life.
  if (answer == IDNO && IsWindow(window)) CheckDlgButton(IDC_REPLACE_F3, BST_UNCHECKED);
}
