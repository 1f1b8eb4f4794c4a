// A line of the drive port, from any bytes.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "host/drive/request.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray line(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const ParsedRequest parsed = ParseRequest(line);
  // Every line is either a request or has a reason why not.
  if (parsed.request.has_value() != parsed.error.isEmpty()) std::abort();
  if (parsed.request && parsed.request->verb.isEmpty()) std::abort();
  return 0;
}
