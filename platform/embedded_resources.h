#pragma once

#include <cstddef>
#include <span>

/// The compiled resource script of the library that calls; every library with one has its own.
__attribute__((visibility("hidden"))) std::span<const std::byte> EmbeddedResources();
