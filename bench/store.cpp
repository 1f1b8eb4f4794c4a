// The text forms of a store beside QSettings writing and reading the same values as INI. QSettings
// is asked for every value, because it parses a section when it is first asked; the store has
// parsed everything then, and a second figure counts the asking as well.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "hollerin/application.h"
#include "ratios.h"

namespace {

constexpr int kPerSection = 100;

std::wstring SectionName(int number) { return L"Section" + std::to_wstring(number / kPerSection); }
std::wstring KeyName(int number) { return L"Key" + std::to_wstring(number); }

/// Every third value is a boolean, an integer, a text, as pages store them.
HOLLERIN::Value ValueOf(int number) {
  if (number % 3 == 0) return number % 2 == 0;
  if (number % 3 == 1) return std::int32_t{number * 7919};
  return L"/home/someone/Documents/folder " + std::to_wstring(number);
}

std::shared_ptr<HOLLERIN::Store> FilledStore(int count) {
  auto store = HOLLERIN::CreateStore();
  for (int i = 0; i < count; ++i) store->Write(SectionName(i), KeyName(i), ValueOf(i));
  return store;
}

QVariant AsVariant(const HOLLERIN::Value& value) {
  if (const bool* flag = std::get_if<bool>(&value)) return *flag;
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  return QString::fromStdWString(std::get<std::wstring>(value));
}

void WriteSettings(const QString& path, int count) {
  QSettings settings(path, QSettings::IniFormat);
  for (int i = 0; i < count; ++i) {
    const std::wstring name = SectionName(i) + L"/" + KeyName(i);
    settings.setValue(QString::fromStdWString(name), AsVariant(ValueOf(i)));
  }
  settings.sync();
}

void SaveToText(benchmark::State& state, int count) {
  const auto store = FilledStore(count);
  for (auto _ : state) {
    std::wstring text;
    store->SaveToText(text);
    benchmark::DoNotOptimize(text);
  }
}

void LoadFromText(benchmark::State& state, int count) {
  std::wstring text;
  FilledStore(count)->SaveToText(text);
  const auto store = HOLLERIN::CreateStore();
  for (auto _ : state) store->LoadFromText(text);
}

void LoadAndReadAll(benchmark::State& state, int count) {
  std::wstring text;
  FilledStore(count)->SaveToText(text);
  const auto store = HOLLERIN::CreateStore();
  std::vector<std::pair<std::wstring, std::wstring>> names;
  for (int i = 0; i < count; ++i) names.emplace_back(SectionName(i), KeyName(i));
  for (auto _ : state) {
    store->LoadFromText(text);
    for (const auto& [section, key] : names) {
      benchmark::DoNotOptimize(store->ReadString(section, key, L""));
    }
  }
}

/// Only the writing of the file is counted: the values are in the object before the clock starts.
void SettingsWrite(benchmark::State& state, int count) {
  QTemporaryDir folder;
  int run = 0;
  for (auto _ : state) {
    state.PauseTiming();
    QSettings settings(folder.filePath(QString::number(run++)), QSettings::IniFormat);
    for (int i = 0; i < count; ++i) {
      const std::wstring name = SectionName(i) + L"/" + KeyName(i);
      settings.setValue(QString::fromStdWString(name), AsVariant(ValueOf(i)));
    }
    state.ResumeTiming();
    settings.sync();
  }
}

void SettingsRead(benchmark::State& state, int count) {
  QTemporaryDir folder;
  const QString source = folder.filePath("source.ini");
  WriteSettings(source, count);
  QStringList names;
  for (int i = 0; i < count; ++i) {
    names << QString::fromStdWString(SectionName(i) + L"/" + KeyName(i));
  }
  int run = 0;
  for (auto _ : state) {
    state.PauseTiming();
    // A new name each time, because QSettings keeps files that it has parsed.
    const QString path = folder.filePath(QString::number(run++));
    QFile::copy(source, path);
    state.ResumeTiming();
    QSettings settings(path, QSettings::IniFormat);
    for (const QString& name : names) {
      benchmark::DoNotOptimize(settings.value(name).toString());
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  std::vector<RatioGoal> goals;
  for (const int count : {1000, 100000}) {
    const std::string suffix = "/" + std::to_string(count);
    const auto add = [&](const char* name, auto function) {
      benchmark::RegisterBenchmark((name + suffix).c_str(), function, count)->UseRealTime();
    };
    add("SaveToText", SaveToText);
    add("SettingsWrite", SettingsWrite);
    add("LoadFromText", LoadFromText);
    add("LoadAndReadAll", LoadAndReadAll);
    add("SettingsRead", SettingsRead);
    goals.push_back({"SaveToText" + suffix, "SettingsWrite" + suffix, 0.2});
    goals.push_back({"LoadFromText" + suffix, "SettingsRead" + suffix, 0.2});
    goals.push_back({"LoadAndReadAll" + suffix, "SettingsRead" + suffix, 0});
  }
  return RunAndPrintRatios(argc, argv, goals);
}
