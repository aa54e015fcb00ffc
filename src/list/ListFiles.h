#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "form/Geometry.h"
#include "list/Generation.h"
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
      : services_(services),
        environment_(environment),
        settings_(settings),
        generation_(services.DataFiles, environment) {}

  /// The first of all: undoes a save that was broken off.
  void Restore() { generation_.Restore(); }
  /// Reads the settings. What can't be read stays as it is, but for the counts of lists that are there: each of those
  /// counts as the greatest.
  void LoadSettings();
  /// Appends the items of the list files whose targets exist to the empty boxes. Throws what a loader threw, after all
  /// the other files have been loaded.
  void LoadLaunchList(const LaunchList& list);
  /// Writes the settings, with the upper indexes of the boxes as they are now and the bar's place in twips, and
  /// then the list files. The file of an empty group is left as it is.
  void SaveLaunchList(const LaunchList& list, form::Twips barLeft, form::Twips barTop);

  /// The folder that the last save went to, because the files before it could neither be read nor copied; "" when it
  /// went where it should.
  [[nodiscard]] std::wstring SavedElsewhere() const { return generation_.SavedElsewhere(); }
  void ForgetSavedElsewhere() { generation_.ForgetSavedElsewhere(); }

 private:
  struct Group;
  /// The indexes of a group's items, by the list file that they go to.
  struct Split {
    std::vector<int> Main, Machine;
  };

  [[nodiscard]] Group GroupOf(LaunchGroup group) const;
  void LoadGroupList(const Group& group, const GroupBoxes& boxes);
  /// Whatever breaks the reading of a file ends it there, and no other file's.
  void LoadListFile(const Group& group, const GroupBoxes& boxes, std::wstring_view path, int upper, bool onMedia);
  /// False when the file holds fewer records than it should, or can't be read.
  [[nodiscard]] bool LoadRecords(const Group& group, const GroupBoxes& boxes, std::wstring_view path, int upper,
                                 bool onMedia);
  template <class Reader>
  [[nodiscard]] bool LoadRecords(const Group& group, const GroupBoxes& boxes, Reader reader, int upper, bool onMedia);
  [[nodiscard]] bool TargetExists(const Group& group, std::wstring_view target) const;

  /// On the remembered computer the machine's list file takes what does not lie on the medium; without one, the main
  /// list file takes everything.
  [[nodiscard]] Split SplitGroup(const Group& group, const GroupBoxes& boxes) const;
  /// Returns the upper index of the group's items that lie on the medium, and sets that of the computer's.
  std::int16_t CountMediaItems(const Group& group, const Split& split);
  void SaveSettings();
  void SaveGroupList(const Group& group, const GroupBoxes& boxes, const Split& split);

  service::Services services_;
  const state::Environment& environment_;
  Settings& settings_;
  Generation generation_;
  bool settingsWhole_ = false;
  bool listsWhole_ = false;
  bool machineRead_ = false;   // its list files belong to what was read
  std::exception_ptr broken_;  // what the first loader to break threw
};

}  // namespace vantor::list
