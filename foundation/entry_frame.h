#pragma once

// The frame that all exported functions share.

#include <utility>

#include "foundation/globals.h"
#include "foundation/library_module.h"
#include "ifc/brisquel.h"
#include "panterow/panterow.h"
#include "platform/messages.h"

/// Whether an exported function lets the UI-extension library attach its resources first.
enum class UiLibrary { kAttach, kLeave };

/// Runs one modal dialog in the library's module state. `makeDialog` returns the dialog by value
/// (`[&] { return CSomeDialog(store); }`), so that it lives on the stack of this frame.
///
/// `store` is put back as it was before the call unless the user confirmed, also when an exception
/// leaves the dialog; an empty handle takes no snapshot. The status is 0 after IDOK, else 1.
/// Exceptions pass to the caller after the module state has been restored.
template <class MakeDialog>
BRISQUEL::Status RunEntryPoint(UiLibrary uiLibrary, const BRISQUEL::StoreHandle& store,
                               MakeDialog&& makeDialog) {
  const AFX_MAINTAIN_STATE2 state(LibraryModuleState());
  if (uiLibrary == UiLibrary::kAttach) PANTEROW::InitializeUILib(&Process().uiLink);
  std::wstring snapshot;
  if (store != nullptr) store->SaveToText(snapshot);
  const auto putBack = [&] {
    if (store != nullptr) store->LoadFromText(snapshot);
  };
  auto dialog = std::forward<MakeDialog>(makeDialog)();
  bool confirmed = false;
  try {
    confirmed = dialog.DoModal() == IDOK;
  } catch (...) {
    putBack();
    throw;
  }
  if (confirmed) return 0;
  putBack();
  return 1;
}
