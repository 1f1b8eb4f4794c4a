#pragma once

// The function that the search-term library exports.

#include <memory>

#include "ifc/search_term_mgr.h"

namespace TERNWICK {

/// As many terms have a style of their own.
constexpr std::int32_t kTermCount = 10;

/// A manager of the styles that stores keep: in the section "SearchTerms" the colours of the terms
/// 0 to 9, integers under the keys "Color0" to "Color9". A term without one is black; the shipped
/// configuration has ten that are easy to tell apart. The manager keeps nothing itself; what a
/// store raises passes through its operations. Null when no manager can be made.
std::shared_ptr<INTERNAL_IFC::ISearchTermMgr> CreateSearchTermMgr();

}  // namespace TERNWICK
