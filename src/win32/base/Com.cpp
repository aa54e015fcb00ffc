#include "win32/base/Com.h"

#include <new>
#include <vector>

#include "win32/base/SystemLibrary.h"

namespace vantor::win32 {

namespace {

// The answers of an object that lacks a member or does not implement it.
bool MeansLacking(HRESULT result) {
  switch (result) {
    case E_NOTIMPL:
    case E_NOINTERFACE:
    case DISP_E_UNKNOWNNAME:
    case DISP_E_MEMBERNOTFOUND:
    case TYPE_E_CANTLOADLIBRARY:
    case TYPE_E_LIBNOTREGISTERED:
      return true;
    default:
      return false;
  }
}

}  // namespace

void Check(HRESULT result) {
  if (FAILED(result)) throw ComError(MeansLacking(result));
}

void CheckMade(HRESULT result) {
  if (FAILED(result)) throw ComError(true);
}

namespace {

/// Keeps the multithreaded apartment, and what services hold in it, alive between threads that use it. Otherwise each
/// of them would create it again, which loses 3 handles each time under Wine, and hangs after some 60 times.
void KeepMultithreadedApartment() {
  // Available since Windows 8.
  using Increment = HRESULT(WINAPI*)(HANDLE*);
  static const bool kept = [] {
    const auto increment = FindFunction<Increment>(GetModuleHandleW(L"ole32.dll"), "CoIncrementMTAUsage");
    HANDLE usage = nullptr;  // kept to the end of the program
    return increment != nullptr && SUCCEEDED(increment(&usage));
  }();
  static_cast<void>(kept);
}

}  // namespace

Apartment::~Apartment() {
  if (owed_) CoUninitialize();
}

void Apartment::Enter() {
  if (entered_) return;
  entered_ = true;
  if (model_ == COINIT_MULTITHREADED) KeepMultithreadedApartment();
  owed_ = SUCCEEDED(CoInitializeEx(nullptr, model_ | COINIT_DISABLE_OLE1DDE));
}

ComText MakeComText(std::wstring_view text) {
  ComText made(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
  if (!made) throw std::bad_alloc();
  return made;
}

std::wstring ToText(BSTR text) { return {text == nullptr ? L"" : text, SysStringLen(text)}; }

Variant::Variant(std::wstring_view text) : VARIANT{} {
  bstrVal = MakeComText(text).Release();
  vt = VT_BSTR;
}

Variant::Variant(int number) : VARIANT{} {
  lVal = number;
  vt = VT_I4;
}

Variant::Variant(short number) : VARIANT{} {
  iVal = number;
  vt = VT_I2;
}

std::optional<std::wstring> Variant::Text() const {
  const Variant as = As(VT_BSTR);
  if (as.vt != VT_BSTR) return std::nullopt;
  return ToText(as.bstrVal);
}

std::optional<int> Variant::Number() const {
  const Variant as = As(VT_I4);
  if (as.vt != VT_I4) return std::nullopt;
  return as.lVal;
}

Variant Variant::As(VARTYPE type) const {
  Variant as;
  // The call only reads its source. Numbers are not formatted for the user's locale, so that they can be parsed
  // anywhere.
  VariantChangeTypeEx(&as, const_cast<Variant*>(this), LOCALE_INVARIANT, 0, type);
  return as;
}

LateBound LateBound::Create(const wchar_t* className) {
  CLSID id;
  CheckMade(CLSIDFromProgID(className, &id));
  ComPointer<IDispatch> object;
  CheckMade(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.PutVoid()));
  return LateBound(std::move(object));
}

Variant LateBound::Call(const wchar_t* name, Arguments arguments) const {
  return Invoke(name, DISPATCH_METHOD, arguments);
}

Variant LateBound::Get(const wchar_t* name, Arguments arguments) const {
  return Invoke(name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

LateBound LateBound::Object(const wchar_t* name, Arguments arguments) const {
  const Variant value = Get(name, arguments);
  if (value.vt != VT_DISPATCH || value.pdispVal == nullptr) throw ComError(false);
  ComPointer<IDispatch> object;
  Check(value.pdispVal->QueryInterface(IID_IDispatch, object.PutVoid()));
  return LateBound(std::move(object));
}

void LateBound::Put(const wchar_t* name, const Variant& value) const { Invoke(name, DISPATCH_PROPERTYPUT, {value}); }

Variant LateBound::Invoke(const wchar_t* name, WORD kind, Arguments arguments) const {
  std::wstring member(name);
  LPOLESTR names[] = {member.data()};
  DISPID id = DISPID_UNKNOWN;
  Check(object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id));

  std::vector<VARIANT> lastFirst(std::rbegin(arguments), std::rend(arguments));
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS parameters = {lastFirst.data(), nullptr, static_cast<UINT>(lastFirst.size()), 0};
  if (kind == DISPATCH_PROPERTYPUT) {
    parameters.rgdispidNamedArgs = &put;
    parameters.cNamedArgs = 1;
  }

  Variant result;
  EXCEPINFO error = {};
  HRESULT outcome = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, &result, &error, nullptr);
  if (outcome == DISP_E_EXCEPTION) {
    // The exception contains the object's own error code, which is the one that counts.
    if (error.pfnDeferredFillIn != nullptr) error.pfnDeferredFillIn(&error);
    if (error.scode != S_OK) outcome = error.scode;
    SysFreeString(error.bstrSource);
    SysFreeString(error.bstrDescription);
    SysFreeString(error.bstrHelpFile);
  }
  Check(outcome);
  return result;
}

}  // namespace vantor::win32
