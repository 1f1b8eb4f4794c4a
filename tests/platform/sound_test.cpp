#include "platform/sound.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sndfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <numeric>

#include "support/fake_machine.h"

namespace {

constexpr UINT kFlags = SND_FILENAME | SND_ASYNC;

/// A folder with sounds, and a sound system whose one device writes what it plays into a pipe.
class Sound : public testing::Test {
 protected:
  Sound() {
    mkfifo(Path("device").c_str(), 0600);
    pipe_ = open(Path("device").c_str(), O_RDWR);
    std::iota(samples_.begin(), samples_.end(), short{-500});
    Configure(
        "pcm.silent { type null }\n"
        "pcm.!default { type file slave.pcm silent format raw file \"" +
        Path("device") + "\" }\n");
  }
  ~Sound() override {
    close(pipe_);
    unsetenv("ALSA_CONFIG_PATH");
  }

  std::string Path(const char* name) const { return folder_.filePath(name).toStdString(); }
  std::wstring Wide(const char* name) const { return folder_.filePath(name).toStdWString(); }
  void Put(const char* name, const QByteArray& bytes) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size());
  }
  void Configure(const std::string& text) {
    Put("asound.conf", QByteArray::fromStdString(text));
    setenv("ALSA_CONFIG_PATH", Path("asound.conf").c_str(), 1);
  }
  void WriteSound(const char* name, int format) {
    SF_INFO info = {};
    info.format = format;
    info.samplerate = 22050;
    info.channels = 1;
    SNDFILE* file = sf_open(Path(name).c_str(), SFM_WRITE, &info);
    ASSERT_NE(file, nullptr) << sf_strerror(nullptr);
    sf_write_short(file, samples_.data(), static_cast<sf_count_t>(samples_.size()));
    sf_close(file);
  }
  /// What the device played; waits until all of it came.
  std::vector<short> Played() {
    std::vector<short> played(samples_.size());
    auto* bytes = reinterpret_cast<char*>(played.data());
    for (std::size_t have = 0, all = played.size() * sizeof(short); have < all;) {
      const ssize_t count = read(pipe_, bytes + have, all - have);
      if (count <= 0) return {};
      have += static_cast<std::size_t>(count);
    }
    return played;
  }

  QTemporaryDir folder_;
  int pipe_ = -1;
  std::vector<short> samples_ = std::vector<short>(1000);
};

TEST_F(Sound, EverySampleIsPlayed) {
  const struct {
    const char* name;
    int format;
    bool exact;
  } rows[] = {
      {"a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, true},
      {"b.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_24, true},
      {"c.ogg", SF_FORMAT_OGG | SF_FORMAT_VORBIS, false},
  };
  for (const auto& row : rows) {
    WriteSound(row.name, row.format);
    ASSERT_TRUE(PlaySoundW(Wide(row.name), kFlags)) << row.name;
    const auto played = Played();
    ASSERT_EQ(played.size(), samples_.size()) << row.name;
    if (row.exact) {
      EXPECT_EQ(played, samples_) << row.name;
    }
  }
}

TEST_F(Sound, WhatIsNoSoundFails) {
  WriteSound("a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  Put("text.wav", "no sound at all");
  Put("empty.wav", "");
  for (const char* name : {"text.wav", "empty.wav", "missing.wav", "", "device"}) {
    EXPECT_FALSE(PlaySoundW(Wide(name), kFlags)) << name;
  }
  EXPECT_FALSE(PlaySoundW(L"", kFlags));
  EXPECT_FALSE(PlaySoundW(Wide("a.wav"), SND_FILENAME));
  Configure("pcm.silent { type null }\n");
  EXPECT_FALSE(PlaySoundW(Wide("a.wav"), kFlags)) << "there is no device";
}

TEST_F(Sound, TheMachineMayPlayInstead) {
  ScopedMachine machine;
  machine->sound = true;
  EXPECT_TRUE(PlaySoundW(Wide("missing.wav"), kFlags));
  machine->sound = false;
  WriteSound("a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  EXPECT_FALSE(PlaySoundW(Wide("a.wav"), kFlags));
}

}  // namespace
