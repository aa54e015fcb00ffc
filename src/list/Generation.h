#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "list/Rescue.h"
#include "service/DataFiles.h"
#include "state/Environment.h"

namespace vantor::list {

/// The settings and list files, read and written so that no save can lose them.
///
/// They are one generation: the counts of the one belong to the records of the others. Before the first file of a
/// save is written, the generation that it replaces is kept in the folder "Backup" of the data folder, and a mark file
/// says that a save is under way. The mark goes when all files are on the disk. A start that finds it puts the kept
/// generation back. What did not change is not written. A generation that was not read whole is copied to a folder of
/// its own instead; where it can't be, it stays, and the new one goes to that folder.
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
  /// One file of a save: emptied and then written. A failed write leaves what was written of it; the next start then
  /// finds the mark.
  void Write(std::wstring_view path, std::string_view bytes);
  void EndSave();

  /// The folder that the last save went to because it could not go into its place; "" when it could.
  [[nodiscard]] std::wstring SavedElsewhere() const { return rescue_.Noted(); }
  void ForgetSavedElsewhere() { rescue_.Forget(); }

 private:
  struct Save {
    bool Begun = false;
    bool Marked = false;
    bool Failed = false;
    bool Elsewhere = false;
    // What stood in the files written, nothing for one that was not there, where the kept generation is none that a
    // failed save could go back to.
    std::vector<std::pair<std::wstring, std::optional<std::string>>> Old;
  };

  void Protect();
  [[nodiscard]] bool Keep() const;
  /// The settings file is kept last: without it there is no kept generation.
  [[nodiscard]] bool HasKept() const { return files_.Read(KeptPath(environment_.Files.Set)).Bytes.has_value(); }
  void PutOldBack();
  void Unmark();

  /// The list files, those of a remembered computer included.
  [[nodiscard]] std::vector<std::wstring> Lists() const;
  /// All of the generation, the settings file last.
  [[nodiscard]] std::vector<std::wstring> All() const;
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
  bool readKept_ = false;  // a restore is still due, and the mark with it
  Save save_;
};

}  // namespace vantor::list
