#include "host/store_commands.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "host/environment.h"
#include "host/exit_status.h"
#include "host/folders.h"
#include "host/value_text.h"

namespace {

// The store that the first operand names; kStoreCount, reported, when there is none.
StoreId NamedStore(const Environment& environment) {
  const QString name = environment.GetArguments().operands.front();
  const StoreId id = Stores::Find(name);
  if (id == kStoreCount) {
    PrintError(
        QStringLiteral("There is no store \"%1\"; the stores are config, master, history and "
                       "fourth.")
            .arg(name));
  }
  return id;
}

const HOLLERIN::Value* FindValue(const HOLLERIN::Store& store, const QStringList& operands) {
  const HOLLERIN::Values& values = store.GetValues();
  const auto section = values.find(operands[1].toStdWString());
  if (section == values.end()) return nullptr;
  const auto key = section->second.find(operands[2].toStdWString());
  return key == section->second.end() ? nullptr : &key->second;
}

int SaveStore(Environment& environment, StoreId id) {
  return environment.ReportSaved(environment.GetStores().Save({id})) ? kExitDone : kExitFile;
}

bool ListStore(const Stores& stores, StoreId id) {
  for (const auto& [section, keys] : stores.Get(id).GetValues()) {
    for (const auto& [key, value] : keys) {
      const QStringList columns = {QLatin1String(Stores::Names()[id]),
                                   EscapedText(QString::fromStdWString(section)),
                                   EscapedText(QString::fromStdWString(key)), TypeName(value),
                                   EscapedText(ValueText(value))};
      if (!Print(columns.join('\t') + '\n')) return false;
    }
  }
  return true;
}

int WriteBytes(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) {
    return kExitDone;
  }
  PrintError(QStringLiteral("%1 cannot be written: %2.").arg(path, file.errorString()));
  return kExitFile;
}

}  // namespace

int RunGet(Environment& environment) {
  const StoreId id = NamedStore(environment);
  if (id == kStoreCount) return kExitUsage;
  const QStringList& operands = environment.GetArguments().operands;
  const HOLLERIN::Value* value = FindValue(environment.GetStores().Get(id), operands);
  if (value == nullptr) {
    PrintError(QStringLiteral("The store %1 has no value \"%2\" in a section \"%3\".")
                   .arg(operands[0], operands[2], operands[1]));
    return kExitNotConfirmed;
  }
  return Print(ValueText(*value) + '\n') ? kExitDone : kExitFile;
}

int RunSet(Environment& environment) {
  const StoreId id = NamedStore(environment);
  if (id == kStoreCount) return kExitUsage;
  const Arguments& arguments = environment.GetArguments();
  HOLLERIN::Store& store = environment.GetStores().Get(id);
  const HOLLERIN::Value* stored = FindValue(store, arguments.operands);
  QString type = arguments.type;
  if (type.isEmpty()) type = stored != nullptr ? TypeName(*stored) : QStringLiteral("string");
  const auto value = ParseValue(type, arguments.operands[3]);
  if (!value) {
    PrintError(
        QStringLiteral("\"%1\" is no value of the type %2.").arg(arguments.operands[3], type));
    return kExitUsage;
  }
  store.Write(arguments.operands[1].toStdWString(), arguments.operands[2].toStdWString(), *value);
  return SaveStore(environment, id);
}

int RunList(Environment& environment) {
  StoreId only = kStoreCount;
  if (!environment.GetArguments().operands.isEmpty()) {
    only = NamedStore(environment);
    if (only == kStoreCount) return kExitUsage;
  }
  for (int i = 0; i < kStoreCount; ++i) {
    const auto id = static_cast<StoreId>(i);
    if (only != kStoreCount && only != id) continue;
    if (!ListStore(environment.GetStores(), id)) return kExitFile;
  }
  return kExitDone;
}

// The exported text is the store's own file, so that both can be read, compared and moved alike.
int RunExport(Environment& environment) {
  const StoreId id = NamedStore(environment);
  if (id == kStoreCount) return kExitUsage;
  if (const int status = SaveStore(environment, id); status != kExitDone) return status;
  QFile file(environment.GetStores().Path(id));
  if (!file.open(QIODevice::ReadOnly)) {
    PrintError(QStringLiteral("%1 cannot be read: %2.").arg(file.fileName(), file.errorString()));
    return kExitFile;
  }
  const QByteArray bytes = file.readAll();
  const QStringList& operands = environment.GetArguments().operands;
  if (operands.size() > 1) return WriteBytes(operands[1], bytes);
  return Print(QString::fromUtf8(bytes)) ? kExitDone : kExitFile;
}

int RunImport(Environment& environment) {
  const StoreId id = NamedStore(environment);
  if (id == kStoreCount) return kExitUsage;
  const QFileInfo file(environment.GetArguments().operands[1]);
  const std::shared_ptr<HOLLERIN::Store> imported = HOLLERIN::CreateStore();
  if (FAILED(
          imported->LoadFile(WithSeparator(file.absolutePath()), file.fileName().toStdWString()))) {
    PrintError(QStringLiteral("%1 is no readable store file.").arg(file.filePath()));
    return kExitFile;
  }
  std::string text;
  imported->SaveToNarrowText(text);
  environment.GetStores().Get(id).LoadFromNarrowText(text);
  return SaveStore(environment, id);
}
