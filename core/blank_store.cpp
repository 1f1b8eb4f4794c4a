#include "core/blank_store.h"

#include "foundation/exception.h"
#include "hollerin/hollerin.h"

HOLLERIN::StoreHandle StoreOrBlank(HOLLERIN::StoreHandle store) {
  if (store == nullptr) {
    ThrowHr(HOLLERIN::CreateBlankConfigDataMgr(&store), L"Creating blank configuration");
  }
  return store;
}
