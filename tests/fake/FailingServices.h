#pragma once

#include <functional>
#include <stdexcept>

#include "service/Services.h"

namespace vantor::fake {

enum class Outcome { Works, Fails, Throws };

/// All services, each call of which may be made to fail in the way its interface speaks of, or to throw what nobody
/// expected.
class FailingServices {
 public:
  /// Asked at every call, with the call's name.
  using Chooser = std::function<Outcome(const char* call)>;

  FailingServices(const service::Services& real, const Chooser& choose)
      : dataFiles_{real.DataFiles, choose},
        fileSystem_{real.FileSystem, choose},
        language_{real.Language, choose},
        management_{real.Management, choose},
        programs_{real.Programs, choose},
        scriptShell_{real.ScriptShell, choose},
        system_{real.System, choose},
        processes_{real.Processes, choose},
        picker_{real.WindowPicker, choose} {}

  [[nodiscard]] service::Services All() {
    return {dataFiles_, fileSystem_, language_, management_, programs_, scriptShell_, system_, processes_, picker_};
  }

 private:
  /// What the decorators of the single services share.
  template <class Service>
  struct Failing : Service {
    Failing(Service& service, const Chooser& chooser) : real(service), choose(chooser) {}

    [[nodiscard]] bool Fails(const char* call) const {
      const Outcome outcome = choose(call);
      if (outcome == Outcome::Throws) throw std::runtime_error(call);
      return outcome == Outcome::Fails;
    }

    Service& real;
    Chooser choose;
  };

  using Path = std::wstring_view;

  struct DataFiles : Failing<service::DataFiles> {
    using Failing::Failing;
    std::optional<std::string> Read(Path path) override {
      if (Fails("Read")) return std::nullopt;
      return real.Read(path);
    }
    bool Write(Path path, std::string_view bytes) override { return !Fails("Write") && real.Write(path, bytes); }
    bool WriteInPlace(Path path, std::string_view bytes) override {
      if (!Fails("WriteInPlace")) return real.WriteInPlace(path, bytes);
      static_cast<void>(real.WriteInPlace(path, bytes.substr(0, bytes.size() / 2)));
      return false;
    }
    bool Remove(Path path) override { return !Fails("Remove") && real.Remove(path); }
    bool MakeFolder(Path path) override { return !Fails("MakeFolder") && real.MakeFolder(path); }
    bool FolderIsEmpty(Path path) override { return !Fails("FolderIsEmpty") && real.FolderIsEmpty(path); }
  };
  struct FileSystem : Failing<service::FileSystem> {
    using Failing::Failing;
    bool Available() override { return !Fails("Available") && real.Available(); }
    std::optional<int> DriveType(Path root) override {
      if (Fails("DriveType")) return std::nullopt;
      return real.DriveType(root);
    }
    bool FileExists(Path path) override { return !Fails("FileExists") && real.FileExists(path); }
    bool FolderExists(Path path) override { return !Fails("FolderExists") && real.FolderExists(path); }
    std::wstring ExtensionName(Path path) override {
      return Fails("ExtensionName") ? std::wstring() : real.ExtensionName(path);
    }
    std::vector<service::Drive> Drives() override {
      return Fails("Drives") ? std::vector<service::Drive>() : real.Drives();
    }
    bool DriveReady(Path path) override { return !Fails("DriveReady") && real.DriveReady(path); }
    std::vector<std::wstring> Folders(Path path) override {
      return Fails("Folders") ? std::vector<std::wstring>() : real.Folders(path);
    }
    std::vector<std::wstring> Files(Path path, Path pattern) override {
      return Fails("Files") ? std::vector<std::wstring>() : real.Files(path, pattern);
    }
    void BeginMany() override { real.BeginMany(); }
    void EndMany() override { real.EndMany(); }
  };
  struct Language : Failing<service::Language> {
    using Failing::Failing;
    std::wstring Lower(Path text) const override { return real.Lower(text); }
    std::wstring Upper(Path text) const override { return real.Upper(text); }
    std::wstring FromCodePage(std::string_view bytes) const override { return real.FromCodePage(bytes); }
    std::optional<std::string> ToCodePage(Path text) const override {
      if (Fails("ToCodePage")) return std::nullopt;
      return real.ToCodePage(text);
    }
  };
  struct Management : Failing<service::Management> {
    using Failing::Failing;
    std::optional<service::DiskIdentity> ReadDiskIdentity() override {
      if (Fails("ReadDiskIdentity")) return std::nullopt;
      return real.ReadDiskIdentity();
    }
  };
  struct Programs : Failing<service::Programs> {
    using Failing::Failing;
    bool StartCommandLine(Path commandLine) override {
      return !Fails("StartCommandLine") && real.StartCommandLine(commandLine);
    }
    int ShellOpen(Path file) override { return Fails("ShellOpen") ? 2 : real.ShellOpen(file); }
    int RequestMakeCall(Path number, Path application) override {
      return Fails("RequestMakeCall") ? -9 : real.RequestMakeCall(number, application);
    }
  };
  struct ScriptShell : Failing<service::ScriptShell> {
    using Failing::Failing;
    bool Run(Path target) override { return !Fails("Run") && real.Run(target); }
    std::wstring SpecialFolder(Path name) override {
      return Fails("SpecialFolder") ? std::wstring() : real.SpecialFolder(name);
    }
    std::wstring RegistryRead(Path name) override {
      return Fails("RegistryRead") ? std::wstring() : real.RegistryRead(name);
    }
    void RegistryWrite(Path name, Path value) override {
      if (!Fails("RegistryWrite")) real.RegistryWrite(name, value);
    }
    void RegistryDelete(Path name) override {
      if (!Fails("RegistryDelete")) real.RegistryDelete(name);
    }
    bool SaveShortcut(const service::Shortcut& shortcut) override {
      return !Fails("SaveShortcut") && real.SaveShortcut(shortcut);
    }
  };
  struct System : Failing<service::System> {
    using Failing::Failing;
    std::wstring WindowsDirectory() override {
      return Fails("WindowsDirectory") ? std::wstring() : real.WindowsDirectory();
    }
    std::wstring ProgramFolder() override { return real.ProgramFolder(); }
    bool PreviousInstance() override { return !Fails("PreviousInstance") && real.PreviousInstance(); }
    void SetTitle(Path title) override { real.SetTitle(title); }
    bool ActivateInstance(Path title) override { return !Fails("ActivateInstance") && real.ActivateInstance(title); }
  };
  struct Processes : Failing<service::Processes> {
    using Failing::Failing;
    service::SnapshotId CreateSnapshot(std::uint32_t flags, std::uint32_t processId) override {
      return Fails("CreateSnapshot") ? service::SnapshotId::None : real.CreateSnapshot(flags, processId);
    }
    bool First(service::SnapshotId snapshot, service::ProcessEntry& entry) override {
      return !Fails("First") && real.First(snapshot, entry);
    }
    bool Next(service::SnapshotId snapshot, service::ProcessEntry& entry) override {
      return !Fails("Next") && real.Next(snapshot, entry);
    }
    void CloseSnapshot(service::SnapshotId snapshot) override { real.CloseSnapshot(snapshot); }
    std::optional<std::vector<service::ManagedProcess>> ManagedProcesses() override {
      if (Fails("ManagedProcesses")) return std::nullopt;
      return real.ManagedProcesses();
    }
    std::wstring ImageName(std::uint32_t processId) override {
      return Fails("ImageName") ? std::wstring() : real.ImageName(processId);
    }
  };
  struct WindowPicker : Failing<service::WindowPicker> {
    using Failing::Failing;
    void SetCapture(service::WindowId window) override {
      if (!Fails("SetCapture")) real.SetCapture(window);
    }
    service::WindowId GetCapture() override {
      return Fails("GetCapture") ? service::WindowId::None : real.GetCapture();
    }
    void ReleaseCapture() override { real.ReleaseCapture(); }
    service::ScreenPoint GetCursorPos() override { return real.GetCursorPos(); }
    service::WindowId WindowFromPoint(service::ScreenPoint point) override {
      return Fails("WindowFromPoint") ? service::WindowId::None : real.WindowFromPoint(point);
    }
    bool LeftButtonDown() override { return !Fails("LeftButtonDown") && real.LeftButtonDown(); }
    std::uint32_t ProcessOfWindow(service::WindowId window) override {
      return Fails("ProcessOfWindow") ? 0 : real.ProcessOfWindow(window);
    }
    void ShowTarget(bool target) override { real.ShowTarget(target); }
    void Mark(service::WindowId window) override { real.Mark(window); }
  };

  DataFiles dataFiles_;
  FileSystem fileSystem_;
  Language language_;
  Management management_;
  Programs programs_;
  ScriptShell scriptShell_;
  System system_;
  Processes processes_;
  WindowPicker picker_;
};

}  // namespace vantor::fake
