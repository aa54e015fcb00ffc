#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "service/DataFiles.h"
#include "state/Environment.h"
#include "text/Numbers.h"

namespace vantor::list {

/// Copies of data files that a save would otherwise lose because one of them could not be read. Each rescue has its own
/// folder, "Rescue\1" and so on in the data folder, which is never written to again.
class Rescue {
 public:
  Rescue(service::DataFiles& files, const state::Environment& environment) : files_(files), environment_(environment) {}

  /// Copies the existing files to a new folder. Waits for files that other programs hold, as at the start. Returns
  /// false and copies nothing if one can't be read or there is no room.
  [[nodiscard]] bool Copy(const std::vector<std::wstring>& paths);
  /// Writes the new contents of a data file to the same folder, or a new one.
  [[nodiscard]] bool Write(std::wstring_view path, std::string_view bytes);

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
