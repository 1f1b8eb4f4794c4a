#include "core/enabling_rules.h"

#include "platform/data_exchange.h"

void ApplyRules(CWnd& page, std::span<const EnablingRule> rules) {
  CDataExchange controls(&page, FALSE);
  for (const EnablingRule& rule : rules) {
    const BOOL enable = rule.enabled(page) ? TRUE : FALSE;
    for (const int id : rule.controls) controls.PrepareCtrl(id)->EnableWindow(enable);
  }
}
