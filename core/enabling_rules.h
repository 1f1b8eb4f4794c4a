#pragma once

// Which controls of a page or dialog can be used, as a table.

#include <span>

#include "platform/wnd.h"

/// Controls that are enabled exactly while the predicate holds for the page or dialog. The controls
/// are a constant that outlives the rule.
struct EnablingRule {
  std::span<const int> controls;
  bool (*enabled)(const CWnd& page) = nullptr;
};

/// Predicate of an enabling rule: all these check boxes and radio buttons are checked.
template <int... kIds>
bool WhenChecked(const CWnd& page) {
  return (... && (page.IsDlgButtonChecked(kIds) != 0));
}

/// Enables and disables the controls of every rule, in order; a missing control raises
/// CResourceException.
void ApplyRules(CWnd& page, std::span<const EnablingRule> rules);
