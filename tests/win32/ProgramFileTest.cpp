// What the finished Vantor.exe promises to Windows, read from the file as it lies beside this test.
#include <doctest/doctest.h>

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "win32/base/SystemLibrary.h"
#include "win32/service/DataFiles.h"
#include "win32/service/System.h"

namespace {

std::wstring ProgramPath() { return vantor::win32::System({}, {}).ProgramFolder() + L"\\Vantor.exe"; }

/// The program as Windows lays it into memory, without running it.
struct Image {
  HMODULE Module = LoadLibraryExW(ProgramPath().c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE);
  // The handle's lowest bits say how it was loaded.
  const char* Base = reinterpret_cast<const char*>(reinterpret_cast<std::uintptr_t>(Module) & ~std::uintptr_t{3});
  const IMAGE_NT_HEADERS32* Headers = At<IMAGE_NT_HEADERS32>(At<IMAGE_DOS_HEADER>(0)->e_lfanew);

  ~Image() { FreeLibrary(Module); }
  template <class T, class Address>
  [[nodiscard]] const T* At(Address address) const {
    return reinterpret_cast<const T*>(Base + address);
  }
  [[nodiscard]] const IMAGE_DATA_DIRECTORY& Directory(int index) const {
    return Headers->OptionalHeader.DataDirectory[index];
  }
};

}  // namespace

TEST_CASE("the program file asks for the mitigations that its tool chain can give") {
  const Image image;
  const auto& optional = image.Headers->OptionalHeader;
  constexpr int Flags = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT |
                        IMAGE_DLLCHARACTERISTICS_NO_SEH | IMAGE_DLLCHARACTERISTICS_TERMINAL_SERVER_AWARE;
  CHECK((optional.DllCharacteristics & Flags) == Flags);
  // An address can be chosen only for a program that can be moved.
  CHECK((image.Headers->FileHeader.Characteristics & IMAGE_FILE_RELOCS_STRIPPED) == 0);
  CHECK(image.Directory(IMAGE_DIRECTORY_ENTRY_BASERELOC).Size > 1000);
  CHECK(optional.MajorSubsystemVersion * 100 + optional.MinorSubsystemVersion == 601);
  const auto* section = reinterpret_cast<const IMAGE_SECTION_HEADER*>(image.Headers + 1);
  for (int i = 0; i < image.Headers->FileHeader.NumberOfSections; ++i, ++section) {
    const DWORD both = IMAGE_SCN_MEM_EXECUTE | IMAGE_SCN_MEM_WRITE;
    CHECK((section->Characteristics & both) != both);
  }
  const std::string bytes = vantor::win32::DataFiles().Read(ProgramPath()).Bytes.value_or("");
  // The way that a function with an overwritten stack takes: mov ecx, 2; int 29h.
  CHECK(bytes.find(std::string("\xB9\x02\0\0\0\xCD\x29", 7)) != std::string::npos);
  CHECK(bytes.size() < 600 * 1024);
  CHECK(image.Headers->FileHeader.TimeDateStamp == 0);
  HRSRC const manifest = FindResourceW(image.Module, MAKEINTRESOURCEW(1), RT_MANIFEST);
  REQUIRE(manifest != nullptr);
  const std::string text(static_cast<const char*>(LockResource(LoadResource(image.Module, manifest))),
                         SizeofResource(image.Module, manifest));
  CHECK(text.find(R"(level="asInvoker" uiAccess="false")") != std::string::npos);
}

TEST_CASE("libraries are those that Windows takes from its own folder, whatever lies beside the program") {
  // Of Windows' known libraries. The common controls come later, from Windows' store of them.
  const char* const known[] = {"advapi32.dll", "comdlg32.dll", "gdi32.dll", "imm32.dll",
                               "kernel32.dll", "msvcrt.dll",   "ole32.dll", "oleaut32.dll",
                               "shell32.dll",  "shlwapi.dll",  "user32.dll"};
  const Image image;
  int count = 0;
  const auto* library = image.At<IMAGE_IMPORT_DESCRIPTOR>(image.Directory(IMAGE_DIRECTORY_ENTRY_IMPORT).VirtualAddress);
  for (; library->Name != 0; ++library, ++count) {
    const char* name = image.At<char>(library->Name);
    CAPTURE(name);
    CHECK(std::ranges::any_of(known, [name](const char* one) { return _stricmp(one, name) == 0; }));
  }
  CHECK(count >= 5);

  // What is loaded later. Any module will do; this one lies where one named without its folder is looked for first.
  const std::wstring planted = vantor::win32::System({}, {}).ProgramFolder() + L"\\vantor-planted.dll";
  REQUIRE(CopyFileW(ProgramPath().c_str(), planted.c_str(), FALSE) != FALSE);
  CHECK(vantor::win32::LoadSystemLibrary(L"vantor-planted.dll") == nullptr);
  HMODULE const usual = LoadLibraryW(L"vantor-planted.dll");
  CHECK(usual != nullptr);
  FreeLibrary(usual);
  DeleteFileW(planted.c_str());
}
