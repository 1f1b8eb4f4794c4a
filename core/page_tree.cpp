#include "core/page_tree.h"

#include "core/config_entry_generic.h"
#include "core/config_mgr.h"
#include "foundation/language.h"
#include "pages/formats/advanced_group_page.h"
#include "pages/formats/boolean_page.h"
#include "pages/formats/default_editor_page.h"
#include "pages/formats/dos_page.h"
#include "pages/formats/editor_group_page.h"
#include "pages/formats/expression_group_page.h"
#include "pages/formats/extension_group_page.h"
#include "pages/formats/extension_mgr.h"
#include "pages/formats/external_editor_page.h"
#include "pages/formats/file_list_page.h"
#include "pages/formats/filters_page.h"
#include "pages/formats/hash_page.h"
#include "pages/formats/junctions_page.h"
#include "pages/formats/regex_page.h"
#include "pages/formats/transform_page.h"
#include "pages/formats/utf8_page.h"
#include "pages/general/alerts_page.h"
#include "pages/general/character_page.h"
#include "pages/general/colour_page.h"
#include "pages/general/display_page.h"
#include "pages/general/email_page.h"
#include "pages/general/folders_page.h"
#include "pages/general/general_group_page.h"
#include "pages/general/history_page.h"
#include "pages/general/internal_viewer_page.h"
#include "pages/general/localization_page.h"
#include "pages/general/memory_page.h"
#include "pages/general/search_page.h"
#include "pages/general/shell_page.h"
#include "pages/general/threads_page.h"
#include "pages/general/user_interface_page.h"
#include "resources/text_ids.h"

namespace {

using enum PageGroup;

template <class Page>
EntryHandle MakeEntry(const PageRow& row) {
  return std::make_shared<CConfigEntryGeneric<Page>>(LanguageString(row.title), row.pageId);
}

template <class Page>
std::shared_ptr<CConfigDialog> MakeGroupPage() {
  return std::make_shared<Page>();
}

template <class Manager>
EntryHandle MakeManager(const StoreHandle& config) {
  if constexpr (std::is_constructible_v<Manager, const StoreHandle&>) {
    return std::make_shared<Manager>(config);
  } else {
    return std::make_shared<Manager>();
  }
}

template <class Page>
constexpr PageRow Leaf(PageGroup group, UINT title, std::int32_t pageId) {
  return {group, title, pageId, Page::IDD, &MakeEntry<Page>};
}

/// A page that lays out its controls.
template <class Page>
constexpr PageRow LaidOut(PageGroup group, UINT title, std::int32_t pageId) {
  return Leaf<Geometry::CGeometryDynCreateWnd<Page>>(group, title, pageId);
}

template <class Manager, class Page>
constexpr GroupRow Group(PageGroup group, UINT title, std::int32_t pageId, std::int32_t image,
                         const wchar_t* creationFailure) {
  return {group,
          title,
          pageId,
          image,
          Page::IDD,
          creationFailure,
          &MakeGroupPage<Page>,
          &MakeManager<Manager>};
}

constexpr GroupRow kGroups[] = {
    Group<CConfigGeneralMgr, CConfigEntryGeneralDlg>(kGeneral, TextId::kGroupGeneral, 4, 0,
                                                     L"Unable to create general dlg"),
    Group<CConfigExprMgr, CConfigEntryExprDlg>(kExpressions, TextId::kGroupExpressions, 22, 1,
                                               L"Unable to create expression dlg"),
    Group<CConfigEditorMgr, CConfigEntryEditorDlg>(kEditor, TextId::kGroupEditor, 8, 2,
                                                   L"Unable to create editor dlg"),
    Group<CConfigAdvMgr, CConfigEntryAdvDlg>(kAdvanced, TextId::kGroupAdvanced, 13, 3,
                                             L"Unable to create advanced dlg"),
    {kExtensions, TextId::kGroupExtensions, 1, 4, CConfigEntryExtensionMainDlg::IDD,
     L"Unable to create extension dlg", nullptr, &MakeManager<CConfigExtensionMgr>},
};

constexpr PageRow kPages[] = {
    Leaf<CConfigEntryGeneralHistoryDlg>(kGeneral, TextId::kPageHistory, 7),
    Leaf<CConfigEntryGeneralDisplayDlg>(kGeneral, TextId::kPageDisplay, 5),
    Leaf<CConfigEntrySearchDlg>(kGeneral, TextId::kPageSearch, 27),
    LaidOut<CConfigEntryGeneralEmailDlg>(kGeneral, TextId::kPageEmail, 29),
    LaidOut<CConfigEntryGeneralCharProcDlg>(kGeneral, TextId::kPageCharacters, 6),
    Leaf<CConfigEntryGeneralShellDlg>(kGeneral, TextId::kPageShell, 10),
    LaidOut<CConfigEntryGeneralAlertsDlg>(kGeneral, TextId::kPageAlerts, 12),
    Leaf<CConfigEntryLocalizationDlg>(kGeneral, TextId::kPageLocalization, 26),
    LaidOut<CConfigEntryColorDlg>(kGeneral, TextId::kPageColours, 30),
    Leaf<CConfigEntryUserInterfaceDlg>(kGeneral, TextId::kPageUserInterface, 24),

    Leaf<CConfigEntryExprBooleanDlg>(kExpressions, TextId::kPageBoolean, 19),
    Leaf<CConfigEntryExprDOSDlg>(kExpressions, TextId::kPageDos, 23),
    Leaf<CConfigEntryExprRegExDlg>(kExpressions, TextId::kPageRegex, 21),
    Leaf<CConfigEntryExprHashDlg>(kExpressions, TextId::kPageHash, 20),

    Leaf<CConfigEntryEditorDefaultDlg>(kEditor, TextId::kPageDefaultEditor, 2),
    LaidOut<CConfigEntryEditorExternalDlg>(kEditor, TextId::kPageExternalEditor, 3),
    Leaf<CConfigEntryInternalViewerDlg>(kEditor, TextId::kPageInternalViewer, 25),

    Leaf<CConfigEntryAdvFileListDlg>(kAdvanced, TextId::kPageFileLists, 17),
    LaidOut<CConfigEntryGeneralFoldersDlg>(kAdvanced, TextId::kPageFolders, 11),
    Leaf<CConfigEntryAdvJunctionsDlg>(kAdvanced, TextId::kPageJunctions, 16),
    Leaf<CConfigEntryMemMgrDlg>(kAdvanced, TextId::kPageMemory, 28),
    LaidOut<CConfigEntryGeneralThreadDlg>(kAdvanced, TextId::kPageThreads, 9),
    Leaf<CConfigEntryAdvTransformDlg>(kAdvanced, TextId::kPageTransform, 14),

    LaidOut<CConfigEntryGeneralFiltersDlg>(kExtensions, TextId::kPageFilters, 15),
    LaidOut<CConfigEntryFileTypeUTF8Dlg>(kExtensions, TextId::kPageUtf8, 18),
};

/// A page id chooses one node, and a template belongs to one page.
consteval bool NumbersAreUnique() {
  std::array<std::int64_t, std::size(kGroups) + std::size(kPages)> ids{}, templates{};
  std::size_t count = 0;
  for (const GroupRow& row : kGroups) ids[count] = row.pageId, templates[count++] = row.templateId;
  for (const PageRow& row : kPages) ids[count] = row.pageId, templates[count++] = row.templateId;
  for (std::size_t a = 0; a < count; ++a) {
    for (std::size_t b = 0; b < a; ++b) {
      if (ids[a] == ids[b] || templates[a] == templates[b]) return false;
    }
  }
  return true;
}
static_assert(NumbersAreUnique());

}  // namespace

std::span<const GroupRow> PageTreeGroups() { return kGroups; }

std::span<const PageRow> PageTreePages() { return kPages; }
