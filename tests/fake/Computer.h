#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "fake/FakeDisk.h"
#include "service/Services.h"

namespace vantor::fake {

enum class Outcome { Works, Fails, Throws };

/// A computer in memory, which answers for all services and keeps what it was asked to do. It has a disk D:, a stick
/// E:, a network drive N: and an empty CD drive R:, and window 1 is that of C:\Work\Tool.EXE.
class Computer : public service::DataFiles,
                 public service::FileSystem,
                 public service::Language,
                 public service::Management,
                 public service::Programs,
                 public service::ScriptShell,
                 public service::System,
                 public service::Processes,
                 public service::WindowPicker {
 public:
  using Text = std::wstring_view;
  using Texts = std::vector<std::wstring>;
  using Values = std::map<std::wstring, std::wstring>;

  Computer() {
    Disk.Drives = {{L'C', {2}}, {L'D', {2}}, {L'E', {1, L"STICK"}}, {L'N', {3}}, {L'R', {4, L"", false}}};
    for (const auto* file : {L"C:\\Work\\Tool.EXE", L"C:\\WINDOWS\\explorer.exe"}) Disk.AddFile(file);
    Disk.AddFolder(Home);
  }

  [[nodiscard]] service::Services Services() { return {*this, *this, *this, *this, *this, *this, *this, *this, *this}; }

  /// Whether a call fails in the way described by its interface, or throws an unexpected exception.
  std::function<Outcome(std::string_view call)> Decide;
  /// From now on this is the outcome of the calls of one name; of all for "".
  void Let(const std::string& name, Outcome outcome) {
    Decide = [=](std::string_view call) { return name.empty() || call == name ? outcome : Outcome::Works; };
  }

  FakeDisk Disk;
  int Paused = 0;                     // milliseconds
  std::wstring Home = L"C:\\Vantor";  // where the program is
  std::wstring Windows = L"C:\\WINDOWS";
  bool Previous = false;  // another copy runs
  service::DiskIdentity Identity{3, L"1A2B3C4D", 80023715840.0};
  Values Specials{{L"MyDocuments", L"C:\\Documents"}, {L"SendTo", L"C:\\Send"}, {L"Desktop", L"C:\\Work"}};
  Values Registry;
  std::wstring Shared;  // the file or folder that others may write to
  int CallError = -9;   // of a telephone call that fails
  Texts Asked;          // what was done: "run …", "shell …", "open …", "mail …", "call …", "title …"

  std::vector<service::ManagedProcess> Managed{
      {0, std::nullopt}, {7, L"C:\\Work\\Tool.EXE"}, {8, std::nullopt}, {1, L"C:\\system.exe"}};
  service::WindowId UnderCursor{1};
  service::ScreenPoint Cursor;
  bool ButtonDown = true;
  service::WindowId Captured{};
  service::WindowId Marked{};
  bool Target = false;
  int Held = 0;  // objects

  // --- files

  service::FileRead Read(Text path) override {
    const bool held = Disk.HasFile(path) && Disk.Find(path)->HeldFor > Paused;
    if (Fails(__func__) || held) return {};
    return Disk.HasFile(path) ? service::FileRead{Disk.At(path).Bytes} : service::FileRead{std::nullopt, true};
  }
  void Pause(int milliseconds) override {
    static_cast<void>(Fails(__func__));
    Paused += milliseconds;
  }
  bool Write(Text path, std::string_view bytes) override { return !Fails(__func__) && Disk.Write(path, bytes, false); }
  bool WriteInPlace(Text path, std::string_view bytes) override {
    if (!Fails(__func__)) return Disk.Write(path, bytes, true);
    Disk.Write(path, bytes.substr(0, bytes.size() / 2), true);
    return false;
  }
  bool Move(Text from, Text to) override { return !Fails(__func__) && Disk.Move(from, to); }
  bool Remove(Text path) override { return !Fails(__func__) && Disk.RemoveFile(path); }
  bool MakeFolder(Text path) override { return !Fails(__func__) && Disk.MakeFolder(path); }
  bool CanWrite(Text path) override { return !Fails(__func__) && Disk.MayWrite(path); }
  std::optional<Texts> FolderEntries(Text path) override {
    if (Fails(__func__)) return std::nullopt;
    return Names(path);
  }

  bool Available() override { return !Fails(__func__); }
  std::optional<int> DriveType(Text root) override {
    const int type = Disk.DriveOf(root).Type;
    return Fails(__func__, root) || type < 0 ? std::nullopt : std::optional(type);
  }
  bool FileExists(Text path) override { return !Fails(__func__, path) && Disk.HasFile(path); }
  bool FolderExists(Text path) override { return !Fails(__func__, path) && Disk.HasFolder(path); }
  std::wstring ExtensionName(Text path) override {
    const auto dot = path.rfind(L'.');
    return Fails(__func__) || dot == path.npos ? L"" : std::wstring(path.substr(dot + 1));
  }
  std::vector<service::Drive> Drives() override {
    std::vector<service::Drive> drives;
    if (Fails(__func__)) return drives;
    for (const auto& [letter, drive] : Disk.Drives)
      drives.push_back({letter, drive.Type, drive.Ready ? drive.Label : L""});
    return drives;
  }
  bool DriveReady(Text path) override { return !Fails(__func__, path) && Disk.HasFolder(path.substr(0, 2)); }
  Texts Folders(Text path) override { return Fails(__func__) ? Texts() : Names(path, true); }
  Texts Files(Text path, Text pattern) override {
    return Fails(__func__) ? Texts() : Names(path, false, pattern == L"*.*" ? L"" : Lower(pattern.substr(1)));
  }
  bool OthersMayWrite(Text path) override { return Fails(__func__) || path == Shared; }
  void BeginMany() override { ++Held; }
  void EndMany() override { --Held; }

  // --- letters: those of Latin-1 and Russian; a code page of Latin-1 and the euro

  std::wstring Lower(Text text) const override {
    std::wstring lower(text);
    for (wchar_t& c : lower) c += IsUpper(c) ? 32 : 0;
    return lower;
  }
  std::wstring Upper(Text text) const override {
    std::wstring upper(text);
    for (wchar_t& c : upper) c -= IsUpper(c - 32) ? 32 : 0;
    return upper;
  }
  std::wstring FromCodePage(std::string_view bytes) const override {
    std::wstring text;
    for (const char byte : bytes) {
      const auto c = static_cast<wchar_t>(static_cast<unsigned char>(byte));
      text += c < 0x80 || c >= 0xA0 ? c : c == 0x80 ? L'\u20AC' : L'\uFFFD';
    }
    return text;
  }
  std::optional<std::string> ToCodePage(Text text) const override {
    std::string bytes;
    for (const wchar_t c : text) bytes += static_cast<char>(c == L'\u20AC' ? 0x80 : c);
    if (Fails(__func__) || FromCodePage(bytes) != text) return std::nullopt;
    return bytes;
  }

  // --- what is asked of the system

  std::optional<service::DiskIdentity> ReadDiskIdentity() override {
    return Fails(__func__) ? std::nullopt : std::optional(Identity);
  }
  std::wstring WindowsDirectory() override { return Fails(__func__) ? L"" : Windows; }
  std::wstring ProgramFolder() override { return Home; }
  bool PreviousInstance() override { return !Fails(__func__) && Previous; }
  void SetTitle(Text title) override { Note(L"title ", title); }
  bool ActivateInstance(Text title) override { return !Fails(__func__) && Previous && title == L"Vantor Orbel"; }

  bool StartCommandLine(Text line) override { return !Fails(__func__) && IsThere(line) && Note(L"run ", line); }
  int ShellOpen(Text file) override { return !Fails(__func__) && Note(L"mail ", file) ? 33 : 32; }
  int RequestMakeCall(Text number, Text application) override {
    return !Fails(__func__) && Note(L"call ", std::wstring(number).append(L"|").append(application)) ? 0 : CallError;
  }
  std::wstring ExpandVariables(Text text) override {
    const auto at = text.find(L"%TEMP%");
    if (Fails(__func__) || at == text.npos) return std::wstring(text);
    return std::wstring(text).replace(at, 6, L"C:\\Temp");
  }
  bool Open(Text target) override { return !Fails(__func__) && IsThere(target) && Note(L"open ", target); }
  bool Run(Text target) override { return !Fails(__func__) && IsThere(target) && Note(L"shell ", target); }
  std::wstring SpecialFolder(Text name) override { return Fails(__func__) ? L"" : Specials[std::wstring(name)]; }
  std::wstring RegistryRead(Text name) override { return Fails(__func__) ? L"" : Registry[std::wstring(name)]; }
  void RegistryWrite(Text name, Text value) override {
    if (!RegistryFails(__func__, name)) Registry[std::wstring(name)] = value;
  }
  void RegistryDelete(Text name) override {
    if (!RegistryFails(__func__, name)) Registry.erase(std::wstring(name));
  }
  bool SaveShortcut(const service::Shortcut& shortcut) override {
    return !Fails(__func__) && Disk.Write(shortcut.File, "", false);
  }

  // --- processes and windows

  std::vector<service::ProcessEntry> CreateSnapshot() override {
    return std::vector<service::ProcessEntry>(Fails(__func__) ? 0 : 1);
  }
  std::optional<std::vector<service::ManagedProcess>> ManagedProcesses() override {
    return Fails(__func__) ? std::nullopt : std::optional(Managed);
  }
  std::wstring ImageName(std::uint32_t processId) override {
    return Fails(__func__) || processId != 7 ? L"" : L"C:\\Work\\Tool.EXE";
  }
  void SetCapture(service::WindowId window) override { Captured = Fails(__func__) ? Captured : window; }
  service::WindowId GetCapture() override { return Fails(__func__) ? service::WindowId::None : Captured; }
  void ReleaseCapture() override { Captured = service::WindowId::None; }
  service::ScreenPoint GetCursorPos() override { return Cursor; }
  service::WindowId WindowFromPoint(service::ScreenPoint /*point*/) override {
    return Fails(__func__) ? service::WindowId::None : UnderCursor;
  }
  bool LeftButtonDown() override { return !Fails(__func__) && ButtonDown; }
  std::uint32_t ProcessOfWindow(service::WindowId window) override {
    constexpr std::uint32_t processes[] = {0, 7, 8, 1};
    return Fails(__func__) ? 0 : processes[static_cast<std::size_t>(window)];
  }
  void ShowTarget(bool target) override { Target = target; }
  void Mark(service::WindowId window) override { Marked = window; }

 private:
  /// No question may be about a place that may be on another computer.
  bool Fails(const char* call, Text path = {}) const {
    if (path.find_first_not_of(L"\\/") > 1 && path.size() > 1) throw std::logic_error("another computer is asked");
    const Outcome outcome = Decide ? Decide(call) : Outcome::Works;
    if (outcome == Outcome::Throws) throw std::runtime_error(call);
    return outcome == Outcome::Fails;
  }
  /// Of a full path the file, or a folder, must be there; other names must not begin with "nosuch".
  bool IsThere(Text line) const {
    std::wstring plain(line);
    std::erase(plain, L'"');
    if (plain.find(L":\\") != 1) return !plain.starts_with(L"nosuch");
    std::size_t length = plain.size();
    while (length > 2 && !Disk.HasFile(plain.substr(0, length))) --length;
    return length > 2 || Disk.HasFolder(plain);
  }
  bool Note(Text how, Text what) {
    Asked.push_back(std::wstring(how).append(what));
    return true;
  }
  bool RegistryFails(const char* call, Text name) const {
    return Fails(call) || Fails(name.starts_with(L"HKEY_LOCAL_MACHINE") ? "HKEY_LOCAL_MACHINE" : "HKEY_CURRENT_USER");
  }
  static bool IsUpper(int c) {
    return (c >= L'A' && c <= L'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7) || (c >= 0x410 && c <= 0x42F);
  }
  /// Of the files, the folders, or both, whose names end so.
  Texts Names(Text folder, std::optional<bool> folders = {}, std::wstring_view ending = {}) const {
    Texts names;
    for (const FakeDisk::Entry* entry : Disk.In(folder)) {
      const bool wanted = entry->IsFolder == folders.value_or(entry->IsFolder) && Lower(entry->Path).ends_with(ending);
      if (wanted) names.push_back(entry->Name());
    }
    return names;
  }
};

}  // namespace vantor::fake
