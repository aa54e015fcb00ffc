#include <doctest/doctest.h>

#include <shlobj.h>

#include "TestFolder.h"
#include "win32/Com.h"
#include "win32/DropTarget.h"
#include "win32/Handle.h"

using namespace vantor::win32;

namespace {

/// What Explorer drags for a file.
ComPointer<IDataObject> DraggedFile(const std::wstring& path) {
  ITEMIDLIST* item = nullptr;
  REQUIRE(SUCCEEDED(SHParseDisplayName(path.c_str(), nullptr, &item, 0, nullptr)));
  ComPointer<IShellFolder> folder;
  const ITEMIDLIST* child = nullptr;
  REQUIRE(SUCCEEDED(SHBindToParent(item, IID_IShellFolder, folder.PutVoid(), &child)));
  ComPointer<IDataObject> data;
  REQUIRE(SUCCEEDED(folder->GetUIObjectOf(nullptr, 1, &child, IID_IDataObject, nullptr, data.PutVoid())));
  CoTaskMemFree(item);
  return data;
}

struct OleMember {
  OleMember() { OleInitialize(nullptr); }
  ~OleMember() { OleUninitialize(); }
};

}  // namespace

TEST_CASE("files that are dropped on a window arrive, those it does not want don't") {
  const OleMember ole;
  const TestFolder folder;
  const std::wstring path = folder.Make(L"\x416 it's, a 'file'.txt");
  const WindowHandle window(
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
  bool accepts = true;
  std::vector<std::wstring> taken;
  const DropRegistration registration(
      window.Get(), [&] { return accepts; }, [&](const vantor::form::DroppedItems& items) { taken = items.Paths; });
  const auto target = static_cast<IDropTarget*>(GetPropW(window.Get(), L"OleDropTargetInterface"));
  REQUIRE(target != nullptr);

  const ComPointer<IDataObject> data = DraggedFile(path);
  const auto drop = [&](DWORD allowed) {
    DWORD effect = allowed;
    target->DragEnter(data.Get(), 0, {}, &effect);
    effect = allowed;
    target->Drop(data.Get(), 0, {}, &effect);
    return effect;
  };
  CHECK(drop(DROPEFFECT_MOVE) == DROPEFFECT_NONE);
  CHECK(taken.empty());
  CHECK(drop(DROPEFFECT_MOVE | DROPEFFECT_COPY) == DROPEFFECT_COPY);
  CHECK(taken == std::vector<std::wstring>{path});
  accepts = false;
  CHECK(drop(DROPEFFECT_LINK) == DROPEFFECT_NONE);
}

TEST_CASE("a web link that is a file stands for its address") {
  const TestFolder folder;
  const auto address = [&](const wchar_t* name, const char* url) {
    return WebAddressIn(folder.Make(name, std::string("[InternetShortcut]\r\nURL=") + url + "\r\n"));
  };
  CHECK(address(L"site.URL", "https://example.org/?q=a,b") == L"https://example.org/?q=a,b");
  CHECK(address(L"game.url", "steam://run/1").empty());
  CHECK(address(L"site.txt", "https://example.org/").empty());
}
