#pragma once

// The persistent search filters of a store, for those who look into it.

#include <QJsonArray>

#include "hollerin/application.h"

/// The stored filters: {"name", "value", "type", "kind", "enabled"} each. RequestError when their
/// text is damaged.
QJsonArray ReadFilters(HOLLERIN::Store& store);

/// Stores these filters; what one leaves out is that of a new filter. RequestError, with nothing
/// stored, when it is no list of such objects.
void WriteFilters(HOLLERIN::Store& store, const QJsonValue& filters);
