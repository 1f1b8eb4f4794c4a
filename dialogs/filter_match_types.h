#pragma once

// The expression types of search filters.

#include "foundation/label_table.h"
#include "resources/text_ids.h"

/// Every type that a stored filter may have; those that no dialog offers are for the application.
inline constexpr LabelRow FilterMatchTypes[] = {
    {0, TextId::kTypeBoolean, L""},
    {1, TextId::kTypePlain, L""},
    {2, TextId::kTypeRegex, L""},
    {3, 0, L"_BOOST_"},
    {4, TextId::kTypeDos, L""},
    {5, TextId::kTypeHash, L""},
    {6, TextId::kTypeWord, L""},
    {7, TextId::kTypeFileList, L""},
    {8, 0, L"PRESET"},
    {9, TextId::kTypeAnyWord, L""},
    {10, TextId::kTypeAllWords, L""},
    {11, 0, L""},
    {12, 0, L""},
};
