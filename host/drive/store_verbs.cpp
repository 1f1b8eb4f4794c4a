#include "host/drive/store_verbs.h"

#include "host/drive/request.h"
#include "host/drive/request_error.h"

namespace {

HOLLERIN::Store& NamedStore(const Stores& stores, const Request& request) {
  const QString name = request.Text("store");
  const StoreId id = Stores::Find(name);
  if (id != kStoreCount) return stores.Get(id);
  QStringList names;
  for (const char* known : Stores::Names()) names << QLatin1String(known);
  throw RequestError(QStringLiteral("There is no store \"%1\"; the nearest are %2.")
                         .arg(name, NearCandidates(name, names)));
}

QJsonValue ToJson(const HOLLERIN::Value& value) {
  if (const bool* flag = std::get_if<bool>(&value)) return *flag;
  if (const std::int32_t* number = std::get_if<std::int32_t>(&value)) return *number;
  return QString::fromStdWString(std::get<std::wstring>(value));
}

}  // namespace

QJsonValue ReadStore(const Stores& stores, const Request& request) {
  HOLLERIN::Store& store = NamedStore(stores, request);
  const std::wstring section = request.Text("section").toStdWString();
  const std::wstring key = request.Text("key").toStdWString();
  const QJsonValue otherwise = request.arguments["default"];
  if (otherwise.isBool()) return store.ReadBool(section, key, otherwise.toBool());
  if (otherwise.isDouble()) return store.ReadInt(section, key, otherwise.toInt());
  return QString::fromStdWString(
      store.ReadString(section, key, otherwise.toString().toStdWString()));
}

void WriteStore(const Stores& stores, const Request& request) {
  HOLLERIN::Store& store = NamedStore(stores, request);
  const std::wstring section = request.Text("section").toStdWString();
  const std::wstring key = request.Text("key").toStdWString();
  const QJsonValue value = request.arguments["value"];
  if (value.isBool()) {
    store.WriteBool(section, key, value.toBool());
  } else if (value.isDouble()) {
    store.WriteInt(section, key, value.toInt());
  } else {
    store.WriteString(section, key, value.toString().toStdWString());
  }
}

QJsonObject DumpStore(const HOLLERIN::Store& store) {
  QJsonObject sections;
  for (const auto& [section, keys] : store.GetValues()) {
    QJsonObject values;
    for (const auto& [key, value] : keys) values[QString::fromStdWString(key)] = ToJson(value);
    sections[QString::fromStdWString(section)] = values;
  }
  return sections;
}

QJsonObject DumpStore(const Stores& stores, const Request& request) {
  return DumpStore(NamedStore(stores, request));
}
