#pragma once

#include "pages/formats/formats_dialog.h"
#include "resources/resource.h"

/// Which formats searches open as documents.
class CFormatsDocument : public CFormatsDialog {
 public:
  static constexpr UINT IDD = IDD_FORMATS_DOCUMENT;
  explicit CFormatsDocument(StoreHandle store);

 protected:
  DECLARE_MESSAGE_MAP()
};
