#pragma once

#include "pages/formats/formats_dialog.h"
#include "resources/resource.h"

/// Which formats searches open as compressed files and archives.
class CFormatsCompressed : public CFormatsDialog {
 public:
  static constexpr UINT IDD = IDD_FORMATS_COMPRESSED;
  explicit CFormatsCompressed(StoreHandle store);

 protected:
  DECLARE_MESSAGE_MAP()
};
