#pragma once

// The document filters: programs of the machine that extract the text of documents.

#include <vector>

#include "platform/machine.h"

namespace HOLLERIN {

/// One filter for each extension that has one, ordered by extension: those that the machine
/// dictates, in its own order, or else the text extractors that are found on the search path for
/// programs. Extensions are without dots.
std::vector<DocumentFilter> FindDocumentFilters();

}  // namespace HOLLERIN
