#pragma once

// The verbs that look into the stores and change them. All throw RequestError for a store that does
// not exist.

#include <QJsonObject>

#include "host/stores.h"

struct Request;

QJsonValue ReadStore(const Stores& stores, const Request& request);
void WriteStore(const Stores& stores, const Request& request);
/// All values by section and key, each in the type in which it was last written.
QJsonObject DumpStore(const Stores& stores, const Request& request);
QJsonObject DumpStore(const HOLLERIN::Store& store);
