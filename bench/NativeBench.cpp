// What the launch list costs at several sizes, up to the maximum, compared with the minimum cost of the same work.

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "fake/Computer.h"
#include "form/Headless.h"
#include "start/Program.h"

using namespace vantor;
using list::LaunchGroup;

namespace {

std::string Narrow(std::wstring_view text) {
  std::string narrow;
  narrow.reserve(text.size());
  for (const wchar_t c : text) narrow += static_cast<char>(c);
  return narrow;
}

class RealDataFiles : public service::DataFiles {
 public:
  service::FileRead Read(std::wstring_view path) override {
    std::FILE* const file = std::fopen(Narrow(path).c_str(), "rb");
    if (file == nullptr) return {std::nullopt, errno == ENOENT};
    struct stat about {};
    std::string bytes;
    if (fstat(fileno(file), &about) == 0) bytes.resize(static_cast<std::size_t>(about.st_size));
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
    (void)std::fclose(file);
    return {std::move(bytes)};
  }
  /// Writes next to the old file, flushes to the disk, and then replaces the old file.
  bool Write(std::wstring_view path, std::string_view bytes) override {
    const std::wstring beside = std::wstring(path) + L'~';
    return WriteInPlace(beside, bytes) && std::rename(Narrow(beside).c_str(), Narrow(path).c_str()) == 0;
  }
  bool WriteInPlace(std::wstring_view path, std::string_view bytes) override {
    std::FILE* const file = std::fopen(Narrow(path).c_str(), "wb");
    if (file == nullptr) return false;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && std::fflush(file) == 0 &&
                         fsync(fileno(file)) == 0;
    return std::fclose(file) == 0 && written;
  }
  bool Move(std::wstring_view from, std::wstring_view to) override {
    return std::rename(Narrow(from).c_str(), Narrow(to).c_str()) == 0;
  }
  bool Remove(std::wstring_view path) override { return std::remove(Narrow(path).c_str()) == 0 || errno == ENOENT; }
  bool MakeFolder(std::wstring_view path) override { return mkdir(Narrow(path).c_str(), 0700) == 0 || errno == EEXIST; }
  bool CanWrite(std::wstring_view path) override { return access(Narrow(path).c_str(), W_OK) == 0; }
  void Pause(int milliseconds) override { usleep(static_cast<useconds_t>(milliseconds) * 1000); }
  std::optional<std::vector<std::wstring>> FolderEntries(std::wstring_view /*path*/) override { return std::nullopt; }
};

class RealFileSystem : public service::FileSystem {
 public:
  bool FileExists(std::wstring_view path) override { return Mode(path) == S_IFREG; }
  bool FolderExists(std::wstring_view path) override { return Mode(path) == S_IFDIR; }
  std::optional<int> DriveType(std::wstring_view /*root*/) override { return 2; }
  std::wstring ExtensionName(std::wstring_view /*path*/) override { return {}; }
  std::vector<service::Drive> Drives() override { return {}; }
  bool DriveReady(std::wstring_view /*path*/) override { return true; }
  bool OthersMayWrite(std::wstring_view /*path*/) override { return true; }
  std::vector<std::wstring> Folders(std::wstring_view /*path*/) override { return {}; }
  std::vector<std::wstring> Files(std::wstring_view /*path*/, std::wstring_view /*pattern*/) override { return {}; }

 private:
  static unsigned Mode(std::wstring_view path) {
    struct stat about {};
    return stat(Narrow(path).c_str(), &about) == 0 ? about.st_mode & S_IFMT : 0;
  }
};

class AsciiLanguage : public service::Language {
 public:
  std::wstring Lower(std::wstring_view text) const override {
    std::wstring lower(text);
    for (wchar_t& c : lower) {
      if (c >= L'A' && c <= L'Z') c += L'a' - L'A';
    }
    return lower;
  }
  std::wstring Upper(std::wstring_view text) const override { return std::wstring(text); }
  std::wstring FromCodePage(std::string_view bytes) const override { return {bytes.begin(), bytes.end()}; }
  std::optional<std::string> ToCodePage(std::wstring_view text) const override { return Narrow(text); }
};

/// The milliseconds of the fastest of several runs, which is the one least disturbed by other programs; `prepare` is
/// not counted.
double Quickest(int runs, const std::function<void()>& prepare, const std::function<void()>& work) {
  using Clock = std::chrono::steady_clock;
  double quickest = 1e9;
  for (int run = 0; run < runs; ++run) {
    prepare();
    const auto begin = Clock::now();
    work();
    quickest = std::min(quickest, std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
  }
  return quickest;
}

void Print(const char* what, double ours, const char* floorName, double floor) {
  std::printf("%-48s %9.3f ms   %-36s %9.3f ms   ratio %5.2f\n", what, ours, floorName, floor, ours / floor);
}

/// Keeps the optimiser from removing a result.
volatile std::size_t result = 0;

/// The state of a program, and folders and files for it.
struct Bench {
  /// `count`: the number of items in each group.
  Bench(const std::wstring& folder, int count) : Count(count) {
    Environment.Files = {folder + L"/Set.Orbel",      L"",
                         folder + L"/ListFile.Orbel", folder + L"/ListFold.Orbel",
                         folder + L"/ListProg.Orbel", folder + L"/ListWeb.Orbel"};
    Environment.DataFolder = folder;
    Folder = folder;
  }

  /// Saves four groups whose targets exist, with paths of a usual length.
  void WriteLists() {
    const std::wstring file = Folder + L"/Program Files/Some Vendor/Some Program/program.exe";
    for (int i = 0; i < Count; ++i) {
      wchar_t name[32];
      std::swprintf(name, std::size(name), L"Item number %05d", i);
      Page.List.Of(LaunchGroup::File).AddItem({name, file});
      Page.List.Of(LaunchGroup::Fold).AddItem({name, Folder + L"/Program Files/Some Vendor"});
      Page.List.Of(LaunchGroup::Prog).AddItem({name, file});
      Page.List.Of(LaunchGroup::Web).AddItem({name, L"http://www.example.org/some/page?number=" + std::to_wstring(i)});
    }
    ListFiles.SaveLaunchList(Page.List, 0, 0);
  }

  const int Count;
  RealDataFiles DataFiles;
  RealFileSystem FileSystem;
  AsciiLanguage Language;
  fake::Computer Rest;  // what is not measured
  service::Services Services{DataFiles, FileSystem, Language, Rest, Rest, Rest, Rest, Rest, Rest};
  form::Headless Desktop;
  start::Program Program{Desktop, Services};
  state::Environment& Environment = Program.Environment;
  std::wstring Folder;
  list::Settings& Settings = Program.Settings;
  command::CommandState& State = Program.CommandState;
  list::ListFiles& ListFiles = Program.ListFiles;
  list::ListPage& Page = Program.ListPage;
  command::frmMatches& Matches = Program.frmMatches;
  bar::frmMain& Main = Program.frmMain;
};

/// The milliseconds of a keystroke until the line is painted, and until the list of matches is shown as well.
struct Keystroke {
  double Painted;
  double Listed;
};

/// Types the last character of a line.
Keystroke TimeKeystroke(Bench& bench, const std::wstring& line) {
  using Clock = std::chrono::steady_clock;
  struct Probe : form::ControlWindow {
    Clock::time_point Painted;
    void Changed(form::Property /*property*/) override {}
    void TakeFocus() override {}
    void PaintNow() override { Painted = Clock::now(); }
  } probe;
  form::TextBox& box = bench.Main.TextMain;
  box.AttachWindow(&probe);
  Clock::time_point begin;
  double painted = 1e9;
  const auto prepare = [&] {
    bench.State.BackspaceFlag = true;
    box.SetText(line.substr(0, line.size() - 1));
    box.Select(static_cast<int>(box.Text().size()), 0);
  };
  const double listed = Quickest(501, prepare, [&] {
    begin = Clock::now();
    bench.Desktop.Type(line.substr(line.size() - 1));
    painted = std::min(painted, std::chrono::duration<double, std::milli>(probe.Painted - begin).count());
  });
  box.AttachWindow(nullptr);
  return {painted, listed};
}

/// Compares the text with every place in every name once.
double TimePass(const std::vector<std::wstring>& names, const std::wstring& text, bool everywhere) {
  return Quickest(
      501, [] {},
      [&] {
        std::size_t found = 0;
        for (const std::wstring& name : names) {
          const std::size_t places = everywhere ? name.size() : 1;
          for (std::size_t at = 0; at < places; ++at) {
            std::size_t same = 0;
            while (same < text.size() && at + same < name.size() && (name[at + same] | 0x20) == text[same]) ++same;
            found += same == text.size() ? 1 : 0;
          }
        }
        result = found;
      });
}

void Keystrokes(Bench& bench) {
  bench.Main.Show();
  const auto& names = bench.Page.ComboListWebName.Entries();
  // The last name matches, and the others differ from it only in their last characters.
  const std::wstring last = bench.Language.Lower(names.back());
  const Keystroke one = TimeKeystroke(bench, L"w-" + last);
  if (bench.State.MatchedItemIndex != bench.Count - 1) std::exit(1);
  // No name begins with it, and more than a third contain it.
  const Keystroke many = TimeKeystroke(bench, L"w-6");
  if (!bench.Matches.Visible()) std::exit(1);
  const double beginnings = TimePass(names, last, false);
  const double places = TimePass(names, last, true);
  const double manyPlaces = TimePass(names, L"6", true);
  Print("keystroke, the match last, painted", one.Painted, "bare pass over the names", beginnings);
  Print("the same with the list of what fits", one.Listed, "two bare passes, one of all places", beginnings + places);
  Print("keystroke that a third contain, with the list", many.Listed, "bare pass over all places", manyPlaces);
}

/// The list panel with full groups: each of these should seem immediate, so none should take 100 ms.
void ListPanel(Bench& bench) {
  list::GroupFrame& group = bench.Page.Prog;
  const auto print = [](const char* what, double time) { std::printf("%-48s %9.3f ms\n", what, time); };
  print("open the list panel", Quickest(
                                   15, [&] { bench.Page.Close(); }, [&] { bench.Page.Open(); }));
  print("select the last item",
        Quickest(
            15, [&] { group.Name.SetListIndex(0); }, [&] { group.Name.SetListIndex(bench.Count - 1); }));
  const auto type = [&] {
    if (!group.FrameRename.Visible()) group.Rename.DoClick();
    group.TextRename.SetText(group.Name.Text() + L"x");
  };
  print("rename it", Quickest(15, type, [&] { group.RenOK.DoClick(); }));
  print("remove the first", Quickest(
                                15, [&] { group.Name.SetListIndex(0); }, [&] { group.Remove.DoClick(); }));
}

void LoadAndSave(Bench& bench) {
  const std::vector<std::wstring> files{bench.Environment.Files.Set, bench.Environment.Files.ListFile,
                                        bench.Environment.Files.ListFold, bench.Environment.Files.ListProg,
                                        bench.Environment.Files.ListWeb};
  const auto save = [&] { bench.ListFiles.SaveLaunchList(bench.Page.List, 0, 0); };
  const double unchanged = Quickest(
      41, [] {}, save);
  // Every file gets different bytes, and so does the kept generation.
  wchar_t mark = L'a';
  const auto change = [&] {
    mark = mark == L'a' ? L'b' : L'a';
    ++bench.Settings.OptionMask;
    for (const LaunchGroup group : list::LaunchGroups) {
      form::ComboBox& names = bench.Page.List.Of(group).Name;
      names.SetList(0, std::wstring(names.List(0).size(), mark));
    }
  };
  const double changed = Quickest(41, change, save);
  std::vector<std::string> contents;
  contents.reserve(files.size());
  for (const std::wstring& file : files) contents.push_back(bench.DataFiles.Read(file).Bytes.value());
  const double write = Quickest(
      41, [] {},
      [&] {
        for (std::size_t i = 0; i < files.size(); ++i) {
          if (!bench.DataFiles.WriteInPlace(files[i], contents[i])) std::exit(1);
        }
      });

  std::unique_ptr<Bench> fresh;
  const auto prepare = [&] {
    fresh = std::make_unique<Bench>(bench.Folder, bench.Count);
    fresh->ListFiles.LoadSettings();
  };
  const double load = Quickest(15, prepare, [&] { fresh->Page.Load(); });
  if (fresh->Page.ComboListProgPath.ListCount() != bench.Count) std::exit(1);
  const double check = Quickest(
      41, [] {},
      [&] {
        std::size_t found = 0;
        for (std::size_t i = 1; i < files.size(); ++i) found += bench.DataFiles.Read(files[i]).Bytes.value().size();
        for (const auto& path : bench.Page.ComboListFilePath.Entries()) found += bench.FileSystem.FileExists(path);
        for (const auto& path : bench.Page.ComboListFoldPath.Entries()) found += bench.FileSystem.FolderExists(path);
        for (const auto& path : bench.Page.ComboListProgPath.Entries()) found += bench.FileSystem.FileExists(path);
        result = found;
      });
  Print("load all four groups", load, "bare reads and existence checks", check);
  Print("save them unchanged", unchanged, "bare writes of the same bytes", write);
  Print("save them, all four groups changed", changed, "bare writes of the same bytes", write);
}

}  // namespace

int main() {
  std::string folder = "/tmp/vantor-bench-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) return 1;
  for (const int count : {400, 4000, 32767}) {
    const std::string home = folder + '/' + std::to_string(count);
    const std::string program = home + "/Program Files/Some Vendor/Some Program";
    std::filesystem::create_directories(program);
    std::ofstream(program + "/program.exe").put('\n');
    std::printf("%d items a group\n", count);
    const std::wstring place(home.begin(), home.end());
    Bench(place, count).WriteLists();
    Bench bench(place, count);
    bench.ListFiles.LoadSettings();
    bench.Page.Load();
    Keystrokes(bench);
    LoadAndSave(bench);
    ListPanel(bench);
  }
  std::filesystem::remove_all(folder);
}
