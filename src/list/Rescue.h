#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "service/DataFiles.h"
#include "state/Environment.h"
#include "text/Numbers.h"

namespace vantor::list {

/// What a save would otherwise lose: copies of data files of which one could not be read. Each rescue has a folder of
/// its own, "Rescue\1" and so on in the data folder, which nothing writes to afterwards.
class Rescue {
 public:
  Rescue(service::DataFiles& files, const state::Environment& environment) : files_(files), environment_(environment) {}

  /// Copies those of the files that there are into a new folder. One that is held is waited for, as at the start.
  /// False, with nothing copied, when one can't be read or there is no room.
  [[nodiscard]] bool Copy(const std::vector<std::wstring>& paths);
  /// Writes what would have replaced a data file into the same folder, or a new one.
  [[nodiscard]] bool Write(std::wstring_view path, std::string_view bytes);

  /// Notes for the next start that the list was written here instead of into its place.
  void Note();
  /// The folder of the last note, "" for none.
  [[nodiscard]] std::wstring Noted() const;
  void Forget() { static_cast<void>(files_.Remove(NotePath())); }

 private:
  /// Makes the folder, and one in it where the file needs one.
  [[nodiscard]] bool MakeRoomFor(std::wstring_view path);
  [[nodiscard]] std::wstring Parent() const { return environment_.DataFolder + L"\\Rescue"; }
  [[nodiscard]] std::wstring Folder(int number) const { return Parent() + L'\\' + text::Decimal(number); }
  /// Where a file of the data folder goes.
  [[nodiscard]] std::wstring PlaceOf(std::wstring_view path) const;
  [[nodiscard]] std::wstring NotePath() const { return environment_.DataFolder + L"\\Unsaved.Orbel"; }

  service::DataFiles& files_;
  const state::Environment& environment_;
  int number_ = 0;  // of the folder, once it is made
};

}  // namespace vantor::list
