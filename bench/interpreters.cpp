// Loading and saving an interpreter list, beside pugixml only parsing the same list as XML: an
// element for each entry, an attribute for each text and flag. Once the XML is a file's UTF-8; once
// a wide text, as which a store keeps every text, so that both sides go through the same medium.

#include <benchmark/benchmark.h>

#include <pugixml.hpp>
#include <sstream>

#include "hollerin/application.h"
#include "hollerin/hollerin.h"
#include "hollerin/interpreter_list.h"
#include "platform/text.h"
#include "ratios.h"

namespace {

using HOLLERIN::InterpreterEntry;

std::vector<InterpreterEntry> SampleEntries(int count) {
  std::vector<InterpreterEntry> entries;
  for (int i = 0; i < count; ++i) {
    const std::wstring number = std::to_wstring(i);
    entries.push_back({L"Word document " + number, L"format" + number, L"docx,docm,dotx,d" + number,
                       L"Text, headers, notes and comments of documents of kind " + number + L".",
                       L"textconverter compositefile", i % 2 == 0, i % 3 == 0, i % 5 == 0, false});
  }
  return entries;
}

std::string AsXml(const std::vector<InterpreterEntry>& entries) {
  pugi::xml_document document;
  pugi::xml_node root = document.append_child("interpreters");
  for (const InterpreterEntry& entry : entries) {
    pugi::xml_node node = root.append_child("interpreter");
    node.append_attribute("name") = ToUtf8(entry.name).c_str();
    node.append_attribute("key") = ToUtf8(entry.key).c_str();
    node.append_attribute("extensions") = ToUtf8(entry.extensions).c_str();
    node.append_attribute("info") = ToUtf8(entry.info).c_str();
    node.append_attribute("type") = ToUtf8(entry.type).c_str();
    node.append_attribute("enabled") = entry.enabled;
    node.append_attribute("optionA") = entry.optionA;
    node.append_attribute("document") = entry.document;
    node.append_attribute("optionC") = entry.optionC;
  }
  std::ostringstream out;
  document.save(out, "", pugi::format_raw);
  return out.str();
}

std::shared_ptr<HOLLERIN::Store> FilledStore(int count) {
  const auto store = HOLLERIN::CreateStore();
  const auto list = HOLLERIN::MakeInterpreterList(SampleEntries(count));
  HOLLERIN::SaveConfigInterpreterList(store, list, true);
  return store;
}

void LoadAndSave(benchmark::State& state, int count) {
  const auto store = FilledStore(count);
  for (auto _ : state) {
    HOLLERIN::InterpreterListHandle list;
    HOLLERIN::LoadCurrentConfigInterpreterList(store, &list);
    std::shared_ptr<INTERNAL_IFC::IConfigInterpreter> entry;
    list->GetAt(0, entry);
    entry->SetEnabled(!entry->IsEnabled());
    benchmark::DoNotOptimize(HOLLERIN::SaveConfigInterpreterList(store, list, true));
  }
}

void ParseXml(benchmark::State& state, int count) {
  const std::string xml = AsXml(SampleEntries(count));
  for (auto _ : state) {
    pugi::xml_document document;
    benchmark::DoNotOptimize(document.load_buffer(xml.data(), xml.size()));
  }
}

void ParseWideXml(benchmark::State& state, int count) {
  const std::wstring xml = FromUtf8(AsXml(SampleEntries(count)));
  for (auto _ : state) {
    pugi::xml_document document;
    benchmark::DoNotOptimize(document.load_buffer(xml.data(), xml.size() * sizeof(wchar_t),
                                                  pugi::parse_default, pugi::encoding_wchar));
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<RatioGoal> goals;
  for (const int count : {100, 1000, 10000, 100000}) {
    const std::string suffix = "/" + std::to_string(count);
    const auto add = [&](const char* name, auto function) {
      benchmark::RegisterBenchmark((name + suffix).c_str(), function, count)->UseRealTime();
    };
    add("LoadAndSave", LoadAndSave);
    add("ParseXml", ParseXml);
    add("ParseWideXml", ParseWideXml);
    goals.push_back({"LoadAndSave" + suffix, "ParseXml" + suffix, 2});
    goals.push_back({"LoadAndSave" + suffix, "ParseWideXml" + suffix, 2});
  }
  // Growing with the list: ten times the entries, about ten times the time.
  goals.push_back({"LoadAndSave/100000", "LoadAndSave/10000", 0});
  return RunAndPrintRatios(argc, argv, goals);
}
