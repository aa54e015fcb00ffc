#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "service/DataFiles.h"
#include "state/Environment.h"
#include "text/Numbers.h"

namespace vantor::list {

/// Data files that would otherwise be lost: copies of those that a save replaces although one of them could not be
/// read, and what a save could not write in its place. Each rescue has its own folder, "Rescue\1" and so on in the data
/// folder, which is never written to again.
class Rescue {
 public:
  Rescue(service::DataFiles& files, const state::Environment& environment) : files_(files), environment_(environment) {}

  /// Copies the existing files to a new folder. Waits for files that other programs hold, as at the start. Returns
  /// false and copies nothing if one can't be read or there is no room.
  [[nodiscard]] bool Copy(const std::vector<std::wstring>& paths);
  /// What is written from now on goes to a new folder.
  void Begin() { number_ = 0; }
  /// Writes the new contents of a data file to the folder of the last copy, or a new one.
  [[nodiscard]] bool Write(std::wstring_view path, std::string_view bytes);
  /// Removes a data file from that folder, so that an incomplete list is not taken for a whole one.
  void Remove(std::wstring_view path) { static_cast<void>(files_.Remove(PlaceOf(path))); }

  /// Leaves a note for the next start that the list was written here instead of in place.
  void Note();
  /// The folder named in the last note, "" for none.
  [[nodiscard]] std::wstring Noted() const;
  void Forget() { static_cast<void>(files_.Remove(NotePath())); }

 private:
  /// Creates the folder, and a subfolder if the file needs one.
  [[nodiscard]] bool MakeRoomFor(std::wstring_view path);
  [[nodiscard]] std::wstring Parent() const { return environment_.DataFolder + L"\\Rescue"; }
  [[nodiscard]] std::wstring Folder(int number) const { return Parent() + L'\\' + text::Decimal(number); }
  /// The place of a file of the data folder.
  [[nodiscard]] std::wstring PlaceOf(std::wstring_view path) const;
  [[nodiscard]] std::wstring NotePath() const { return environment_.DataFolder + L"\\Unsaved.Orbel"; }

  service::DataFiles& files_;
  const state::Environment& environment_;
  int number_ = 0;  // of the folder, once it is created
};

}  // namespace vantor::list
