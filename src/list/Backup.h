#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::list {

/// The settings and list files, read and written so that no save can lose them.
///
/// They are one generation: the counts of the one belong to the records of the others. Before the first file of a
/// save is written, the generation that it replaces is kept in the folder "Backup" of the data folder, and a mark file
/// says that a save is under way. The mark goes when all files are on the disk. A start that finds it puts the kept
/// generation back. What did not change is not written.
class Backup final : public service::DataFiles {
 public:
  Backup(const service::Services& services, const state::Environment& environment)
      : files_(services.DataFiles), fileSystem_(services.FileSystem), environment_(environment) {}

  /// At start, before anything is read: puts the kept generation back if a save was broken off. Where that can't be
  /// written now, as on a write-protected medium, the kept files themselves are read.
  void Restore();

  /// Whether the generation on the disk was read whole. One that was not never takes the place of the one kept.
  void SetWhole(bool whole) { whole_ = whole; }
  [[nodiscard]] bool Whole() const { return whole_; }

  void BeginSave() { save_ = {}; }
  void EndSave();

  std::optional<std::string> Read(std::wstring_view path) override;
  /// One file of a save. A failed write leaves what was written of it; the next start then finds the mark.
  bool Write(std::wstring_view path, std::string_view bytes) override;  // in place too: the kept one stands by
  bool WriteInPlace(std::wstring_view path, std::string_view bytes) override { return Write(path, bytes); }
  bool Remove(std::wstring_view path) override { return files_.Remove(path); }
  bool MakeFolder(std::wstring_view path) override { return files_.MakeFolder(path); }
  bool FolderIsEmpty(std::wstring_view path) override { return files_.FolderIsEmpty(path); }

 private:
  struct Save {
    bool Begun = false;
    bool Marked = false;
    bool Failed = false;
    // What stood in the files written, for a save that could not be marked.
    std::vector<std::pair<std::wstring, std::string>> Old;
  };

  void Protect();
  [[nodiscard]] bool Keep() const;
  /// The settings file is kept last: without it there is no kept generation.
  [[nodiscard]] bool HasKept() const { return files_.Read(KeptPath(environment_.Files.Set)).has_value(); }
  void PutOldBack();
  void Unmark();

  /// The list files, those of a remembered computer included.
  [[nodiscard]] std::vector<std::wstring_view> Lists() const;
  [[nodiscard]] std::wstring Folder() const { return environment_.DataFolder + L"\\Backup"; }
  [[nodiscard]] std::wstring KeptPath(std::wstring_view path) const;
  [[nodiscard]] std::wstring MarkPath() const { return environment_.DataFolder + L"\\Saving.Orbel"; }

  service::DataFiles& files_;
  service::FileSystem& fileSystem_;
  const state::Environment& environment_;
  bool whole_ = false;
  bool readKept_ = false;  // a restore is still due, and the mark with it
  Save save_;
};

}  // namespace vantor::list
