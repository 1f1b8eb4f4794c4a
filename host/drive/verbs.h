#pragma once

// What each verb does.

#include <QJsonObject>
#include <functional>

class Environment;
class EntryRunner;
struct EntryResult;
struct Request;
class WindowStack;

/// What the verbs work with.
struct DriveContext {
  Environment& environment;
  EntryRunner& entries;
  WindowStack& windows;
  /// Told when an entry point has returned.
  std::function<void(const EntryResult&)> returned;
};

/// How a request is carried out.
struct Plan {
  /// What a person does; empty for a request that only looks or works on the stores. May only
  /// return when the windows that it opened are closed again. May throw RequestError.
  std::function<void()> act;
  /// The fields of the reply beside "ok", made when the event queue is idle again. May throw
  /// RequestError. Empty when there are none.
  std::function<QJsonObject()> finish;
  int delay = 0;  ///< Milliseconds to wait at least before the reply.
};

/// Checks whether the request can be carried out and says how; nothing has changed yet. Throws
/// RequestError when it cannot. "quit" is not among the verbs known here.
Plan MakePlan(DriveContext& context, const Request& request);
