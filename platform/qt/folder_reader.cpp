#include "platform/qt/folder_reader.h"

#include <system_error>
#include <thread>
#include <utility>

#include "platform/machine.h"
#include "platform/path_map.h"

namespace {

constexpr int kMostThreads = 4;

}  // namespace

FolderReader::FolderReader() { mailbox_->reader = this; }

FolderReader::~FolderReader() {
  GiveUp();
  const std::lock_guard lock(mailbox_->guard);
  mailbox_->reader = nullptr;
}

void FolderReader::Read(const std::wstring& folder, Receiver receiver) {
  GiveUp();
  folder_ = folder;
  receiver_ = std::move(receiver);
  if (threads_ < kMostThreads) Start();
}

void FolderReader::GiveUp() {
  receiver_ = nullptr;
  if (const Cancelled request = std::exchange(request_, nullptr)) *request = true;
}

void FolderReader::Start() {
  request_ = std::make_shared<std::atomic<bool>>(false);
  const auto work = [folder = folder_, request = request_, mailbox = mailbox_,
                     machine = ShareMachine(), drives = GetMachine().Drives()] {
    // Finding the place of a Windows-style path reads folders, too.
    const std::wstring native = NativePath(folder, drives);
    std::vector<std::wstring> read;
    if (!native.empty()) read = machine->FolderNames(native, *request);
    const auto names = std::make_shared<const FolderNames>(read);
    const std::lock_guard lock(mailbox->guard);
    FolderReader* reader = mailbox->reader;
    if (reader == nullptr) return;
    QMetaObject::invokeMethod(
        reader, [reader, request, names] { reader->OnRead(request, names); }, Qt::QueuedConnection);
  };
  try {
    std::thread(work).detach();
    ++threads_;
  } catch (const std::system_error&) {
    GiveUp();  // No thread can be had: nothing is suggested.
  }
}

void FolderReader::OnRead(const Cancelled& request, const Names& names) {
  --threads_;
  if (request == request_) {
    request_ = nullptr;
    if (const Receiver receiver = std::exchange(receiver_, nullptr)) receiver(names);
  } else if (receiver_ != nullptr && request_ == nullptr) {
    Start();
  }
}
