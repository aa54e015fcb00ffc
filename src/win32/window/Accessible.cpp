#include "win32/window/Accessible.h"

#include <oleacc.h>

#include <new>
#include <string>
#include <utility>

#include "win32/base/ComObject.h"
#include "win32/base/SystemLibrary.h"
#include "win32/window/AccessibleState.h"
#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

namespace {

/// The library that only screen readers need.
struct Library {
  using MakeStandard = HRESULT(WINAPI*)(HWND, LONG, REFIID, void**);
  using MakeAnswer = LRESULT(WINAPI*)(REFIID, WPARAM, IUnknown*);

  Library() {
    const HMODULE module = LoadSystemLibrary(L"oleacc.dll");
    Standard = FindFunction<MakeStandard>(module, "CreateStdAccessibleObject");
    Answer = FindFunction<MakeAnswer>(module, "LresultFromObject");
  }

  MakeStandard Standard = nullptr;
  MakeAnswer Answer = nullptr;
};

/// A window as screen readers see it: the system's own object for the window class, except for the properties that are
/// provided here. It may outlive the window.
class Accessible final : public ComObject<IAccessible, IID_IDispatch, IID_IAccessible> {
 public:
  Accessible(HWND window, ComPointer<IAccessible> standard) : window_(window), standard_(std::move(standard)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    // The child windows and the window itself are left to the system. A window with parts has no children to enumerate.
    const bool counted = id == IID_IEnumVARIANT && WindowWithParts(window_) != nullptr;
    if ((id == IID_IEnumVARIANT && !counted) || id == IID_IOleWindow) return standard_->QueryInterface(id, object);
    return ComObject::QueryInterface(id, object);
  }

  // What is provided here, for the window itself and for rows. Other parts, such as the entries of a list, are left to
  // the system.

  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* text) override {
    return Tell(child, &AccessibleState::Name, text, [&] { return standard_->get_accName(child, text); });
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* text) override {
    return Tell(child, &AccessibleState::Value, text, [&] { return standard_->get_accValue(child, text); });
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* text) override {
    return Tell(child, &AccessibleState::Shortcut, text,
                [&] { return standard_->get_accKeyboardShortcut(child, text); });
  }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* text) override {
    return Tell(child, &AccessibleState::Action, text, [&] { return standard_->get_accDefaultAction(child, text); });
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
    return Count(child, &AccessibleState::Role, role, [&] { return standard_->get_accRole(child, role); });
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
    return Count(child, &AccessibleState::State, state, [&] { return standard_->get_accState(child, state); });
  }
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
    const std::optional<AccessibleState> reading = Read(child);
    if (!reading || *reading->Action == L'\0') return standard_->accDoDefaultAction(child);
    if (child.lVal == CHILDID_SELF) {
      ActOn(window_);
    } else {
      WindowWithParts(window_)->ActOnPart(child.lVal);
    }
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override {
    if (!ReadPart(child)) return standard_->get_accDescription(child, text);
    return Tell(child, &AccessibleState::Description, text, [] { return S_FALSE; });
  }
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
    const ControlWindow* const window = WindowWithParts(window_);
    if (window == nullptr) return standard_->get_accChildCount(count);
    *count = window->PartCount();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
    if (!ReadPart(child)) return standard_->get_accChild(child, object);
    *object = nullptr;  // a part has no object of its own
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
    const ControlWindow* const window = WindowWithParts(window_);
    if (window == nullptr) return standard_->get_accSelection(children);
    children->vt = static_cast<VARTYPE>(window->SelectedPart() != 0 ? VT_I4 : VT_EMPTY);
    children->lVal = window->SelectedPart();
    return window->SelectedPart() != 0 ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override {
    if (!ReadPart(child)) return standard_->accLocation(left, top, width, height, child);
    RECT area = WindowWithParts(window_)->PartArea(child.lVal);
    MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&area), 2);
    *left = area.left;
    *top = area.top;
    *width = area.right - area.left;
    *height = area.bottom - area.top;
    return S_OK;
  }

  // What is left to the system.

  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override { return standard_->get_accParent(parent); }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* text) override {
    return standard_->get_accHelp(child, text);
  }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
    return standard_->get_accHelpTopic(file, child, topic);
  }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override { return standard_->get_accFocus(child); }
  HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override { return standard_->accSelect(flags, child); }
  HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
    return standard_->accNavigate(direction, start, end);
  }
  HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* child) override {
    return standard_->accHitTest(x, y, child);
  }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR text) override {
    return standard_->put_accName(child, text);
  }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR text) override {
    return standard_->put_accValue(child, text);
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return standard_->GetTypeInfoCount(count); }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID language, ITypeInfo** info) override {
    return standard_->GetTypeInfo(index, language, info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, OLECHAR** names, UINT count, LCID language, DISPID* ids) override {
    return standard_->GetIDsOfNames(id, names, count, language, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID /*id*/, LCID language, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* argument) override {
    // Through the type information, so that calls by name reach this object as well.
    ComPointer<ITypeInfo> type;
    const HRESULT found = standard_->GetTypeInfo(0, language, type.Put());
    return FAILED(found)
               ? found
               : type->Invoke(static_cast<IAccessible*>(this), member, kind, parameters, result, exception, argument);
  }

 private:
  /// Nothing for a part that is left to the system, or if the window is gone.
  [[nodiscard]] std::optional<AccessibleState> Read(const VARIANT& child) const {
    if (child.vt == VT_I4 && child.lVal == CHILDID_SELF) return StateOf(window_);
    return ReadPart(child);
  }
  /// The same, but nothing for the window itself.
  [[nodiscard]] std::optional<AccessibleState> ReadPart(const VARIANT& child) const {
    const ControlWindow* const window = WindowWithParts(window_);
    if (window == nullptr || child.vt != VT_I4 || child.lVal < 1 || child.lVal > window->PartCount()) return {};
    return window->DescribePart(child.lVal);
  }

  /// Answers by what is known of the window or the part, or otherwise by the system's object.
  template <class Answer, class Otherwise>
  HRESULT Give(const VARIANT& child, const Answer& answer, const Otherwise& otherwise) const {
    try {
      const std::optional<AccessibleState> state = Read(child);
      return state ? answer(*state) : otherwise();
    } catch (const std::bad_alloc&) {
      return E_OUTOFMEMORY;
    }
  }

  template <class Member, class Otherwise>
  HRESULT Tell(const VARIANT& child, Member member, BSTR* text, const Otherwise& otherwise) const {
    const auto answer = [&](const AccessibleState& state) {
      const std::wstring told = state.*member;
      *text = told.empty() ? nullptr : MakeComText(told).Release();
      return told.empty() ? S_FALSE : S_OK;
    };
    return Give(child, answer, otherwise);
  }

  template <class Otherwise>
  HRESULT Count(const VARIANT& child, long AccessibleState::*member, VARIANT* number,
                const Otherwise& otherwise) const {
    const auto answer = [&](const AccessibleState& state) {
      number->vt = VT_I4;
      number->lVal = state.*member;
      return S_OK;
    };
    return Give(child, answer, otherwise);
  }

  HWND window_;
  ComPointer<IAccessible> standard_;
};

// Defined here, because the tool chain's libraries lack them.
// {608D3DF8-8128-4AA7-A428-F55E49267291}
constexpr GUID NameProperty = {0x608D3DF8, 0x8128, 0x4AA7, {0xA4, 0x28, 0xF5, 0x5E, 0x49, 0x26, 0x72, 0x91}};
// {B5F8350B-0548-48B1-A6EE-88BD00B4A5E7}
constexpr GUID PropertyServices = {0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
// {6E26E776-04F0-495D-80E4-3330352E3169}
constexpr GUID PropertyServicesInterface = {
    0x6E26E776, 0x04F0, 0x495D, {0x80, 0xE4, 0x33, 0x30, 0x35, 0x2E, 0x31, 0x69}};

/// Readers that use the newer interface have their own objects for the system's window classes, which take the name
/// from an annotation. Fails silently if the system has no annotations.
void Record(HWND window, const std::wstring& name) {
  constexpr wchar_t RecordedMark[] = L"VantorNamed";
  if (name.empty() || GetPropW(window, RecordedMark) != nullptr) return;
  SetPropW(window, RecordedMark, reinterpret_cast<HANDLE>(1));  // even if it fails, because it would fail again
  ComPointer<IAccPropServices> services;
  if (FAILED(CoCreateInstance(PropertyServices, nullptr, CLSCTX_INPROC_SERVER, PropertyServicesInterface,
                              services.PutVoid()))) {
    return;
  }
  services->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, NameProperty, name.c_str());
}

}  // namespace

std::optional<LRESULT> AnswerAccessibility(HWND window, Apartment& com, WPARAM wParam, LPARAM lParam) {
  // Only the low half counts, whether the sender is a 32-bit or a 64-bit program.
  if (static_cast<LONG>(lParam) != OBJID_CLIENT) return {};
  static const Library library;
  if (library.Standard == nullptr || library.Answer == nullptr) return {};
  com.Enter();
  ComPointer<IAccessible> standard;
  if (FAILED(library.Standard(window, OBJID_CLIENT, IID_IAccessible, standard.PutVoid()))) return {};
  if (const auto state = StateOf(window)) Record(window, state->Name);
  const ComPointer<IAccessible> accessible(new Accessible(window, std::move(standard)));
  const LRESULT answer = library.Answer(IID_IAccessible, wParam, accessible.Get());
  if (FAILED(static_cast<HRESULT>(answer))) return {};
  return answer;
}

}  // namespace vantor::win32
