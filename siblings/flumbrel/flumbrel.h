#pragma once

// The function that the file-reading library exports. Statuses are HRESULTs, negative on failure.

#include <cstdint>
#include <memory>
#include <string>

#include "ifc/file_stream.h"

namespace FLUMBREL {

/// Others may read the file, and write to it, while it is open.
constexpr std::int32_t kSharedReading = 1;

/// Opens the file at `path`, of either style, for reading. `stream` is filled on success only.
/// E_INVALIDARG for another mode or a null pointer; E_FAIL, with the reason as the last error, when
/// the file cannot be opened or is no regular file. Nothing is read yet, and what would keep a
/// reader waiting, such as a pipe, is refused at once.
HRESULT OpenRead(const std::wstring& path, std::int32_t mode,
                 std::shared_ptr<INTERNAL_IFC::IFileStream>* stream);

}  // namespace FLUMBREL
