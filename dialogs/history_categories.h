#pragma once

// The histories that the application keeps, each in a section of the history store.

#include "platform/text.h"

/// Numbers of the histories that are named alone.
enum HistoryNumber { kRecentFolders = 0, kRecentFileName = 1, kRecentContains = 2 };

/// The section of a history. Any number has one: "unknown-99" for a number that names no history.
CString HistorySection(int number);

/// The name of a history for the user; the section's name for a number that names no history.
CString HistoryName(int number);
