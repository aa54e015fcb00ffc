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
/// They are one generation: the counts of the one belong to the records of the others. Before the first file of a
/// save is written, the generation that it replaces is kept in the folder "Backup" of the data folder, its settings
/// file last, and a mark file says that a save is under way. The mark goes when all files are on the disk. A start that
/// finds it puts the kept generation back. What did not change is not written. A generation that was not read whole is
/// copied to a folder of its own instead; where it can't be, it stays, and the new one goes to that folder.
///
/// What a save will write is moved to "Backup", under the mark, and what it will leave is copied before. A start that
/// finds the mark and no kept settings file knows that the moves were broken off, and moves back what is missing. On a
/// medium all is copied: its file system keeps no journal, and a move is two writes, between which it may be pulled.
class Generation {
 public:
  Generation(service::DataFiles& files, const state::Environment& environment)
      : files_(files), environment_(environment), rescue_(files, environment) {}

  /// At start, before anything is read: puts the kept generation back if a save was broken off. Where that can't be
  /// written now, as on a write-protected medium, the kept files themselves are read.
  void Restore();
  /// One file of the generation.
  [[nodiscard]] service::FileRead Read(std::wstring_view path);
  /// Whether the generation on the disk was read whole. Until this is called it counts as not read.
  void SetWhole(bool whole) { whole_ = whole && !markUnread_; }

  /// `overUnread`: the save will replace files that did not belong to what was read.
  void BeginSave(bool overUnread);
  /// One file of a save, by its path in the environment. EndSave writes it.
  void Write(std::wstring_view path, std::string bytes);
  /// Each file that changed is emptied and then written. A failed write leaves what was written of it; the next start
  /// then finds the mark.
  void EndSave();

  /// The folder that the last save went to because it could not go into its place; "" when it could.
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
    Older,  // than the one that the save replaces, which was not read whole
    Replaced,
  };

  void SaveElsewhere();
  /// Keeps what the save will change, and makes the mark.
  [[nodiscard]] Kept Protect();
  [[nodiscard]] bool Keep(bool byMoving);
  [[nodiscard]] bool KeepSettings();
  [[nodiscard]] bool MoveAside();
  [[nodiscard]] bool PutMovedBack();
  void PutOldBack();
  [[nodiscard]] bool Mark();
  void Unmark();

  [[nodiscard]] bool Holds(std::wstring_view path, std::string_view bytes) const;
  /// Whether a save has taken a file's old bytes, to write others.
  [[nodiscard]] bool WillReplace(std::wstring_view path) const;
  /// Without the settings file there is no kept generation.
  [[nodiscard]] bool HasKept() const { return files_.Read(KeptPath(environment_.Files.Set)).Bytes.has_value(); }
  /// All of the generation, the settings file last.
  [[nodiscard]] std::vector<std::wstring_view> All() const;
  /// What a rescue copies: the generation, and what a restore that is still due will need.
  [[nodiscard]] std::vector<std::wstring> AsFound() const;
  [[nodiscard]] std::wstring Folder() const { return environment_.DataFolder + L"\\Backup"; }
  [[nodiscard]] std::wstring KeptPath(std::wstring_view path) const;
  [[nodiscard]] std::wstring MarkPath() const { return environment_.DataFolder + L"\\Saving.Orbel"; }

  service::DataFiles& files_;
  const state::Environment& environment_;
  Rescue rescue_;
  bool whole_ = false;
  bool markUnread_ = false;
  bool readKept_ = false;   // a restore is still due, and the mark with it
  bool readMoved_ = false;  // the same, of files that were moved aside
  std::vector<Change> changes_;
  bool elsewhere_ = false;
};

}  // namespace vantor::list
