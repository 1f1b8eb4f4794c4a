#include "host/value_text.h"

QString TypeName(const HOLLERIN::Value& value) {
  static constexpr const char* kNames[] = {"bool", "int", "string"};
  return QLatin1String(kNames[value.index()]);
}

QString ValueText(const HOLLERIN::Value& value) {
  if (const bool* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
  if (const std::int32_t* number = std::get_if<std::int32_t>(&value))
    return QString::number(*number);
  return QString::fromStdWString(std::get<std::wstring>(value));
}

std::optional<HOLLERIN::Value> ParseValue(const QString& type, const QString& text) {
  if (type == "string") return text.toStdWString();
  if (type == "bool") {
    if (text == "true" || text == "1") return true;
    if (text == "false" || text == "0") return false;
    return std::nullopt;
  }
  bool good = false;
  const std::int32_t number = text.toInt(&good);
  return good ? std::optional<HOLLERIN::Value>(number) : std::nullopt;
}

QString EscapedText(const QString& text) {
  QString escaped = text;
  escaped.replace('\\', "\\\\").replace('\t', "\\t").replace('\n', "\\n").replace('\r', "\\r");
  return escaped;
}
