#pragma once

// The frame of the exported functions.

#include <optional>
#include <utility>

#include "platform/machine.h"
#include "platform/types.h"

namespace HOLLERIN {

/// Fills `*result` with what `make` yields. E_INVALIDARG without a place for it; E_FAIL when `make`
/// yields nothing, or when the machine wants the function of this name to fail.
template <class Result, class Make>
HRESULT Export(const wchar_t* name, Result* result, Make make) {
  if (result == nullptr) return E_INVALIDARG;
  if (GetMachine().Fails(name)) return E_FAIL;
  std::optional<Result> made = make();
  if (!made) return E_FAIL;
  *result = std::move(*made);
  return S_OK;
}

}  // namespace HOLLERIN
