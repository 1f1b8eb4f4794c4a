#pragma once

// The verb that looks at the interpreter list in the configuration and replaces it.

#include <QJsonArray>

class Stores;
struct Request;

/// Stores the list "set" of the request first, if it is there: a member that an entry leaves out is
/// an empty text or false. Returns the entries of the configuration's list. Throws RequestError,
/// and has stored nothing, for a member that is unknown or of the wrong kind.
QJsonArray ExchangeInterpreters(const Stores& stores, const Request& request);
