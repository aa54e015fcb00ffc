// The properties of the finished Vantor.exe that matter to Windows, read from the file next to this test.
#include <windows.h>

#include <algorithm>
#include <string>

#include "driver/Check.h"
#include "win32/base/SystemLibrary.h"

using namespace vantor::desktop;

TEST_CASE("the program file asks for the mitigations, the rights and the libraries that it is meant to") {
  const std::wstring path = Beside(L"Vantor.exe");
  CHECK(std::filesystem::file_size(path) < 600 * 1024);
  // Mapped as for running, without running it. The lowest bits of the handle say how it was loaded.
  HMODULE const image = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE);
  const char* const base = reinterpret_cast<const char*>(reinterpret_cast<std::uintptr_t>(image) & ~std::uintptr_t{3});
  const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto& headers = *reinterpret_cast<const IMAGE_NT_HEADERS32*>(base + dos.e_lfanew);
  constexpr int Flags = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
  CHECK((headers.OptionalHeader.DllCharacteristics & Flags) == Flags);
  // The program can be loaded at any address only if it contains relocations.
  CHECK(headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_BASERELOC].Size > 1000);

  HRSRC const manifest = FindResourceW(image, MAKEINTRESOURCEW(1), RT_MANIFEST);
  REQUIRE(manifest != nullptr);
  const std::string text(static_cast<const char*>(LockResource(LoadResource(image, manifest))),
                         SizeofResource(image, manifest));
  CHECK(text.find(R"(level="asInvoker" uiAccess="false")") != std::string::npos);

  // Only libraries that Windows loads from its own folder, whatever is next to the program. The common controls are
  // loaded later, from Windows' store of them.
  const char* const known[] = {"advapi32.dll", "gdi32.dll",    "kernel32.dll", "msvcrt.dll",
                               "ole32.dll",    "oleaut32.dll", "user32.dll"};
  const DWORD imports = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  for (const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports); library->Name != 0;
       ++library) {
    const char* name = base + library->Name;
    CAPTURE(name);
    CHECK(std::ranges::any_of(known, [name](const char* one) { return _stricmp(one, name) == 0; }));
  }
  FreeLibrary(image);
}

TEST_CASE("a library that is loaded later comes from Windows' folder too") {
  // Any module will do. This one is in the folder that is searched first for a name without a folder.
  const std::wstring planted = Beside(L"vantor-planted.dll");
  REQUIRE(CopyFileW(Beside(L"Vantor.exe").c_str(), planted.c_str(), FALSE) != FALSE);
  CHECK(vantor::win32::LoadSystemLibrary(L"vantor-planted.dll") == nullptr);
  HMODULE const usual = LoadLibraryW(L"vantor-planted.dll");
  CHECK(usual != nullptr);
  FreeLibrary(usual);
  DeleteFileW(planted.c_str());
}
