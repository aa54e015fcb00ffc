#include "win32/base/AccessList.h"

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

#include <algorithm>
#include <iterator>
#include <vector>

#include "win32/base/Handle.h"
#include "win32/base/LongPath.h"

namespace vantor::win32 {

namespace {

using LocalMemory = Handle<void*, LocalFree>;

/// The user that this program runs as, in the system's format; empty if it can't be determined.
std::vector<char> ThisUser() {
  KernelHandle token;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Put())) return {};
  std::vector<char> user(sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE);
  DWORD size = 0;
  if (!GetTokenInformation(token.Get(), TokenUser, user.data(), static_cast<DWORD>(user.size()), &size)) return {};
  return user;
}

bool IsSystem(PSID who) {
  constexpr WELL_KNOWN_SID_TYPE kinds[] = {
      WinLocalSystemSid,
      WinBuiltinAdministratorsSid,
      WinAccountAdministratorSid,
      WinAccountDomainAdminsSid,
      WinAccountEnterpriseAdminsSid,
      WinCreatorOwnerRightsSid};  // the last stands for the owner, who is checked as well
  if (std::any_of(std::begin(kinds), std::end(kinds),
                  [who](WELL_KNOWN_SID_TYPE kind) { return IsWellKnownSid(who, kind) != FALSE; })) {
    return true;
  }
  // The service that installs and owns Windows' own files.
  constexpr wchar_t Installer[] = L"S-1-5-80-956008885-3418522649-1831038044-1853292631-2271478464";
  LocalMemory installer;
  return ConvertStringSidToSidW(Installer, installer.Put()) != FALSE && EqualSid(who, installer.Get()) != FALSE;
}

bool IsTrusted(PSID who, const std::vector<char>& user) {
  return EqualSid(who, reinterpret_cast<const TOKEN_USER*>(user.data())->User.Sid) != FALSE || IsSystem(who);
}

/// Whether an entry of an access list lets someone write who is not trusted. Entries that deny rights do not count.
bool LetsOthersWrite(const ACE_HEADER& header, const std::vector<char>& user) {
  constexpr ACCESS_MASK Writing = FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY | FILE_DELETE_CHILD | DELETE | WRITE_DAC |
                                  WRITE_OWNER | GENERIC_WRITE | GENERIC_ALL;
  if ((header.AceFlags & INHERIT_ONLY_ACE) != 0) return false;
  switch (header.AceType) {
    case ACCESS_DENIED_ACE_TYPE:
    case ACCESS_DENIED_OBJECT_ACE_TYPE:
    case ACCESS_DENIED_CALLBACK_ACE_TYPE:
    case ACCESS_DENIED_CALLBACK_OBJECT_ACE_TYPE:
      return false;
    case ACCESS_ALLOWED_ACE_TYPE:
    case ACCESS_ALLOWED_CALLBACK_ACE_TYPE: {
      const auto& entry = reinterpret_cast<const ACCESS_ALLOWED_ACE&>(header);
      return (entry.Mask & Writing) != 0 && !IsTrusted(const_cast<DWORD*>(&entry.SidStart), user);
    }
    default:
      return true;  // of a kind that is not used for files
  }
}

}  // namespace

bool AccessListLetsOthersWrite(std::wstring_view path) {
  std::wstring name = CallPath(path);
  const DWORD attributes = GetFileAttributesW(name.c_str());
  const std::vector<char> user = ThisUser();
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 || user.empty()) {
    return true;
  }
  PSID owner = nullptr;
  PACL list = nullptr;
  LocalMemory descriptor;
  if (GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &owner,
                            nullptr, &list, nullptr, descriptor.Put()) != ERROR_SUCCESS ||
      owner == nullptr || list == nullptr || !IsTrusted(owner, user)) {
    return true;  // without a list, everyone may do anything
  }
  for (DWORD i = 0; i < list->AceCount; ++i) {
    void* entry = nullptr;
    if (!GetAce(list, i, &entry) || LetsOthersWrite(*static_cast<const ACE_HEADER*>(entry), user)) return true;
  }
  return false;
}

}  // namespace vantor::win32
