#pragma once

// The functions that the UI-extension library exports.

#include <memory>

#include "platform/gdi.h"
#include "platform/module.h"

/// The fonts that all dialogs of the application share.
class CFontMgr {
 public:
  virtual ~CFontMgr() = default;
  virtual const CFont& GetDialogFont() const = 0;
};

namespace PANTEROW {

/// Attaches the library's resources to the caller's link slot, once; a filled slot is left alone.
/// The slot's object belongs to this library and lives as long as it.
void InitializeUILib(CDynLinkLibrary** slot);

/// The shared font manager, alive as long as someone holds it.
std::shared_ptr<CFontMgr> GetFontMgr();

/// Numbers of the application image list.
enum AppImage { kImageBrowse = 4, kImageSeveralFolders = 5, kImageOpen = 7, kImagePlay = 16 };

/// The application's small images, in the size for the screen's resolution; lives as long as the
/// process.
const CImageList& GetAppImageList();

}  // namespace PANTEROW
