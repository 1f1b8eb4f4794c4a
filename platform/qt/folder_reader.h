#pragma once

// Reads folders in the background. Private to the platform layer.

#include <QObject>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "platform/qt/folder_names.h"

/// Reads one folder at a time, each on a thread of its own. A folder that hangs keeps its thread,
/// which nobody waits for: a few may, then what is asked waits until one of them returns.
class FolderReader : public QObject {
 public:
  using Names = std::shared_ptr<const FolderNames>;
  using Receiver = std::function<void(const Names&)>;

  FolderReader();
  ~FolderReader() override;

  /// Reads the folder of either style of path, and hands its names to `receiver` from the event
  /// loop. An earlier request is given up.
  void Read(const std::wstring& folder, Receiver receiver);
  void GiveUp();
  /// A request has not been answered.
  bool IsBusy() const { return receiver_ != nullptr; }

 private:
  struct Mailbox {
    std::mutex guard;
    FolderReader* reader = nullptr;  ///< Null once the reader is gone.
  };
  using Cancelled = std::shared_ptr<std::atomic<bool>>;

  void Start();
  void OnRead(const Cancelled& request, const Names& names);

  std::shared_ptr<Mailbox> mailbox_ = std::make_shared<Mailbox>();
  std::wstring folder_;
  Receiver receiver_;
  Cancelled request_;  ///< The one being read for the receiver; null while it waits.
  int threads_ = 0;
};
