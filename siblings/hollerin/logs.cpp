// The application's logs.

#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <utility>

#include "hollerin/application.h"
#include "hollerin/code_points.h"
#include "hollerin/system_file.h"
#include "hollerin/temporary_file.h"
#include "platform/text.h"

namespace HOLLERIN {
namespace {

/// UTC with milliseconds, as ISO 8601 writes it.
std::string TimeStamp() {
  timeval now{};
  gettimeofday(&now, nullptr);
  std::tm parts{};
  gmtime_r(&now.tv_sec, &parts);
  char date[32];
  char stamp[48];
  std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%S", &parts);
  std::snprintf(stamp, sizeof stamp, "%s.%03dZ", date, static_cast<int>(now.tv_usec / 1000));
  return stamp;
}

bool BreaksLine(wchar_t character) {
  const auto code = CodeOf(character);
  return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x2028 || code == 0x2029;
}

/// The text on one line: nothing in it can look like the start of another entry.
std::wstring OnOneLine(const std::wstring& text) {
  std::wstring line;
  for (const wchar_t character : text) {
    if (character == L'\n') {
      line += L"\\n";
    } else if (character == L'\r') {
      line += L"\\r";
    } else if (BreaksLine(character)) {
      wchar_t escape[16];
      std::swprintf(escape, std::size(escape), L"\\u{%X}", static_cast<unsigned>(character));
      line += escape;
    } else {
      line += character;
    }
  }
  return line;
}

class CFileLog : public INTERNAL_IFC::ILogMgr {
 public:
  explicit CFileLog(const std::wstring& path) : named_(ToSystemPath(path, path_)) {}

  void LogLine(const std::wstring& text) override { Append(ToUtf8(OnOneLine(text))); }

  void LogError(const INTERNAL_IFC::ErrorRecord& record, const std::wstring& text) override {
    char facts[80];
    std::snprintf(facts, sizeof facts, "[status 0x%08x, system error %u, line %d] ",
                  static_cast<unsigned>(record.status), record.systemError, record.line);
    Append(facts + ToUtf8(OnOneLine(text.empty() ? record.task : text)));
  }

 private:
  /// One entry is one write, so that entries of several processes never mix.
  void Append(const std::string& text) {
    const std::string line = TimeStamp() + ' ' + text + '\n';
    const int error = named_ ? AppendBytes(line) : EINVAL;
    if (error == 0 || reported_) return;
    reported_ = true;
    std::fprintf(stderr, "%s: the log cannot be written: %s\n", path_.c_str(),
                 ToUtf8(SystemText(error)).c_str());
  }

  int AppendBytes(const std::string& line) {
    const Descriptor file(
        open(path_.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0600));
    if (!file) return errno;
    const ssize_t count = write(file.Get(), line.data(), line.size());
    if (count < 0) return errno;
    return static_cast<std::size_t>(count) == line.size() ? 0 : ENOSPC;
  }

  std::string path_;
  bool named_;
  bool reported_ = false;
};

class CMemoryLog : public MemoryLog {
 public:
  explicit CMemoryLog(std::shared_ptr<INTERNAL_IFC::ILogMgr> next) : next_(std::move(next)) {}

  void LogLine(const std::wstring& text) override {
    lines_.push_back(text);
    if (next_ != nullptr) next_->LogLine(text);
  }

  void LogError(const INTERNAL_IFC::ErrorRecord& record, const std::wstring& text) override {
    lines_.push_back(text.empty() ? record.task : text);
    if (next_ != nullptr) next_->LogError(record, text);
  }

  std::vector<std::wstring> TakeLines() override { return std::exchange(lines_, {}); }

 private:
  std::vector<std::wstring> lines_;
  std::shared_ptr<INTERNAL_IFC::ILogMgr> next_;
};

}  // namespace

std::shared_ptr<INTERNAL_IFC::ILogMgr> CreateFileLog(const std::wstring& path) {
  return std::make_shared<CFileLog>(path);
}

std::shared_ptr<MemoryLog> CreateMemoryLog(std::shared_ptr<INTERNAL_IFC::ILogMgr> next) {
  return std::make_shared<CMemoryLog>(std::move(next));
}

}  // namespace HOLLERIN
