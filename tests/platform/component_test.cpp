// Components: how registrations are found, and what is never loaded.

#include "platform/component.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "hollerin/temporary_folder.h"
#include "platform/key_file.h"
#include "platform/text.h"
#include "support/fake_machine.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kClass = "{12345678-9aBC-def0-0102-030405060708}";

/// A component folder with a good component; a second one lies outside of it.
class Components : public testing::Test {
 protected:
  Components() {
    fs::create_directories(folder_ / "sub");
    machine_->componentFolders = {root_ / "missing", folder_};
    fs::copy(COMPONENT, folder_ / "good.so");
    Register("Acme.Transform.1", kClass, "good.so");
    for (const char* name : {"outside.so", "components/sub/outside.so"})
      fs::copy(COMPONENT, root_ / name);
    Put(root_ / "outside.component", Registration(kClass, "outside.so"));
    unsetenv("LOADED_COMPONENT");
  }

  static std::string Registration(const std::string& classId, const std::string& library) {
    return "[Component]\nClass=" + classId + "\nLibrary=" + library + "\n";
  }
  void Register(const std::string& name, const std::string& classId, const std::string& library) {
    Put(folder_ / (name + ".component"), Registration(classId, library));
  }

  /// The shared object that was loaded last; empty for none.
  static std::string Loaded() {
    const char* path = getenv("LOADED_COMPONENT");
    return path != nullptr ? path : "";
  }

  static HRESULT Create(const std::wstring& progId, DWORD context = CLSCTX_ALL,
                        const IID& iid = IID_IUnknown) {
    CLSID classId;
    if (const HRESULT status = CLSIDFromProgID(progId, &classId); FAILED(status)) return status;
    void* object = nullptr;
    const HRESULT status = CoCreateInstance(classId, nullptr, context, iid, &object);
    EXPECT_EQ(object != nullptr, SUCCEEDED(status));
    if (object != nullptr) {
      EXPECT_EQ(static_cast<IUnknown*>(object)->Release(), 0U);
    }
    return status;
  }

  ScopedMachine machine_;
  TemporaryFolder root_;
  fs::path folder_ = root_ / "components";
};

TEST_F(Components, ARegisteredComponentIsMadeAndReleased) {
  EXPECT_EQ(Create(L"Acme.Transform.1"), S_OK);
  EXPECT_EQ(Create(L"ACME.transform.1"), S_OK);
  EXPECT_EQ(Loaded(), fs::canonical(folder_ / "good.so").string());
  void* loaded = dlopen((folder_ / "good.so").c_str(), RTLD_NOW | RTLD_NOLOAD);
  ASSERT_NE(loaded, nullptr);
  EXPECT_EQ(reinterpret_cast<int (*)()>(dlsym(loaded, "LiveObjects"))(), 0);
  dlclose(loaded);

  EXPECT_EQ(Create(L"Acme.Transform.1", CLSCTX_LOCAL_SERVER), REGDB_E_CLASSNOTREG);
  EXPECT_EQ(Create(L"Acme.Transform.1", CLSCTX_ALL, IID_IClassFactory), E_NOINTERFACE);
  EXPECT_EQ(Create(L"Acme.Transform.2"), CO_E_CLASSSTRING);
}

TEST_F(Components, WhatIsTypedIsNeverAPath) {
  const std::wstring folder = (root_ / "").wstring();
  const std::wstring names[] = {
      L"",
      L" ",
      L".",
      L"..",
      L"../outside",
      folder + L"outside",
      folder + L"outside.so",
      L"..\\outside",
      L"sub/outside",
      L".Acme",
      L"Acme.Transform.1/",
      L"Acme.Transform.1.component",
      L"good.so",
      L"Acme Transform",
      std::wstring(L"Acme.Transform.1\0", 17),
      std::wstring(L"Acme.Transform.1\0/../outside", 28),
      L"\u00c4cme",
      std::wstring(10000, L'A'),
      L"../" + std::wstring(10000, L'A'),
  };
  for (const std::wstring& name : names) {
    EXPECT_EQ(Create(name), CO_E_CLASSSTRING) << ToUtf8(name.substr(0, 50));
  }
  EXPECT_EQ(Loaded(), "");
}

TEST_F(Components, ARegistrationLeadsNowhereElse) {
  Put(folder_ / "text.so", "no shared object");
  fs::copy(NO_COMPONENT, folder_ / "bare.so");
  fs::create_symlink(root_ / "outside.so", folder_ / "link.so");
  fs::create_symlink("good.so", folder_ / "inside.so");
  fs::copy(COMPONENT, folder_ / ".hidden.so");
  const struct {
    std::string library;
    HRESULT status;
  } kCases[] = {
      {"../outside.so", CO_E_CLASSSTRING},
      {root_ / "outside.so", CO_E_CLASSSTRING},
      {"sub/outside.so", CO_E_CLASSSTRING},
      {".hidden.so", CO_E_CLASSSTRING},
      {"", CO_E_CLASSSTRING},
      {std::string(300, 'x'), CO_E_CLASSSTRING},
      {"link.so", CO_E_DLLNOTFOUND},
      {"missing.so", CO_E_DLLNOTFOUND},
      {"sub", CO_E_DLLNOTFOUND},
      {"libc.so.6", CO_E_DLLNOTFOUND},
      {"text.so", CO_E_DLLNOTFOUND},
      {"bare.so", CO_E_ERRORINDLL},
  };
  fs::remove(folder_ / "Acme.Transform.1.component");
  for (const auto& row : kCases) {
    Register("Acme", kClass, row.library);
    EXPECT_EQ(Create(L"Acme"), row.status) << row.library.substr(0, 50);
  }
  EXPECT_EQ(Loaded(), "");
  Register("Acme", kClass, "inside.so");
  EXPECT_EQ(Create(L"Acme"), S_OK) << "a link within the folder";
  Register("Acme", "{02345678-9abc-def0-0102-030405060708}", "good.so");
  EXPECT_EQ(Create(L"Acme"), REGDB_E_CLASSNOTREG) << "a class that the component does not have";
}

TEST_F(Components, DamagedRegistrationsDoNotCount) {
  const std::string good = Registration(kClass, "good.so");
  const std::string damaged[] = {
      "",
      "Class=" + std::string(kClass),
      "[Component]\nLibrary=good.so\n",
      "[Component]\nClass=" + std::string(kClass),
      Registration("12345678-9abc-def0-0102-030405060708", "good.so"),
      Registration("{12345678-9abc-def0-0102-03040506070}", "good.so"),
      Registration("{12345678-9abc-def0-0102-0304050607+8}", "good.so"),
      Registration("{1234567g-9abc-def0-0102-030405060708}", "good.so"),
      good + std::string(5000, '#'),
      good + "\xff",
      good + "a line of no kind\n",
      good + std::string("x=\0", 3),
  };
  for (const std::string& text : damaged) {
    Put(folder_ / "Acme.component", text);
    EXPECT_EQ(Create(L"Acme"), CO_E_CLASSSTRING) << text.substr(0, 100);
  }
  fs::remove(folder_ / "Acme.component");
  ASSERT_EQ(mkfifo((folder_ / "Acme.component").c_str(), 0600), 0);
  EXPECT_EQ(Create(L"Acme"), CO_E_CLASSSTRING) << "a pipe, which nobody writes into";
}

TEST_F(Components, TheBetterFolderAnswers) {
  const fs::path better = root_ / "missing";
  fs::create_directory(better);
  fs::copy(COMPONENT, better / "better.so");
  Put(better / "acme.TRANSFORM.1.component", "damaged");
  EXPECT_EQ(Create(L"Acme.Transform.1"), S_OK);
  EXPECT_EQ(Loaded(), fs::canonical(folder_ / "good.so").string());
  Put(better / "acme.TRANSFORM.1.component", Registration(kClass, "better.so"));
  EXPECT_EQ(Create(L"Acme.Transform.1"), S_OK);
  EXPECT_EQ(Loaded(), fs::canonical(better / "better.so").string());
}

TEST_F(Components, TheMachineDictates) {
  machine_->components = {{L"Alpha.1", L"Beta.1"}};
  EXPECT_EQ(Create(L"beta.1"), S_OK);
  EXPECT_EQ(Create(L"Acme.Transform.1"), CO_E_CLASSSTRING);
  EXPECT_EQ(Create(L"Beta.1", CLSCTX_ALL, IID_IClassFactory), E_NOINTERFACE);
  void* object = nullptr;
  EXPECT_EQ(CoCreateInstance({.Data1 = 3}, nullptr, CLSCTX_ALL, IID_IUnknown, &object),
            REGDB_E_CLASSNOTREG);
  for (const wchar_t* operation : {L"CLSIDFromProgID", L"CoCreateInstance"}) {
    machine_->fails = operation;
    EXPECT_EQ(Create(L"Beta.1"), E_FAIL);
  }
}

TEST(KeyFiles, AreReadLineByLine) {
  const auto file = KeyFile::Parse("# x\n\n[A b]\r\n k = v = w \nk[de]=\n[B]\nk=1\n[A b]\nk=2");
  ASSERT_TRUE(file.has_value());
  EXPECT_EQ(*file->Find("A b", "k"), "2");
  EXPECT_EQ(*file->Find("A b", "k[de]"), "");
  EXPECT_EQ(*file->Find("B", "k"), "1");
  EXPECT_EQ(file->Find("B", "x"), nullptr);
  EXPECT_EQ(file->Find("C", "k"), nullptr);
  EXPECT_EQ(*KeyFile::Parse("[A]\nk = v = w ")->Find("A", "k"), "v = w");
  for (const char* bad : {"k=v", "[A\n", "[]", "[A]\nk", "[A]\n=v", "[A]\nk=\xc3"}) {
    EXPECT_FALSE(KeyFile::Parse(bad).has_value()) << bad;
  }
}

}  // namespace
