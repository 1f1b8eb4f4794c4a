#include "drive/session.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>

extern char** environ;

namespace {

// A program that never answers must not hold up the whole run: every session renews this alarm,
// whose signal ends the test program.
constexpr unsigned kAlarmSeconds = 120;

struct Pipe {
  int reading = -1;
  int writing = -1;
  Pipe() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) std::abort();
    reading = ends[0];
    writing = ends[1];
  }
};

void CloseDescriptor(int& descriptor) {
  if (descriptor >= 0) close(descriptor);
  descriptor = -1;
}

int Spawn(const std::vector<std::string>& arguments, int input, int output, int errors) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  if (errors >= 0) posix_spawn_file_actions_adddup2(&actions, errors, STDERR_FILENO);
  std::vector<char*> words;
  for (const std::string& argument : arguments)
    words.push_back(const_cast<char*>(argument.c_str()));
  words.push_back(nullptr);
  int process = -1;
  const int failed = posix_spawn(&process, words[0], &actions, nullptr, words.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  return failed == 0 ? process : -1;
}

int WaitFor(int process) {
  int status = 0;
  if (waitpid(process, &status, 0) != process || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

std::vector<std::string> CommonArguments(const std::string& command, const TemporaryFolder& data) {
  return {HOST_PROGRAM, command, "--data", data.Path(), "--lang-dir", kShippedLanguages};
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::string name = std::filesystem::temp_directory_path() / "quarrow-test-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) std::abort();
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void WriteFile(const std::string& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
}

std::string ReadFile(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

Finished RunHost(const TemporaryFolder& data, std::vector<std::string> arguments) {
  alarm(kAlarmSeconds);
  const TemporaryFolder results;
  std::vector<std::string> all = CommonArguments(arguments.front(), data);
  all.insert(all.end(), arguments.begin() + 1, arguments.end());
  int input = open("/dev/null", O_RDONLY | O_CLOEXEC);
  int output = open((results / "out").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  int errors = open((results / "err").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  Finished finished;
  finished.status = WaitFor(Spawn(all, input, output, errors));
  for (int* descriptor : {&input, &output, &errors}) CloseDescriptor(*descriptor);
  finished.output = ReadFile(results / "out");
  finished.errors = ReadFile(results / "err");
  return finished;
}

Session::Session(const TemporaryFolder& data, const Json& machine, const std::string& languages) {
  alarm(kAlarmSeconds);
  std::signal(SIGPIPE, SIG_IGN);
  const std::string file = data / "machine.json";
  WriteFile(file, machine.dump());
  std::vector<std::string> arguments = CommonArguments("drive", data);
  arguments.back() = languages;
  arguments.insert(arguments.end(), {"--machine", file});
  Pipe input, output;
  process_ = Spawn(arguments, input.reading, output.writing, -1);
  EXPECT_GT(process_, 0);
  CloseDescriptor(input.reading);
  CloseDescriptor(output.writing);
  input_ = input.writing;
  output_ = output.reading;
}

Session::~Session() { Close(); }

Json Session::ReadLine() {
  std::size_t end = 0;
  while ((end = buffer_.find('\n')) == std::string::npos) {
    char chunk[65536];
    const ssize_t count = read(output_, chunk, sizeof chunk);
    if (count <= 0) return nullptr;
    buffer_.append(chunk, static_cast<std::size_t>(count));
  }
  Json line = Json::parse(buffer_.substr(0, end), nullptr, false);
  buffer_.erase(0, end + 1);
  return line;
}

Json Session::Send(const std::string& line) {
  const std::string text = line + "\n";
  if (write(input_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    ADD_FAILURE() << "the program does not take " << line;
    return nullptr;
  }
  while (true) {
    Json reply = ReadLine();
    if (!reply.is_object()) ADD_FAILURE() << "no reply to " << line;
    if (!reply.is_object() || !reply.contains("event")) return reply;
    events_.push_back(std::move(reply));
  }
}

Json Session::Do(const Json& request) {
  const Json reply = Send(request);
  EXPECT_TRUE(reply.value("ok", false)) << request << " gave " << reply;
  return reply;
}

std::string Session::Refused(const Json& request) {
  const Json reply = Send(request);
  EXPECT_FALSE(reply.value("ok", true)) << request << " gave " << reply;
  return reply.value("error", "");
}

std::vector<Json> Session::TakeEvents() { return std::exchange(events_, {}); }

void Session::Write(const std::string& store, const std::string& section, const std::string& key,
                    const Json& value) {
  const char* type = value.is_boolean() ? "bool" : value.is_string() ? "string" : "int";
  Do({{"do", "write"},
      {"store", store},
      {"section", section},
      {"key", key},
      {"type", type},
      {"value", value}});
}

Json Session::Top() {
  const Json windows = Do({{"do", "windows"}})["windows"];
  return windows.empty() ? Json() : windows.front();
}

int Session::Select(int page) {
  const int row = Do({{"do", "select"}, {"page", page}}).value("selected", -1);
  const Json nodes = Nodes();
  for (const Json& node : nodes) {
    if (node["row"] == row) return node["page"];
  }
  return -1;
}

int Session::End(int control) {
  TakeEvents();
  Do({{"do", control == 1 ? "ok" : "cancel"}});
  const std::vector<Json> events = TakeEvents();
  return events.size() == 1 ? events.front()["status"].get<int>() : -1;
}

int Session::Close() {
  if (process_ < 0) return -1;
  CloseDescriptor(input_);
  for (Json line = ReadLine(); line.is_object(); line = ReadLine()) {
    if (line.contains("event")) events_.push_back(line);
  }
  CloseDescriptor(output_);
  return WaitFor(std::exchange(process_, -1));
}
