#pragma once

#include <windows.h>

#include <unknwn.h>

#include <atomic>

namespace vantor::win32 {

// The system's interfaces have no virtual destructor; objects are destroyed by Release.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The base of COM objects implemented here. An object starts with one reference and is destroyed with the last.
/// QueryInterface supports IUnknown and Ids, each of which names Interface or a base of it.
template <class Interface, const IID&... Ids>
class ComObject : public Interface {
 public:
  ComObject() = default;
  virtual ~ComObject() = default;
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    const bool known = id == IID_IUnknown || (... || (id == Ids));
    *object = known ? static_cast<Interface*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() final {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  std::atomic<ULONG> references_ = 1;
};

#pragma GCC diagnostic pop

}  // namespace vantor::win32
