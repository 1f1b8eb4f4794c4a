#include "platform/sound.h"

#include <alsa/asoundlib.h>
#include <sndfile.h>
#include <sys/stat.h>

#include <array>
#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <thread>

#include "platform/machine.h"
#include "platform/path_map.h"

namespace {

constexpr auto kLongestStart = std::chrono::seconds(1);
constexpr unsigned kLatency = 200'000;   ///< Of the device's buffer, in microseconds.
constexpr int kWait = 100;               ///< For room in the buffer, in milliseconds.
constexpr int kSilentWaits = 20;         ///< Waits without room until the device counts as dead.
constexpr std::size_t kBlock = 1 << 13;  ///< Samples read at a time.

struct CloseSoundFile {
  void operator()(SNDFILE* file) const { sf_close(file); }
};
struct CloseDevice {
  void operator()(snd_pcm_t* device) const { snd_pcm_close(device); }
};
using SoundFile = std::unique_ptr<SNDFILE, CloseSoundFile>;
using Device = std::unique_ptr<snd_pcm_t, CloseDevice>;

/// Shared by the caller and the thread that plays; set once the sound shall stop.
using StopFlag = std::shared_ptr<std::atomic<bool>>;

/// Without a device the sound system would explain itself on standard error.
void KeepQuiet(const char*, int, const char*, int, const char*, ...) {}

/// The default device for that sound; it never makes its user wait. Null when there is none.
Device OpenDevice(const SF_INFO& format) {
  snd_lib_error_set_handler(KeepQuiet);
  snd_pcm_t* opened = nullptr;
  if (snd_pcm_open(&opened, "default", SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) < 0) return {};
  Device device(opened);
  const int status = snd_pcm_set_params(opened, SND_PCM_FORMAT_S16, SND_PCM_ACCESS_RW_INTERLEAVED,
                                        static_cast<unsigned>(format.channels),
                                        static_cast<unsigned>(format.samplerate), 1, kLatency);
  return status < 0 ? Device() : std::move(device);
}

/// Hands the frames to the device. False when the device fails or the sound was stopped.
bool Write(snd_pcm_t* device, const short* samples, sf_count_t frames, int channels,
           const std::atomic<bool>& stop) {
  int silentWaits = 0;
  while (frames > 0 && !stop && silentWaits < kSilentWaits) {
    const snd_pcm_sframes_t written =
        snd_pcm_writei(device, samples, static_cast<snd_pcm_uframes_t>(frames));
    if (written > 0) {
      samples += written * channels;
      frames -= written;
      silentWaits = 0;
    } else if (written == -EAGAIN || written == 0) {
      ++silentWaits;
      snd_pcm_wait(device, kWait);
    } else if (snd_pcm_recover(device, static_cast<int>(written), 1) < 0) {
      return false;
    }
  }
  return frames == 0;
}

/// Lets the device play what it holds still.
void PlayOut(snd_pcm_t* device, const std::atomic<bool>& stop) {
  // Draining a device that does not wait only starts it.
  for (int waits = 0; waits < kSilentWaits && !stop && snd_pcm_drain(device) == -EAGAIN; ++waits) {
    std::this_thread::sleep_for(std::chrono::milliseconds(kWait));
  }
}

/// The thread that plays. `begun` learns whether the sound has a device.
void Play(SoundFile file, SF_INFO format, const StopFlag& stop, std::promise<bool> begun) {
  const Device device = OpenDevice(format);
  begun.set_value(device != nullptr);
  if (device == nullptr) return;
  std::array<short, kBlock> samples;
  const auto frames = static_cast<sf_count_t>(samples.size()) / format.channels;
  for (;;) {
    const sf_count_t read = sf_readf_short(file.get(), samples.data(), frames);
    if (read <= 0) break;
    if (!Write(device.get(), samples.data(), read, format.channels, *stop)) return;
  }
  PlayOut(device.get(), *stop);
}

/// Only a regular file: opening another kind could wait for ever.
SoundFile OpenSound(const std::string& name, SF_INFO& format) {
  struct stat status = {};
  if (stat(name.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return {};
  SoundFile file(sf_open(name.c_str(), SFM_READ, &format));
  const bool usable = file != nullptr && format.channels > 0 && format.samplerate > 0 &&
                      format.channels <= static_cast<int>(kBlock);
  return usable ? std::move(file) : SoundFile();
}

/// Starts the sound in place of the one that plays. The thread owns all that it uses, so that a
/// device that never answers holds up neither the caller nor the end of the process.
bool Start(SoundFile file, const SF_INFO& format) {
  static StopFlag playing = std::make_shared<std::atomic<bool>>(false);
  *playing = true;
  playing = std::make_shared<std::atomic<bool>>(false);
  std::promise<bool> begun;
  std::future<bool> answer = begun.get_future();
  std::thread(Play, std::move(file), format, playing, std::move(begun)).detach();
  if (answer.wait_for(kLongestStart) == std::future_status::ready) return answer.get();
  *playing = true;
  return false;
}

}  // namespace

BOOL PlaySoundW(const std::wstring& path, UINT flags) {
  if (flags != (SND_FILENAME | SND_ASYNC)) return FALSE;
  if (const auto answer = GetMachine().PlaysSound(path)) return *answer ? TRUE : FALSE;
  const auto name = NativeFileName(path);
  SF_INFO format = {};
  SoundFile file = name ? OpenSound(*name, format) : SoundFile();
  return file != nullptr && Start(std::move(file), format) ? TRUE : FALSE;
}
