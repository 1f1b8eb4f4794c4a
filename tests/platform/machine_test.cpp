// What is asked of the machine: its registry and its processors.

#include <gtest/gtest.h>
#include <sched.h>

#include "platform/registry.h"
#include "platform/system_info.h"
#include "platform/text.h"
#include "support/fake_machine.h"

namespace {

TEST(Registry, KeysAndValuesAreFoundWhateverTheirCase) {
  ScopedMachine machine;
  machine->registry[L"HKEY_CURRENT_USER\\A\\B"] = {{L"Name", {REG_SZ, {1, 2, 3}}}};
  HKEY key = nullptr;
  EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"A", 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(RegOpenKeyExW(nullptr, L"A\\B", 0, KEY_READ, &key), ERROR_INVALID_HANDLE);
  EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"A\\B", 0, KEY_READ, nullptr),
            ERROR_INVALID_PARAMETER);
  ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"A\\B", 0, KEY_READ, &key), ERROR_SUCCESS);

  BYTE bytes[3] = {};
  DWORD type = 0, size = sizeof(bytes);
  EXPECT_EQ(RegQueryValueExW(key, L"nAME", nullptr, &type, bytes, &size), ERROR_SUCCESS);
  EXPECT_EQ(type, REG_SZ);
  EXPECT_EQ(size, 3U);
  EXPECT_EQ(bytes[2], 3);
  size = 2;
  bytes[0] = 9;
  EXPECT_EQ(RegQueryValueExW(key, L"Name", nullptr, &type, bytes, &size), ERROR_MORE_DATA);
  EXPECT_EQ(size, 3U);
  EXPECT_EQ(bytes[0], 9);
  size = 0;
  EXPECT_EQ(RegQueryValueExW(key, L"Name", nullptr, nullptr, nullptr, &size), ERROR_SUCCESS);
  EXPECT_EQ(size, 3U);
  EXPECT_EQ(RegQueryValueExW(key, L"Other", nullptr, &type, bytes, &size), ERROR_FILE_NOT_FOUND);
  EXPECT_EQ(RegQueryValueExW(key, L"Name", nullptr, &type, bytes, nullptr),
            ERROR_INVALID_PARAMETER);

  EXPECT_EQ(RegCloseKey(key), ERROR_SUCCESS);
  EXPECT_EQ(RegCloseKey(key), ERROR_INVALID_HANDLE);
  EXPECT_EQ(RegQueryValueExW(key, L"Name", nullptr, &type, bytes, &size), ERROR_INVALID_HANDLE);
}

TEST(Registry, ThisSystemHasNone) {
  HKEY key = nullptr;
  EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, L"SOFTWARE", 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
}

TEST(Registry, TextsAreKeptInUnitsOfTwoBytes) {
  EXPECT_EQ(ToRegistryText(L"\u00e9\U0001F600"),
            (std::vector<BYTE>{0xE9, 0, 0x3D, 0xD8, 0x00, 0xDE, 0, 0}));
  const struct {
    std::vector<BYTE> bytes;
    const wchar_t* text;
  } rows[] = {{{}, L""},
              {{0x41}, L""},
              {{0x41, 0, 0x42}, L"A"},
              {{0x3D, 0xD8, 0x00, 0xDE}, L"\U0001F600"},
              {{0x3D, 0xD8, 0x41, 0}, L"\uFFFDA"},
              {{0x00, 0xDE}, L"\uFFFD"}};
  for (const auto& row : rows) EXPECT_EQ(FromUtf16(row.bytes), row.text);
}

TEST(SystemInfo, OnlyTheProcessorsThatTheProcessMayUseCount) {
  cpu_set_t all, one;
  ASSERT_EQ(sched_getaffinity(0, sizeof(all), &all), 0);
  SYSTEM_INFO info;
  GetSystemInfo(&info);
  EXPECT_EQ(info.dwNumberOfProcessors, static_cast<DWORD>(CPU_COUNT(&all)));
  int first = 0;
  while (!CPU_ISSET(first, &all)) ++first;
  CPU_ZERO(&one);
  CPU_SET(first, &one);
  ASSERT_EQ(sched_setaffinity(0, sizeof(one), &one), 0);
  GetSystemInfo(&info);
  EXPECT_EQ(info.dwNumberOfProcessors, 1U);
  EXPECT_EQ(sched_setaffinity(0, sizeof(all), &all), 0);
}

}  // namespace
