#include "host/machine_file.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QString>
#include <limits>

#include "host/json_shape.h"
#include "platform/registry.h"
#include "platform/text.h"

namespace {

constexpr int kMost = std::numeric_limits<int>::max();
/// The greatest number up to which JSON has every whole number.
constexpr qint64 kMostExact = qint64{1} << 53;
constexpr int kLeast = std::numeric_limits<int>::min();

// An object with letters as its keys.
Shape::Check Drives() {
  return [folders = Shape::MapOf(Shape::Text())](const QJsonValue& value) {
    QString problem = folders(value);
    if (!problem.isEmpty()) return problem;
    for (const QString& drive : value.toObject().keys()) {
      const bool letter = drive.size() == 1 && drive.toUpper() >= "A" && drive.toUpper() <= "Z";
      if (!letter) return QStringLiteral("\"%1\" is no letter from A to Z").arg(drive);
    }
    return QString();
  };
}

// Every fact that a machine file may state. Those without a reader yet are checked all the same, so
// that a file is right or wrong independent of the dialogs that exist.
const Shape::Check& MachineShape() {
  using namespace Shape;
  const QStringList stores = {"config", "master", "history", "fourth"};
  const Check values = MapOf(MapOf(Either(Either(Bool(), Integer(kLeast, kMost)), Text())));
  static const Check shape = ObjectOf({
      {"processors", Integer(1, kMost)},
      {"dpi", Integer(48, 960)},
      {"portable", Bool()},
      {"language", Either(Text(), Null())},
      {"registrar", ObjectOf({{"srf", Bool()},
                              {"folder", Bool()},
                              {"f3", Bool()},
                              {"hotkey", Bool()},
                              {"file", Bool()},
                              {"fails", OneOf({"create", "associations", "hotkey", "file"})}})},
      {"browserExtensions", Either(Text(), Null())},
      {"editors", ListOf(ObjectOf({{"name", Text()}, {"default", Bool()}}))},
      {"ocrLanguages",
       Either(ListOf(ObjectOf({{"code", Text()}, {"name", Text()}, {"available", Bool()}})),
              OneOf({"fails"}))},
      {"ifilters",
       ListOf(ObjectOf(
           {{"extension", Text()}, {"name", Text()}, {"location", Text()}, {"text", Bool()}}))},
      {"components", ListOf(Text())},
      {"sound", OneOf({"plays", "fails"})},
      {"folders", MapOf(Text())},
      {"drives", Drives()},
      {"defaults", ObjectOf({{"config", values}, {"master", values}})},
      {"cache",
       Either(WholeObjectOf({{"items", Integer(0, kMostExact)}, {"bytes", Integer(0, kMostExact)}}),
              OneOf({"fails"}))},
      {"fails", ListOf(Text())},
      {"throws", WholeObjectOf({{"store", OneOf(stores)}, {"call", Integer(1, kMost)}})},
  });
  return shape;
}

// The one registry value that a machine file may state.
constexpr wchar_t kBrowserKey[] =
    L"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Internet Explorer\\Main";
constexpr wchar_t kBrowserExtensions[] = L"Enable Browser Extensions";

// The steps of the shell registrar as the functions and operations that take them.
struct RegistrarStep {
  const char* name;
  const wchar_t* operation;
};
constexpr RegistrarStep kRegistrarSteps[] = {{"create", L"CreateCOMRegistrar"},
                                             {"associations", L"GetShellIntegration"},
                                             {"hotkey", L"GetHotKeyEnabled"},
                                             {"file", L"GetFileContextMenu"}};

HOLLERIN::Value ToValue(const QJsonValue& value) {
  if (value.isBool()) return value.toBool();
  if (value.isString()) return value.toString().toStdWString();
  return static_cast<std::int32_t>(value.toInt());
}

std::optional<std::map<std::wstring, std::wstring>> ToTexts(const QJsonValue& json) {
  if (json.isUndefined()) return std::nullopt;
  std::map<std::wstring, std::wstring> texts;
  const QJsonObject object = json.toObject();
  for (auto row = object.begin(); row != object.end(); ++row) {
    texts[row.key().toStdWString()] = row.value().toString().toStdWString();
  }
  return texts;
}

std::optional<std::map<wchar_t, std::wstring>> ToDrives(const QJsonValue& json) {
  const auto texts = ToTexts(json);
  if (!texts) return std::nullopt;
  std::map<wchar_t, std::wstring> drives;
  for (const auto& [letter, folder] : *texts) {
    drives[static_cast<wchar_t>(QChar::toUpper(static_cast<char32_t>(letter.front())))] = folder;
  }
  return drives;
}

std::optional<std::vector<EditorFact>> ToEditors(const QJsonValue& json) {
  if (json.isUndefined()) return std::nullopt;
  std::vector<EditorFact> editors;
  for (const QJsonValue editor : json.toArray()) {
    editors.push_back({editor["name"].toString().toStdWString(), editor["default"].toBool()});
  }
  return editors;
}

std::optional<std::vector<std::wstring>> ToList(const QJsonValue& json) {
  if (json.isUndefined()) return std::nullopt;
  std::vector<std::wstring> texts;
  for (const QJsonValue text : json.toArray()) texts.push_back(text.toString().toStdWString());
  return texts;
}

std::optional<std::vector<DocumentFilter>> ToFilters(const QJsonValue& json) {
  if (json.isUndefined()) return std::nullopt;
  std::vector<DocumentFilter> filters;
  for (const QJsonValue filter : json.toArray()) {
    filters.push_back({filter["extension"].toString().toStdWString(),
                       filter["name"].toString().toStdWString(),
                       filter["location"].toString().toStdWString(), L"", filter["text"].toBool()});
  }
  return filters;
}

// A language that is not said to be missing is available.
std::optional<std::vector<OcrLanguage>> ToLanguages(const QJsonValue& json) {
  if (!json.isArray()) return std::nullopt;
  std::vector<OcrLanguage> languages;
  for (const QJsonValue language : json.toArray()) {
    const std::wstring code = language["code"].toString().toStdWString();
    const QJsonValue name = language["name"];
    languages.push_back({code, name.isString() ? name.toString().toStdWString() : code,
                         language["available"].toBool(true)});
  }
  return languages;
}

std::optional<CacheContents> ToCache(const QJsonValue& json) {
  if (!json.isObject()) return std::nullopt;
  return CacheContents{static_cast<std::uint64_t>(json["items"].toInteger()),
                       json["bytes"].toInteger()};
}

std::optional<HOLLERIN::Values> ToValues(const QJsonValue& json) {
  if (json.isUndefined()) return std::nullopt;
  HOLLERIN::Values values;
  const QJsonObject sections = json.toObject();
  for (auto section = sections.begin(); section != sections.end(); ++section) {
    const QJsonObject keys = section.value().toObject();
    HOLLERIN::Section& target = values[section.key().toStdWString()];
    for (auto key = keys.begin(); key != keys.end(); ++key) {
      target[key.key().toStdWString()] = ToValue(key.value());
    }
  }
  return values;
}

}  // namespace

std::shared_ptr<const MachineFile> MachineFile::Parse(const QByteArray& text, QString& error) {
  QJsonParseError problem;
  const QJsonDocument document = QJsonDocument::fromJson(text, &problem);
  if (document.isNull()) {
    error =
        QStringLiteral("not JSON: %1 at byte %2").arg(problem.errorString()).arg(problem.offset);
    return nullptr;
  }
  const QJsonValue value =
      document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array());
  error = MachineShape()(value);
  if (!error.isEmpty()) return nullptr;
  const auto machine = std::make_shared<MachineFile>();
  machine->Take(document.object());
  return machine;
}

std::shared_ptr<const MachineFile> MachineFile::Load(const QString& path, QString& error) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    error = file.errorString();
    return nullptr;
  }
  return Parse(file.readAll(), error);
}

void MachineFile::Take(const QJsonObject& facts) {
  dpi_ = facts["dpi"].toInt(0);
  if (facts.contains("portable")) portable_ = facts["portable"].toBool();
  if (facts.contains("processors")) processors_ = facts["processors"].toInt();
  if (facts.contains("registrar")) TakeRegistrar(facts["registrar"].toObject());
  if (const QJsonValue text = facts["browserExtensions"]; text.isString()) {
    browserExtensions_ = text.toString().toStdWString();
  }
  if (const QJsonValue language = facts["language"]; language.isNull()) {
    language_.emplace(std::nullopt);
  } else if (language.isString()) {
    language_.emplace(language.toString().toStdWString());
  }
  for (const QJsonValue name : facts["fails"].toArray()) {
    fails_.insert(name.toString().toStdWString());
  }
  if (facts["cache"] == "fails") fails_.insert(L"CreateCacheMgr");
  cache_ = ToCache(facts["cache"]);
  if (const QJsonObject rule = facts["throws"].toObject(); !rule.isEmpty()) {
    throws_ = ThrowRule{rule["store"].toString().toStdString(), rule["call"].toInt()};
  }
  if (facts.contains("sound")) soundPlays_ = facts["sound"] == "plays";
  folders_ = ToTexts(facts["folders"]);
  drives_ = ToDrives(facts["drives"]);
  editors_ = ToEditors(facts["editors"]);
  components_ = ToList(facts["components"]);
  filters_ = ToFilters(facts["ifilters"]);
  ocrLanguages_ = ToLanguages(facts["ocrLanguages"]);
  if (facts["ocrLanguages"].isString()) fails_.insert(L"LoadOCRLangMap");
  const QJsonObject defaults = facts["defaults"].toObject();
  defaultConfig_ = ToValues(defaults["config"]);
  defaultMaster_ = ToValues(defaults["master"]);
}

void MachineFile::TakeRegistrar(const QJsonObject& registrar) {
  registration_ = {.resultFiles = registrar["srf"].toBool(),
                   .folderMenu = registrar["folder"].toBool(),
                   .fileMenu = registrar["file"].toBool(),
                   .searchKey = registrar["f3"].toBool(),
                   .hotKey = registrar["hotkey"].toBool()};
  for (const RegistrarStep& step : kRegistrarSteps) {
    if (registrar["fails"] == step.name) fails_.insert(step.operation);
  }
}

bool MachineFile::Portable() const { return portable_ ? *portable_ : Machine::Portable(); }

int MachineFile::Processors() const { return processors_ ? *processors_ : Machine::Processors(); }

std::optional<ShellRegistration> MachineFile::Registration() const {
  return registration_ ? registration_ : Machine::Registration();
}

std::optional<RegistryKey> MachineFile::FindRegistryKey(std::wstring_view path) const {
  const bool stated = CString(std::wstring(path)).CompareNoCase(kBrowserKey) == 0;
  if (!stated || !browserExtensions_) return Machine::FindRegistryKey(path);
  return RegistryKey{{kBrowserExtensions, {REG_SZ, ToRegistryText(*browserExtensions_)}}};
}

std::optional<std::optional<std::wstring>> MachineFile::LanguageFile() const {
  return language_ ? language_ : Machine::LanguageFile();
}

bool MachineFile::Fails(std::wstring_view operation) const {
  return fails_.contains(operation) || Machine::Fails(operation);
}

std::map<wchar_t, std::wstring> MachineFile::Drives() const {
  return drives_ ? *drives_ : Machine::Drives();
}

std::optional<std::map<std::wstring, std::wstring>> MachineFile::Folders() const {
  return folders_ ? folders_ : Machine::Folders();
}

std::optional<std::vector<EditorFact>> MachineFile::Editors() const {
  return editors_ ? editors_ : Machine::Editors();
}

std::optional<std::vector<std::wstring>> MachineFile::Components() const {
  return components_ ? components_ : Machine::Components();
}

std::optional<std::vector<DocumentFilter>> MachineFile::DocumentFilters() const {
  return filters_ ? filters_ : Machine::DocumentFilters();
}

std::optional<std::vector<OcrLanguage>> MachineFile::OcrLanguages() const {
  return ocrLanguages_ ? ocrLanguages_ : Machine::OcrLanguages();
}

std::optional<CacheContents> MachineFile::Cache() const {
  return cache_ ? cache_ : Machine::Cache();
}

bool MachineFile::Opens(std::wstring_view nativePath) const {
  if (outside_ == nullptr) return Machine::Opens(nativePath);
  outside_->opened.emplace_back(nativePath);
  return true;
}

std::optional<bool> MachineFile::PlaysSound(std::wstring_view path) const {
  if (outside_ == nullptr) return soundPlays_ ? soundPlays_ : Machine::PlaysSound(path);
  outside_->played.emplace_back(path);
  return soundPlays_.value_or(true);
}

bool MachineFile::UsesToolkitPickers() const {
  return outside_ != nullptr || Machine::UsesToolkitPickers();
}
