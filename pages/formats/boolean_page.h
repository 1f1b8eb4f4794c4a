#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// Boolean expressions: similarity of the LIKE operator, distance of the NEAR operator.
class CConfigEntryExprBooleanDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_BOOLEAN_PAGE;
  CConfigEntryExprBooleanDlg();

 protected:
  BOOL OnInitDialog() override;
  void BindMembers(CDataExchange* exchange) override;
  void OnSimilarityLow() { similarity_.SetPos(0); }
  void OnSimilarityMedium() { similarity_.SetPos(1); }
  void OnSimilarityHigh() { similarity_.SetPos(2); }
  DECLARE_MESSAGE_MAP()

 private:
  CSliderCtrl similarity_;
};
