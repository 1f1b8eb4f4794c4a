#pragma once

// The host program, started with a data folder of its own and talked to over pipes.

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

using Json = nlohmann::json;

constexpr const char* kShippedLanguages = SOURCE_FOLDER "/lang";

/// A folder that is removed at the end.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& Path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

void WriteFile(const std::string& path, const std::string& content);
/// Empty when there is no such file.
std::string ReadFile(const std::string& path);

/// What became of a finished program.
struct Finished {
  int status = -1;  ///< Exit status; -1 when a signal ended it.
  std::string output;
  std::string errors;
};

/// Runs the host program to its end. `data` is passed as --data.
Finished RunHost(const TemporaryFolder& data, std::vector<std::string> arguments);

/// A running drive port.
class Session {
 public:
  /// Starts the program on the folder; with `machine`, on the machine that it describes. The
  /// language files are those of the folder `languages`.
  explicit Session(const TemporaryFolder& data, const Json& machine = Json::object(),
                   const std::string& languages = kShippedLanguages);
  /// Ends the program if it still runs.
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// Sends one line and returns its reply; events before it are kept. A null value, with a test
  /// failure, when the program has gone.
  Json Send(const std::string& line);
  Json Send(const Json& request) { return Send(request.dump()); }
  /// As Send, but a refusal is a test failure.
  Json Do(const Json& request);
  /// As Send, but anything but a refusal is a test failure. Returns the error.
  std::string Refused(const Json& request);

  /// The events that came since the last call.
  std::vector<Json> TakeEvents();

  // Shorter forms of what tests do most.
  Json Open(int page = 4) {
    return Do({{"do", "open"}, {"entry", "OpenConfigDialog"}, {"page", page}});
  }
  Json Get(int control) { return Do({{"do", "get"}, {"control", control}}); }
  void Click(int control) { Do({{"do", "click"}, {"control", control}}); }
  void Type(int control, const std::string& text) {
    Do({{"do", "type"}, {"control", control}, {"text", text}});
  }
  void Write(const std::string& store, const std::string& section, const std::string& key,
             const Json& value);
  Json Dump(const std::string& store) { return Do({{"do", "dump"}, {"store", store}})["values"]; }
  /// The top window's description; null when none is open.
  Json Top();
  /// The nodes of the page tree.
  Json Nodes() { return Do({{"do", "tree"}})["nodes"]; }
  /// Clicks a node; the page selected afterwards.
  int Select(int page);
  /// Clicks OK (1) or Cancel (2); the status that the entry point returned, -1 when it did not.
  int End(int control);

  /// Closes the program's input and waits for its end; the exit status.
  int Close();

 private:
  Json ReadLine();

  std::string program_ = HOST_PROGRAM;
  int process_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string buffer_;
  std::vector<Json> events_;
};
