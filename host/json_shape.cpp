#include "host/json_shape.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace Shape {

namespace {

Check Expect(bool (QJsonValue::*test)() const, const QString& what) {
  return [test, what](const QJsonValue& value) {
    return (value.*test)() ? QString() : QStringLiteral("must be ") + what;
  };
}

QString Inside(const QString& place, const QString& problem) {
  return problem.isEmpty() ? problem : QStringLiteral("%1: %2").arg(place, problem);
}

Check Members(std::vector<std::pair<QString, Check>> members, bool whole) {
  return [members = std::move(members), whole](const QJsonValue& value) -> QString {
    if (!value.isObject()) return QStringLiteral("must be an object");
    QJsonObject object = value.toObject();
    for (const auto& [name, check] : members) {
      const QJsonValue member = object.take(name);
      if (member.isUndefined()) {
        if (whole) return QStringLiteral("\"%1\" is missing").arg(name);
        continue;
      }
      if (const QString problem = Inside(name, check(member)); !problem.isEmpty()) return problem;
    }
    if (object.isEmpty()) return {};
    QStringList known;
    for (const auto& [name, check] : members) known << name;
    return QStringLiteral("\"%1\" is unknown; known are %2")
        .arg(object.begin().key(), known.join(QStringLiteral(", ")));
  };
}

}  // namespace

Check Bool() { return Expect(&QJsonValue::isBool, QStringLiteral("true or false")); }
Check Text() { return Expect(&QJsonValue::isString, QStringLiteral("a text")); }
Check Null() { return Expect(&QJsonValue::isNull, QStringLiteral("null")); }

Check Integer(qint64 least, qint64 greatest) {
  return [least, greatest](const QJsonValue& value) -> QString {
    const double number = value.toDouble(0.5);
    if (value.isDouble() && number == static_cast<double>(static_cast<qint64>(number)) &&
        number >= least && number <= greatest) {
      return {};
    }
    return QStringLiteral("must be a whole number from %1 to %2").arg(least).arg(greatest);
  };
}

Check OneOf(const QStringList& texts) {
  return [texts](const QJsonValue& value) -> QString {
    if (value.isString() && texts.contains(value.toString())) return {};
    return QStringLiteral("must be one of \"%1\"").arg(texts.join(QStringLiteral("\", \"")));
  };
}

Check Either(Check first, Check second) {
  return [first = std::move(first), second = std::move(second)](const QJsonValue& value) {
    const QString problem = first(value);
    if (problem.isEmpty()) return problem;
    const QString other = second(value);
    return other.isEmpty() ? other : QStringLiteral("%1, or %2").arg(problem, other);
  };
}

Check ListOf(Check element) {
  return [element = std::move(element)](const QJsonValue& value) -> QString {
    if (!value.isArray()) return QStringLiteral("must be a list");
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
      const QString problem = Inside(QStringLiteral("item %1").arg(i), element(array[i]));
      if (!problem.isEmpty()) return problem;
    }
    return {};
  };
}

Check MapOf(Check element) {
  return [element = std::move(element)](const QJsonValue& value) -> QString {
    if (!value.isObject()) return QStringLiteral("must be an object");
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
      const QString problem = Inside(member.key(), element(member.value()));
      if (!problem.isEmpty()) return problem;
    }
    return {};
  };
}

Check ObjectOf(std::vector<std::pair<QString, Check>> members) {
  return Members(std::move(members), false);
}

Check WholeObjectOf(std::vector<std::pair<QString, Check>> members) {
  return Members(std::move(members), true);
}

}  // namespace Shape
