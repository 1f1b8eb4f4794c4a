// Any constraint text must parse, and lay a control out without leaving the range of coordinates.

#include <cstdint>
#include <cstdlib>

#include "foundation/constraint.h"
#include "platform/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text = FromUtf8({reinterpret_cast<const char*>(data), size});
  Geometry::CConstraint constraint;
  Geometry::ParseConstraint(text, constraint);
  const CRect initial(7, 11, 90, 31);
  for (const CSize client : {CSize(0, 0), CSize(320, 200), CSize(32767, -32768)}) {
    for (const CSize first : {CSize(0, 0), CSize(100, 50)}) {
      const CRect rect = Geometry::LayOut(constraint, initial, client, first);
      if (rect.left < initial.left || rect.top < initial.top) std::abort();
      if (rect.Width() < initial.Width() || rect.Height() < initial.Height()) std::abort();
    }
  }
  return 0;
}
