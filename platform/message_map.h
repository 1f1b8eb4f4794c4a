#pragma once

// Message maps: a class names its handlers in a table, and a message travels from the most derived
// class's table to its base's. Each entry holds a typed call to one member function, made when the
// table is compiled, so that a handler of the wrong signature does not compile.

#include "platform/messages.h"

class CCmdTarget;
class CWnd;
class CDC;

struct MessageArguments {
  UINT message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
};

/// Calls one handler; false lets the search go on. The target's type is the table's class.
using MessageInvoker = bool (*)(CCmdTarget& target, const MessageArguments& arguments,
                                LRESULT& result);

struct AFX_MSGMAP_ENTRY {
  UINT message = 0;  ///< WM_COMMAND, WM_NOTIFY, or the message itself; 0 ends the table.
  UINT code = 0;     ///< Notification code of WM_COMMAND and WM_NOTIFY.
  UINT firstId = 0;  ///< Control or command numbers that the entry is for.
  UINT lastId = 0;
  MessageInvoker invoke = nullptr;
};

struct AFX_MSGMAP {
  const AFX_MSGMAP* (*base)();
  const AFX_MSGMAP_ENTRY* entries;
};

class CCmdTarget {
 public:
  virtual ~CCmdTarget() = default;

 protected:
  static const AFX_MSGMAP* GetThisMessageMap();
  virtual const AFX_MSGMAP* GetMessageMap() const;
  /// Looks the message up in the tables and calls the first handler that takes it.
  bool DispatchMessageMap(UINT message, UINT code, UINT id, const MessageArguments& arguments,
                          LRESULT& result);
};

namespace message_map {

template <class Target>
Target& As(CCmdTarget& target) {
  return static_cast<Target&>(target);
}

template <class Target, auto Handler>
bool Command(CCmdTarget& target, const MessageArguments&, LRESULT& result) {
  (As<Target>(target).*Handler)();
  result = 0;
  return true;
}

template <class Target, auto Handler>
bool CommandRange(CCmdTarget& target, const MessageArguments& arguments, LRESULT& result) {
  (As<Target>(target).*Handler)(LOWORD(arguments.wParam));
  result = 0;
  return true;
}

template <class Target, auto Handler>
bool Notify(CCmdTarget& target, const MessageArguments& arguments, LRESULT& result) {
  result = 0;
  (As<Target>(target).*Handler)(reinterpret_cast<NMHDR*>(arguments.lParam), &result);
  return true;
}

template <class Target, auto Handler>
bool NotifyEx(CCmdTarget& target, const MessageArguments& arguments, LRESULT& result) {
  auto* header = reinterpret_cast<NMHDR*>(arguments.lParam);
  return (As<Target>(target).*Handler)(static_cast<UINT>(header->idFrom), header, &result) != FALSE;
}

template <class Target, auto Handler>
bool Message(CCmdTarget& target, const MessageArguments& arguments, LRESULT& result) {
  result = (As<Target>(target).*Handler)(arguments.wParam, arguments.lParam);
  return true;
}

template <class Target, auto Handler>
bool Size(CCmdTarget& target, const MessageArguments& arguments, LRESULT& result) {
  (As<Target>(target).*Handler)(static_cast<UINT>(arguments.wParam), LOWORD(arguments.lParam),
                                HIWORD(arguments.lParam));
  result = 0;
  return true;
}

template <class Target, auto Handler>
bool Plain(CCmdTarget& target, const MessageArguments&, LRESULT& result) {
  (As<Target>(target).*Handler)();
  result = 0;
  return true;
}

template <class Target, auto Handler>
bool EraseBackground(CCmdTarget& target, const MessageArguments& arguments, LRESULT& result) {
  result = (As<Target>(target).*Handler)(reinterpret_cast<CDC*>(arguments.wParam));
  return true;
}

template <class Target, auto Handler>
bool KillFocus(CCmdTarget& target, const MessageArguments&, LRESULT& result) {
  (As<Target>(target).*Handler)(nullptr);
  result = 0;
  return true;
}

template <class Target, auto Handler>
bool Key(CCmdTarget& target, const MessageArguments& arguments, LRESULT& result) {
  (As<Target>(target).*Handler)(static_cast<UINT>(arguments.wParam), 1,
                                static_cast<UINT>(arguments.lParam));
  result = 0;
  return true;
}

template <class Target, auto Handler>
bool MinMaxInfo(CCmdTarget& target, const MessageArguments& arguments, LRESULT& result) {
  (As<Target>(target).*Handler)(reinterpret_cast<MINMAXINFO*>(arguments.lParam));
  result = 0;
  return true;
}

}  // namespace message_map

#define DECLARE_MESSAGE_MAP()                   \
 protected:                                     \
  static const AFX_MSGMAP* GetThisMessageMap(); \
  const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                      \
  const AFX_MSGMAP* theClass::GetMessageMap() const { return GetThisMessageMap(); } \
  const AFX_MSGMAP* theClass::GetThisMessageMap() {                                 \
    using ThisClass [[maybe_unused]] = theClass;                                    \
    using ThisBase = baseClass;                                                     \
    static const AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                                                \
  {}                                                                     \
  }                                                                      \
  ;                                                                      \
  static const AFX_MSGMAP map = {&ThisBase::GetThisMessageMap, entries}; \
  return &map;                                                           \
  }

#define ON_CONTROL(code, id, memberFxn)                                               \
  {WM_COMMAND, static_cast<UINT>(code), static_cast<UINT>(id), static_cast<UINT>(id), \
   &message_map::Command<ThisClass, memberFxn>},
#define ON_CONTROL_RANGE(code, first, last, memberFxn)                                     \
  {WM_COMMAND, static_cast<UINT>(code), static_cast<UINT>(first), static_cast<UINT>(last), \
   &message_map::CommandRange<ThisClass, memberFxn>},
#define ON_COMMAND(id, memberFxn) ON_CONTROL(0, id, memberFxn)
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_NOTIFY(code, id, memberFxn)                                               \
  {WM_NOTIFY, static_cast<UINT>(code), static_cast<UINT>(id), static_cast<UINT>(id), \
   &message_map::Notify<ThisClass, memberFxn>},
#define ON_NOTIFY_EX_RANGE(code, first, last, memberFxn)                                  \
  {WM_NOTIFY, static_cast<UINT>(code), static_cast<UINT>(first), static_cast<UINT>(last), \
   &message_map::NotifyEx<ThisClass, memberFxn>},
#define ON_MESSAGE(message, memberFxn) \
  {message, 0, 0, 0, &message_map::Message<ThisClass, memberFxn>},
#define ON_WM_SIZE() {WM_SIZE, 0, 0, 0, &message_map::Size<ThisClass, &ThisClass::OnSize>},
#define ON_WM_PAINT() {WM_PAINT, 0, 0, 0, &message_map::Plain<ThisClass, &ThisClass::OnPaint>},
#define ON_WM_DESTROY() \
  {WM_DESTROY, 0, 0, 0, &message_map::Plain<ThisClass, &ThisClass::OnDestroy>},
#define ON_WM_KILLFOCUS() \
  {WM_KILLFOCUS, 0, 0, 0, &message_map::KillFocus<ThisClass, &ThisClass::OnKillFocus>},
#define ON_WM_KEYDOWN() {WM_KEYDOWN, 0, 0, 0, &message_map::Key<ThisClass, &ThisClass::OnKeyDown>},
#define ON_WM_SYSKEYDOWN() \
  {WM_SYSKEYDOWN, 0, 0, 0, &message_map::Key<ThisClass, &ThisClass::OnSysKeyDown>},
#define ON_WM_CHAR() {WM_CHAR, 0, 0, 0, &message_map::Key<ThisClass, &ThisClass::OnChar>},
#define ON_WM_ERASEBKGND() \
  {WM_ERASEBKGND, 0, 0, 0, &message_map::EraseBackground<ThisClass, &ThisClass::OnEraseBkgnd>},
#define ON_WM_GETMINMAXINFO() \
  {WM_GETMINMAXINFO, 0, 0, 0, &message_map::MinMaxInfo<ThisClass, &ThisClass::OnGetMinMaxInfo>},
