#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "flumbrel/flumbrel.h"
#include "platform/machine.h"
#include "platform/path_map.h"

namespace FLUMBREL {
namespace {

HRESULT FailWith(int error) {
  SetLastError(static_cast<DWORD>(error));
  return E_FAIL;
}

class CFileStream final : public INTERNAL_IFC::IFileStream {
 public:
  explicit CFileStream(int descriptor) : descriptor_(descriptor) {}
  ~CFileStream() override { close(descriptor_); }
  CFileStream(const CFileStream&) = delete;
  CFileStream& operator=(const CFileStream&) = delete;

  HRESULT Read(void* buffer, std::uint32_t size, std::uint32_t* count) override {
    if (buffer == nullptr || count == nullptr) return E_INVALIDARG;
    if (GetMachine().Fails(L"Read")) return FailWith(EIO);
    *count = 0;
    while (*count < size) {
      const ssize_t got = read(descriptor_, static_cast<char*>(buffer) + *count, size - *count);
      if (got < 0 && errno == EINTR) continue;
      if (got < 0) return FailWith(errno);
      if (got == 0) break;
      *count += static_cast<std::uint32_t>(got);
    }
    return S_OK;
  }

 private:
  int descriptor_;
};

/// 0 for a regular file, else the system's error number that says best what it is.
int CheckRegular(int descriptor) {
  struct stat status = {};
  if (fstat(descriptor, &status) != 0) return errno;
  if (S_ISDIR(status.st_mode)) return EISDIR;
  return S_ISREG(status.st_mode) ? 0 : EINVAL;
}

}  // namespace

HRESULT OpenRead(const std::wstring& path, std::int32_t mode,
                 std::shared_ptr<INTERNAL_IFC::IFileStream>* stream) {
  if (stream == nullptr || mode != kSharedReading) return E_INVALIDARG;
  if (GetMachine().Fails(L"OpenRead")) return FailWith(EACCES);
  const auto name = NativeFileName(path);
  if (!name) return E_FAIL;
  // Without O_NONBLOCK opening a pipe would wait for somebody to write into it.
  const int descriptor = open(name->c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return FailWith(errno);
  const auto opened = std::make_shared<CFileStream>(descriptor);
  if (const int error = CheckRegular(descriptor)) return FailWith(error);
  *stream = opened;
  return S_OK;
}

}  // namespace FLUMBREL
