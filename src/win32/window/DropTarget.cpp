#include "win32/window/DropTarget.h"

#include <ole2.h>
#include <shellapi.h>
#include <shlobj.h>

#include <string_view>
#include <utility>

#include "win32/base/Com.h"
#include "win32/base/ComObject.h"
#include "win32/base/LongPath.h"
#include "win32/base/ShellFunction.h"
#include "win32/base/SystemText.h"
#include "win32/base/TrueSystemFolder.h"

namespace vantor::win32 {

namespace {

FORMATETC FormatOf(CLIPFORMAT format) { return {format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL}; }

/// The format in which browsers offer a link.
CLIPFORMAT AddressFormat() { return static_cast<CLIPFORMAT>(RegisterClipboardFormatW(CFSTR_INETURLW)); }

bool Offers(IDataObject& data, CLIPFORMAT format) {
  FORMATETC wanted = FormatOf(format);
  return data.QueryGetData(&wanted) == S_OK;
}

/// Data in one format, released at the end.
class Medium {
 public:
  Medium(IDataObject& data, CLIPFORMAT format) {
    FORMATETC wanted = FormatOf(format);
    if (FAILED(data.GetData(&wanted, &medium_))) medium_ = {};
  }
  ~Medium() {
    if (medium_.tymed != TYMED_NULL) ReleaseStgMedium(&medium_);
  }
  Medium(const Medium&) = delete;
  Medium& operator=(const Medium&) = delete;

  [[nodiscard]] HGLOBAL Memory() const { return medium_.tymed == TYMED_HGLOBAL ? medium_.hGlobal : nullptr; }

 private:
  STGMEDIUM medium_{};
};

std::vector<std::wstring> PathsOf(IDataObject& data) {
  std::vector<std::wstring> paths;
  const Medium medium(data, CF_HDROP);
  if (medium.Memory() == nullptr) return paths;
  const auto files = static_cast<HDROP>(medium.Memory());
  constexpr UINT CountThem = 0xFFFFFFFF;
  auto* const dragQueryFile = ShellFunction<decltype(DragQueryFileW)>("DragQueryFileW");
  const UINT count = dragQueryFile(files, CountThem, nullptr, 0);
  for (UINT i = 0; i < count; ++i) {
    std::wstring path(dragQueryFile(files, i, nullptr, 0) + 1, L'\0');
    path.resize(dragQueryFile(files, i, path.data(), static_cast<UINT>(path.size())));
    paths.push_back(std::move(path));
  }
  return paths;
}

bool HasExtension(std::wstring_view path, std::wstring_view extension) {
  const std::size_t dot = path.rfind(L'.');
  return dot != path.npos && SameName(path.substr(dot), extension);
}

std::wstring AddressOf(IDataObject& data) {
  const Medium medium(data, AddressFormat());
  if (medium.Memory() == nullptr) return {};
  const auto* const text = static_cast<const wchar_t*>(GlobalLock(medium.Memory()));
  if (text == nullptr) return {};
  // The text ends at its null character or at the end of the memory.
  const std::wstring_view whole(text, GlobalSize(medium.Memory()) / sizeof(wchar_t));
  std::wstring address(whole.substr(0, whole.find(L'\0')));
  GlobalUnlock(medium.Memory());
  return address;
}

class DropTarget final : public ComObject<IDropTarget, IID_IDropTarget> {
 public:
  DropTarget(std::function<bool()> accepts, std::function<void(form::DroppedItems)> take)
      : accepts_(std::move(accepts)), take_(std::move(take)) {}

  HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
    welcome_ = data != nullptr && (Offers(*data, CF_HDROP) || Offers(*data, AddressFormat()));
    Answer(*effect);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL, DWORD* effect) override {
    Answer(*effect);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE DragLeave() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD, POINTL, DWORD* effect) override {
    Answer(*effect);
    if (*effect == DROPEFFECT_NONE || data == nullptr) return S_OK;
    try {
      take_(ItemsOf(*data));
    } catch (...) {
      *effect = DROPEFFECT_NONE;
      return E_FAIL;
    }
    return S_OK;
  }

 private:
  /// Chooses among the effects that the source allows: what is dropped is only noted, never moved.
  void Answer(DWORD& effect) const {
    const DWORD allowed = welcome_ && accepts_() ? effect : DROPEFFECT_NONE;
    effect = (allowed & DROPEFFECT_LINK) != 0 ? DROPEFFECT_LINK : allowed & DROPEFFECT_COPY;
  }

  std::function<bool()> accepts_;
  std::function<void(form::DroppedItems)> take_;
  bool welcome_ = false;  // what is being dragged is of an accepted kind
};

}  // namespace

form::DroppedItems ItemsOf(IDataObject& data) {
  form::DroppedItems items{PathsOf(data), {}};
  if (items.Paths.empty()) items.Address = AddressOf(data);
  return items;
}

std::wstring WebAddressIn(const std::wstring& path) {
  if (!HasExtension(path, L".url")) return {};
  constexpr DWORD LongestAddress = 2084;  // the limit of Windows' own Internet functions, including the null
  std::wstring address(LongestAddress, L'\0');
  address.resize(GetPrivateProfileStringW(L"InternetShortcut", L"URL", L"", address.data(), LongestAddress,
                                          CallPath(path).c_str()));
  const auto begins = [&](std::wstring_view scheme) { return SameName(address.substr(0, scheme.size()), scheme); };
  return begins(L"http://") || begins(L"https://") ? address : std::wstring();
}

std::wstring ShortcutTarget(const std::wstring& path) {
  if (!HasExtension(path, L".lnk")) return path;
  ComPointer<IShellLinkW> link;
  ComPointer<IPersistFile> file;
  wchar_t target[MAX_PATH] = L"";
  if (FAILED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, link.PutVoid())) ||
      FAILED(link->QueryInterface(IID_IPersistFile, file.PutVoid())) || FAILED(file->Load(path.c_str(), STGM_READ)) ||
      link->GetPath(target, MAX_PATH, nullptr, 0) != S_OK) {
    return path;
  }
  std::wstring known = KnownTarget(target);
  return IsFile(known) || IsFolder(known) ? known : path;
}

DropRegistration::DropRegistration(HWND window, std::function<bool()> accepts,
                                   std::function<void(form::DroppedItems)> take)
    : window_(window), joined_(SUCCEEDED(OleInitialize(nullptr))) {
  const ComPointer<IDropTarget> target(new DropTarget(std::move(accepts), std::move(take)));
  RegisterDragDrop(window_, target.Get());
}

DropRegistration::~DropRegistration() {
  RevokeDragDrop(window_);
  if (joined_) OleUninitialize();
}

}  // namespace vantor::win32
