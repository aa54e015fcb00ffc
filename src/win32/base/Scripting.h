#pragma once

#include "win32/base/Com.h"

namespace vantor::win32::scripting {

// The scripting run time's interfaces as published in its type library, up to the last member used here. They are
// called directly: a load makes thousands of calls, and looking up the members by name would make it a third slower.

inline constexpr GUID DriveId = {0xC7C3F5A0, 0x88A3, 0x11D0, {0xAB, 0xCB, 0x00, 0xA0, 0xC9, 0x0F, 0xFF, 0xC0}};
inline constexpr GUID FileSystemId = {0x0AB5A3D0, 0xE5B6, 0x11D0, {0xAB, 0xF5, 0x00, 0xA0, 0xC9, 0x0F, 0xFF, 0xC0}};

// The system's objects are released, never destroyed here.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
struct IDrive : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE get_Path(BSTR* path) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_DriveLetter(BSTR* letter) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ShareName(BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_DriveType(int* type) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_RootFolder(IDispatch** folder) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_AvailableSpace(VARIANT* bytes) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_FreeSpace(VARIANT* bytes) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_TotalSize(VARIANT* bytes) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_VolumeName(BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_VolumeName(BSTR name) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_FileSystem(BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SerialNumber(LONG* number) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_IsReady(VARIANT_BOOL* ready) = 0;
};

// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
struct IFileSystem : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE get_Drives(IDispatch** drives) = 0;
  virtual HRESULT STDMETHODCALLTYPE BuildPath(BSTR path, BSTR name, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetDriveName(BSTR path, BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetParentFolderName(BSTR path, BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetFileName(BSTR path, BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetBaseName(BSTR path, BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetExtensionName(BSTR path, BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetAbsolutePathName(BSTR path, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetTempName(BSTR* name) = 0;
  virtual HRESULT STDMETHODCALLTYPE DriveExists(BSTR drive, VARIANT_BOOL* exists) = 0;
  virtual HRESULT STDMETHODCALLTYPE FileExists(BSTR path, VARIANT_BOOL* exists) = 0;
  virtual HRESULT STDMETHODCALLTYPE FolderExists(BSTR path, VARIANT_BOOL* exists) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetDrive(BSTR drive, IDrive** result) = 0;
};

#pragma GCC diagnostic pop

}  // namespace vantor::win32::scripting
