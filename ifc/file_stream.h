#pragma once

// A file being read.

#include <cstdint>

#include "platform/types.h"

namespace INTERNAL_IFC {

/// Bytes in order, from the beginning. The file is closed when the stream goes.
class IFileStream {
 public:
  virtual ~IFileStream() = default;
  /// Fills `buffer` with the next bytes, at most `size`, and `count` with their number: fewer than
  /// asked for at the end of the file only. After a failure both are undefined and the last error
  /// says what happened.
  virtual HRESULT Read(void* buffer, std::uint32_t size, std::uint32_t* count) = 0;
};

}  // namespace INTERNAL_IFC
