#pragma once

#include <cstdint>
#include <string_view>

#include "form/Geometry.h"
#include "list/Backup.h"
#include "list/LaunchList.h"
#include "list/Settings.h"
#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::list {

/// The list files: they fill the launch list at start and keep it when the bar is unloaded. Nothing here tells
/// the user of a failure; what could be read or written stays.
class ListFiles {
 public:
  ListFiles(const service::Services& services, const state::Environment& environment, Settings& settings)
      : services_(services), environment_(environment), settings_(settings), backup_(services, environment) {}

  /// The first of all: undoes a save that was broken off.
  void Restore() { backup_.Restore(); }
  /// Reads the settings. What can't be read stays as it is.
  void LoadSettings();
  /// Appends the items of the list files whose targets exist to the empty boxes.
  void LoadLaunchList(const LaunchList& list);
  /// Writes the settings, with the upper indexes of the boxes as they are now and the bar's place in twips, and
  /// then the list files. The file of an empty group is left as it is.
  void SaveLaunchList(const LaunchList& list, form::Twips barLeft, form::Twips barTop);

 private:
  struct Group;

  [[nodiscard]] Group GroupOf(LaunchGroup group) const;
  void LoadGroupList(const Group& group, const GroupBoxes& boxes);
  /// False when the file holds fewer records than it should.
  [[nodiscard]] bool LoadFile(const Group& group, const GroupBoxes& boxes, std::wstring_view path, int upper,
                              bool onMedia);
  [[nodiscard]] bool TargetExists(const Group& group, std::wstring_view target) const;
  /// Returns the upper index of the group's items that lie on the medium, and sets that of the computer's.
  [[nodiscard]] std::int16_t CountMediaItems(const Group& group, const GroupBoxes& boxes, std::int16_t upper) const;
  void SaveGroupList(const Group& group, const GroupBoxes& boxes);
  /// Whether the target is written into the group's main list file, in removable-media mode with the drive
  /// letter left open; the machine's list file takes the others.
  [[nodiscard]] bool BelongsToMain(const Group& group, std::wstring_view target) const;

  service::Services services_;
  const state::Environment& environment_;
  Settings& settings_;
  Backup backup_;
};

}  // namespace vantor::list
