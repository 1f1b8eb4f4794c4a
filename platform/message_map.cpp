#include "platform/message_map.h"

namespace {

bool Takes(const AFX_MSGMAP_ENTRY& entry, UINT message, UINT code, UINT id) {
  return entry.message == message && entry.code == code && entry.firstId <= id &&
         id <= entry.lastId;
}

}  // namespace

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
  static const AFX_MSGMAP_ENTRY none[] = {{}};
  static const AFX_MSGMAP map = {nullptr, none};
  return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

bool CCmdTarget::DispatchMessageMap(UINT message, UINT code, UINT id,
                                    const MessageArguments& arguments, LRESULT& result) {
  const AFX_MSGMAP* map = GetMessageMap();
  while (map != nullptr) {
    for (const AFX_MSGMAP_ENTRY* entry = map->entries; entry->message != 0; ++entry)
      if (Takes(*entry, message, code, id) && entry->invoke(*this, arguments, result)) return true;
    map = map->base != nullptr ? map->base() : nullptr;
  }
  return false;
}
