#include "host/drive/filter_verb.h"

#include <QJsonObject>
#include <limits>

#include "hollerin/search_filter_text.h"
#include "host/drive/request_error.h"
#include "host/json_shape.h"

namespace {

using HOLLERIN::SearchFilterValues;

QString ProblemOf(const QJsonValue& filters) {
  using namespace Shape;
  constexpr int kLeast = std::numeric_limits<int>::min();
  constexpr int kMost = std::numeric_limits<int>::max();
  static const Check shape = ListOf(ObjectOf({{"name", Text()},
                                              {"value", Text()},
                                              {"type", Integer(kLeast, kMost)},
                                              {"kind", Integer(kLeast, kMost)},
                                              {"enabled", Bool()}}));
  return shape(filters);
}

QJsonObject ToJson(const SearchFilterValues& filter) {
  return {{"name", QString::fromStdWString(filter.name)},
          {"value", QString::fromStdWString(filter.value)},
          {"type", filter.matchType},
          {"kind", filter.kind},
          {"enabled", filter.enabled}};
}

SearchFilterValues ToFilter(const QJsonObject& json) {
  SearchFilterValues filter;
  filter.name = json["name"].toString().toStdWString();
  filter.value = json["value"].toString().toStdWString();
  filter.matchType = json["type"].toInt(filter.matchType);
  filter.kind = json["kind"].toInt(filter.kind);
  filter.enabled = json["enabled"].toBool(filter.enabled);
  return filter;
}

}  // namespace

QJsonArray ReadFilters(HOLLERIN::Store& store) {
  const auto filters = HOLLERIN::ParseSearchFilters(
      store.ReadString(HOLLERIN::kSearchFilterSection, HOLLERIN::kSearchFilterListKey, {}));
  if (!filters) throw RequestError(QStringLiteral("The stored list of filters is damaged."));
  QJsonArray entries;
  for (const SearchFilterValues& filter : *filters) entries << ToJson(filter);
  return entries;
}

void WriteFilters(HOLLERIN::Store& store, const QJsonValue& filters) {
  if (const QString problem = ProblemOf(filters); !problem.isEmpty()) {
    throw RequestError(
        QStringLiteral("The argument \"set\" is no list of filters: %1.").arg(problem));
  }
  std::vector<SearchFilterValues> values;
  for (const auto& filter : filters.toArray()) values.push_back(ToFilter(filter.toObject()));
  store.WriteString(HOLLERIN::kSearchFilterSection, HOLLERIN::kSearchFilterListKey,
                    HOLLERIN::FormatSearchFilters(values));
}
