#pragma once

// Stored values as texts of the command line.

#include <QString>
#include <optional>

#include "hollerin/application.h"

/// "bool", "int" or "string".
QString TypeName(const HOLLERIN::Value& value);
/// "true" or "false", decimal digits, or the text itself.
QString ValueText(const HOLLERIN::Value& value);
/// The value that a text stands for; nothing when it is none of that type. A bool is true, false, 1
/// or 0.
std::optional<HOLLERIN::Value> ParseValue(const QString& type, const QString& text);
/// The text on one line: backslash, tab and line ends become \\, \t, \n and \r.
QString EscapedText(const QString& text);
