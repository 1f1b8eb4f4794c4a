#include "host/drive/request.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace {

enum class Kind { Integer, Text, Bool, Value, Texts, Integers, Objects };

struct Argument {
  const char* name;
  Kind kind;
  bool required = true;
};

struct Verb {
  const char* name;
  std::vector<Argument> arguments;
  std::vector<const char*> oneOf = {};  // Exactly one of these must be given.
  bool addressesControl = false;
};

const std::vector<Argument> kControlArguments = {{"control", Kind::Integer, false},
                                                 {"nth", Kind::Integer, false},
                                                 {"template", Kind::Integer, false}};

const std::vector<Verb>& Verbs() {
  static const std::vector<Verb> verbs = {
      {"open",
       {{"entry", Kind::Text}, {"page", Kind::Integer, false}, {"active", Kind::Bool, false}}},
      {"windows", {}},
      {"controls", {{"template", Kind::Integer, false}}},
      {"get", {}, {}, true},
      {"click", {}, {}, true},
      {"type", {{"text", Kind::Text}}, {}, true},
      {"pick",
       {{"index", Kind::Integer, false}, {"text", Kind::Text, false}},
       {"index", "text"},
       true},
      {"slide", {{"value", Kind::Integer}}, {}, true},
      {"colour", {{"value", Kind::Integer}}, {}, true},
      {"rows", {}, {}, true},
      {"check", {{"row", Kind::Integer}, {"on", Kind::Bool}}, {}, true},
      {"row", {{"row", Kind::Integer}, {"action", Kind::Text}}, {}, true},
      {"tree", {}},
      {"select", {{"page", Kind::Integer, false}, {"row", Kind::Integer, false}}, {"page", "row"}},
      {"press", {{"button", Kind::Text}}},
      {"choose", {{"paths", Kind::Texts}}},
      {"dismiss", {}},
      {"menu", {{"command", Kind::Integer}}},
      {"key",
       {{"key", Kind::Text},
        {"control", Kind::Integer, false},
        {"nth", Kind::Integer, false},
        {"template", Kind::Integer, false}}},
      {"resize", {{"width", Kind::Integer}, {"height", Kind::Integer}}},
      {"shot", {{"file", Kind::Text}}},
      {"ok", {}},
      {"cancel", {}},
      {"read",
       {{"store", Kind::Text},
        {"section", Kind::Text},
        {"key", Kind::Text},
        {"type", Kind::Text},
        {"default", Kind::Value}}},
      {"write",
       {{"store", Kind::Text},
        {"section", Kind::Text},
        {"key", Kind::Text},
        {"type", Kind::Text},
        {"value", Kind::Value}}},
      {"dump", {{"store", Kind::Text}}},
      {"interpreters", {{"set", Kind::Objects, false}}},
      {"terms", {{"set", Kind::Integers, false}}},
      {"filters", {{"set", Kind::Objects, false}}},
      {"log", {}},
      {"clipboard", {}},
      {"outside", {}},
      {"wait", {{"ms", Kind::Integer}}},
      {"quit", {}},
  };
  return verbs;
}

bool IsInteger(const QJsonValue& value) {
  if (!value.isDouble()) return false;
  const double number = value.toDouble();
  return number == std::floor(number) && number >= std::numeric_limits<int>::min() &&
         number <= std::numeric_limits<int>::max();
}

template <class Check>
bool IsListOf(const QJsonValue& value, Check check) {
  const QJsonArray list = value.toArray();
  return value.isArray() && std::all_of(list.begin(), list.end(), check);
}

bool IsText(const QJsonValue& value) { return value.isString(); }

bool Fits(Kind kind, const QJsonValue& value) {
  switch (kind) {
    case Kind::Integer:
      return IsInteger(value);
    case Kind::Text:
      return value.isString();
    case Kind::Bool:
      return value.isBool();
    case Kind::Value:
      return value.isBool() || value.isString() || IsInteger(value);
    case Kind::Texts:
      return IsListOf(value, IsText);
    case Kind::Integers:
      return IsListOf(value, IsInteger);
    case Kind::Objects:
      return IsListOf(value, [](const QJsonValue& item) { return item.isObject(); });
  }
  return false;
}

QString KindName(Kind kind) {
  switch (kind) {
    case Kind::Integer:
      return QStringLiteral("a whole number of 32 bits");
    case Kind::Text:
      return QStringLiteral("a text");
    case Kind::Bool:
      return QStringLiteral("true or false");
    case Kind::Value:
      return QStringLiteral("true, false, a whole number of 32 bits or a text");
    case Kind::Texts:
      return QStringLiteral("a list of texts");
    case Kind::Integers:
      return QStringLiteral("a list of whole numbers of 32 bits");
    case Kind::Objects:
      return QStringLiteral("a list of objects");
  }
  return {};
}

QString Quoted(const QString& text) { return QLatin1Char('"') + text.left(200) + QLatin1Char('"'); }

QString CheckArgument(const Request& request, const Argument& argument) {
  const QString name = QLatin1String(argument.name);
  if (!request.arguments.contains(name)) {
    if (!argument.required) return {};
    return QStringLiteral("The verb %1 needs the argument %2.")
        .arg(Quoted(request.verb), Quoted(name));
  }
  if (Fits(argument.kind, request.arguments[name])) return {};
  return QStringLiteral("The argument %1 of the verb %2 must be %3.")
      .arg(Quoted(name), Quoted(request.verb), KindName(argument.kind));
}

QString CheckOneOf(const Request& request, const std::vector<const char*>& names) {
  QStringList given;
  QStringList all;
  for (const char* name : names) {
    all << Quoted(QLatin1String(name));
    if (request.Has(name)) given << all.back();
  }
  if (all.isEmpty() || given.size() == 1) return {};
  return QStringLiteral("The verb %1 needs exactly one of the arguments %2.")
      .arg(Quoted(request.verb), all.join(QStringLiteral(" and ")));
}

// "type" of "read" and "write" fixes what "default" and "value" may be.
QString CheckTypedValue(const Request& request) {
  if (request.verb != QLatin1String("read") && request.verb != QLatin1String("write")) return {};
  const char* name = request.verb == QLatin1String("read") ? "default" : "value";
  static const std::pair<const char*, Kind> kTypes[] = {
      {"bool", Kind::Bool}, {"int", Kind::Integer}, {"string", Kind::Text}};
  for (const auto& [type, kind] : kTypes) {
    if (request.Text("type") == QLatin1String(type)) return CheckArgument(request, {name, kind});
  }
  return QStringLiteral(
             "There is no value type %1; the types are \"bool\", \"int\" and \"string\".")
      .arg(Quoted(request.Text("type")));
}

QString CheckArguments(const Request& request, const Verb& verb) {
  std::vector<Argument> known = verb.arguments;
  std::vector<const char*> oneOf = verb.oneOf;
  if (verb.addressesControl)
    known.insert(known.end(), kControlArguments.begin(), kControlArguments.end());
  QStringList names;
  for (const Argument& argument : known) {
    names << QLatin1String(argument.name);
    if (QString error = CheckArgument(request, argument); !error.isEmpty()) return error;
  }
  for (const QString& name : request.arguments.keys()) {
    if (names.contains(name)) continue;
    return QStringLiteral("The verb %1 has no argument %2; it has %3.")
        .arg(Quoted(request.verb), Quoted(name), NearCandidates(name, names));
  }
  if (QString error = CheckOneOf(request, oneOf); !error.isEmpty()) return error;
  if (verb.addressesControl) {
    if (QString error = CheckOneOf(request, {"control", "nth"}); !error.isEmpty()) return error;
  }
  return CheckTypedValue(request);
}

ParsedRequest Refuse(const QString& error) { return {std::nullopt, error}; }

int Distance(const QString& a, const QString& b) {
  std::vector<int> row(static_cast<std::size_t>(b.size()) + 1);
  for (std::size_t i = 0; i < row.size(); ++i) row[i] = static_cast<int>(i);
  for (qsizetype i = 0; i < a.size(); ++i) {
    int diagonal = row[0];
    row[0] = static_cast<int>(i) + 1;
    for (qsizetype j = 0; j < b.size(); ++j) {
      const auto at = static_cast<std::size_t>(j);
      const int change = diagonal + (a[i].toLower() == b[j].toLower() ? 0 : 1);
      diagonal = row[at + 1];
      row[at + 1] = std::min({change, row[at] + 1, row[at + 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

QStringList Request::Texts(const char* name) const {
  QStringList texts;
  for (const auto& item : arguments[QLatin1String(name)].toArray()) texts << item.toString();
  return texts;
}

QString NearCandidates(const QString& wanted, const QStringList& candidates) {
  if (candidates.isEmpty()) return QStringLiteral("none");
  std::vector<std::pair<int, QString>> ranked;
  for (const QString& candidate : candidates) {
    ranked.emplace_back(Distance(wanted.left(64), candidate.left(64)), candidate);
  }
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  QStringList nearest;
  for (const auto& [distance, candidate] : ranked) {
    if (nearest.size() == 5) break;
    nearest << Quoted(candidate);
  }
  if (nearest.size() == 1) return nearest.front();
  const QString last = nearest.takeLast();
  return nearest.join(QStringLiteral(", ")) + QStringLiteral(" or ") + last;
}

ParsedRequest ParseRequest(const QByteArray& line) {
  QJsonParseError problem;
  const QJsonDocument document = QJsonDocument::fromJson(line, &problem);
  if (document.isNull()) {
    return Refuse(QStringLiteral("The line is not JSON: %1 at byte %2.")
                      .arg(problem.errorString())
                      .arg(problem.offset));
  }
  if (!document.isObject()) return Refuse(QStringLiteral("The line is not a JSON object."));
  Request request{{}, document.object()};
  const QJsonValue name = request.arguments.take(QStringLiteral("do"));
  if (!name.isString())
    return Refuse(QStringLiteral("The line names no verb as the text of \"do\"."));
  request.verb = name.toString();
  const QJsonValue wait = request.arguments.take(QStringLiteral("wait"));
  if (!wait.isUndefined() && !wait.isBool()) {
    return Refuse(QStringLiteral("The argument \"wait\" must be true or false."));
  }
  request.wait = wait.toBool(true);

  QStringList names;
  for (const Verb& verb : Verbs()) {
    names << QLatin1String(verb.name);
    if (names.back() != request.verb) continue;
    const QString error = CheckArguments(request, verb);
    return error.isEmpty() ? ParsedRequest{request, {}} : Refuse(error);
  }
  return Refuse(QStringLiteral("There is no verb %1; the nearest are %2.")
                    .arg(Quoted(request.verb), NearCandidates(request.verb, names)));
}
