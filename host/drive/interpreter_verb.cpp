#include "host/drive/interpreter_verb.h"

#include <QJsonObject>

#include "hollerin/interpreter_store.h"
#include "host/drive/request.h"
#include "host/drive/request_error.h"
#include "host/json_shape.h"
#include "host/stores.h"

namespace {

using HOLLERIN::InterpreterEntry;

constexpr std::pair<const char*, std::wstring InterpreterEntry::*> kTexts[] = {
    {"name", &InterpreterEntry::name},
    {"key", &InterpreterEntry::key},
    {"extensions", &InterpreterEntry::extensions},
    {"info", &InterpreterEntry::info},
    {"type", &InterpreterEntry::type},
};
constexpr std::pair<const char*, bool InterpreterEntry::*> kFlags[] = {
    {"enabled", &InterpreterEntry::enabled},
    {"optionA", &InterpreterEntry::optionA},
    {"document", &InterpreterEntry::document},
    {"optionC", &InterpreterEntry::optionC},
};

Shape::Check EntriesShape() {
  std::vector<std::pair<QString, Shape::Check>> members;
  for (const auto& [name, member] : kTexts) members.emplace_back(name, Shape::Text());
  for (const auto& [name, member] : kFlags) members.emplace_back(name, Shape::Bool());
  return Shape::ListOf(Shape::ObjectOf(std::move(members)));
}

std::vector<InterpreterEntry> ToEntries(const QJsonValue& json) {
  if (const QString problem = EntriesShape()(json); !problem.isEmpty()) {
    throw RequestError(
        QStringLiteral("The argument \"set\" is no list of interpreters: %1.").arg(problem));
  }
  std::vector<InterpreterEntry> entries;
  for (const QJsonValue object : json.toArray()) {
    InterpreterEntry& entry = entries.emplace_back();
    for (const auto& [name, member] : kTexts) {
      entry.*member = object[QLatin1String(name)].toString().toStdWString();
    }
    for (const auto& [name, member] : kFlags) {
      entry.*member = object[QLatin1String(name)].toBool();
    }
  }
  return entries;
}

QJsonObject ToJson(const InterpreterEntry& entry) {
  QJsonObject object;
  for (const auto& [name, member] : kTexts) {
    object[QLatin1String(name)] = QString::fromStdWString(entry.*member);
  }
  for (const auto& [name, member] : kFlags) object[QLatin1String(name)] = entry.*member;
  return object;
}

}  // namespace

QJsonArray ExchangeInterpreters(const Stores& stores, const Request& request) {
  HOLLERIN::Store& config = stores.Get(kConfig);
  if (request.Has("set")) {
    HOLLERIN::WriteInterpreters(config, ToEntries(request.arguments[QLatin1String("set")]));
  }
  QJsonArray entries;
  for (const InterpreterEntry& entry : HOLLERIN::ReadInterpreters(config)) entries << ToJson(entry);
  return entries;
}
