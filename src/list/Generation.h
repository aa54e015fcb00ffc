#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "list/Rescue.h"
#include "service/DataFiles.h"
#include "state/Environment.h"

namespace vantor::list {

/// The settings and list files, read and written so that no save can lose them.
///
/// They form a generation: the counts in one file belong to the records in the others. Before the first file of a save
/// is written, the previous generation is kept in the folder "Backup" of the data folder, its settings file last, and a
/// mark file records that a save is in progress. The mark is removed when all files are on the disk. A start that finds
/// it restores the kept generation. Unchanged files are not written. A generation that was not read completely is
/// copied to a separate folder instead; if that fails it stays where it is, and the new one is written to that folder.
///
/// Files that a save will write are moved to "Backup" after the mark is set; the others are copied there before. A
/// start that finds the mark but no kept settings file knows that the moves were interrupted, and moves back what is
/// missing. On a removable medium all files are copied: its file system has no journal, and a move consists of two
/// writes, between which the medium may be pulled out.
class Generation {
 public:
  Generation(service::DataFiles& files, const state::Environment& environment)
      : files_(files), environment_(environment), rescue_(files, environment) {}

  /// At start, before anything is read: restores the kept generation if a save was interrupted. If that can't be
  /// written now, for example on a write-protected medium, the kept files themselves are read.
  void Restore();
  /// Reads one file of the generation.
  [[nodiscard]] service::FileRead Read(std::wstring_view path);
  /// Tells whether the generation on the disk was read completely. Until this is called it counts as not read.
  void SetWhole(bool whole) { whole_ = whole && !markUnread_; }

  /// `overUnread`: the save will replace files that did not belong to what was read.
  void BeginSave(bool overUnread);
  /// Adds one file to a save, by its path in the environment. EndSave writes it.
  void Write(std::wstring_view path, std::string bytes);
  /// Empties and then writes each changed file. A failed write leaves the part that was written; the next start then
  /// finds the mark. What was to be written goes to a separate folder then, if there is room.
  void EndSave();

  /// The folder that the last save went to because it could not be written in place; "" if it was.
  [[nodiscard]] std::wstring SavedElsewhere() const { return rescue_.Noted(); }
  void ForgetSavedElsewhere() { rescue_.Forget(); }

 private:
  struct Change {
    std::wstring_view Path;
    std::string Bytes;
    service::FileRead Old;
  };
  /// The generation that a failed save goes back to.
  enum class Kept {
    None,
    Older,  // than the one that the save replaces, which was not read completely
    Replaced,
  };

  void SaveElsewhere();
  /// Keeps what the save will change, and sets the mark.
  [[nodiscard]] Kept Protect();
  [[nodiscard]] bool Keep(bool byMoving);
  [[nodiscard]] bool KeepSettings();
  [[nodiscard]] bool MoveAside();
  [[nodiscard]] bool PutMovedBack();
  void PutOldBack();
  [[nodiscard]] bool Mark();
  void Unmark();

  [[nodiscard]] bool Holds(std::wstring_view path, std::string_view bytes) const;
  /// Whether the save has read the old bytes of a file in order to write new ones.
  [[nodiscard]] bool WillReplace(std::wstring_view path) const;
  /// Without its settings file the kept generation is incomplete.
  [[nodiscard]] bool HasKept() const { return files_.Read(KeptPath(environment_.Files.Set)).Bytes.has_value(); }
  /// All files of the generation, the settings file last.
  [[nodiscard]] std::vector<std::wstring_view> All() const;
  /// The files that a rescue copies: the generation, and whatever a pending restore will need.
  [[nodiscard]] std::vector<std::wstring> AsFound() const;
  [[nodiscard]] std::wstring Folder() const { return environment_.DataFolder + L"\\Backup"; }
  [[nodiscard]] std::wstring KeptPath(std::wstring_view path) const;
  [[nodiscard]] std::wstring MarkPath() const { return environment_.DataFolder + L"\\Saving.Orbel"; }

  service::DataFiles& files_;
  const state::Environment& environment_;
  Rescue rescue_;
  bool whole_ = false;
  bool markUnread_ = false;
  bool readKept_ = false;   // a restore is pending, and with it the mark
  bool readMoved_ = false;  // the same for files that were moved aside
  std::vector<Change> changes_;
  bool elsewhere_ = false;
};

}  // namespace vantor::list
