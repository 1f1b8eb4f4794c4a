#pragma once

// The verb that works on the search-term colours of the configuration.

#include <QJsonArray>

class Stores;
struct Request;

/// The colours of all terms, after storing those of "set", if given. Throws RequestError when "set"
/// has not one for each term, and when they cannot be read or stored.
QJsonArray TermColours(const Stores& stores, const Request& request);
