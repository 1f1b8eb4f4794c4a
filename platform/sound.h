#pragma once

// Playing a sound file.

#include <string>

#include "platform/types.h"

constexpr UINT SND_ASYNC = 0x00000001;
constexpr UINT SND_FILENAME = 0x00020000;

/// Plays the sound file at `path`, of either style, once; a sound that still plays is cut off. WAV
/// and OGG files are played, and what else the sound library reads. Returns when the sound has
/// begun and lets it play on. FALSE, with nothing playing, when the file is no sound or cannot be
/// read, when no sound device answers within a second, and when the flags are not SND_FILENAME |
/// SND_ASYNC. The machine in use may take the call in the player's place.
BOOL PlaySoundW(const std::wstring& path, UINT flags);
