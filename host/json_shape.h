#pragma once

// What a JSON value must look like, put together from small checks.

#include <QJsonValue>
#include <QString>
#include <functional>
#include <utility>
#include <vector>

namespace Shape {

/// What is wrong with a value, with the place inside it; empty when it fits.
using Check = std::function<QString(const QJsonValue&)>;

Check Bool();
Check Text();
Check Null();
/// A whole number from `least` to `greatest`.
Check Integer(qint64 least, qint64 greatest);
Check OneOf(const QStringList& texts);
Check Either(Check first, Check second);
Check ListOf(Check element);
/// An object with any keys.
Check MapOf(Check element);
/// An object with these keys only; each of them may be left out.
Check ObjectOf(std::vector<std::pair<QString, Check>> members);
/// An object with exactly these keys.
Check WholeObjectOf(std::vector<std::pair<QString, Check>> members);

}  // namespace Shape
