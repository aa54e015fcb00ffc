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

/// The list files: the launch list is loaded from them at start and saved to them when the bar is unloaded. Failures
/// are not reported to the user; whatever could be read or written is kept.
class ListFiles {
 public:
  ListFiles(const service::Services& services, const state::Environment& environment, Settings& settings)
      : services_(services),
        environment_(environment),
        settings_(settings),
        generation_(services.DataFiles, environment) {}

  /// To be called first: undoes an interrupted save.
  void Restore() { generation_.Restore(); }
  /// Reads the settings. Values that can't be read stay unchanged, except the counts of existing lists, which are set
  /// to the maximum.
  void LoadSettings();
  /// Fills the empty boxes with the items of the list files whose targets exist. If loading a file throws, the
  /// exception is rethrown after all other files have been loaded.
  void LoadLaunchList(const LaunchList& list);
  /// Writes the settings, with the upper indexes of the boxes as they are now and the bar's place in twips, and
  /// then the list files. The file of an empty group is left unchanged.
  void SaveLaunchList(const LaunchList& list, form::Twips barLeft, form::Twips barTop);

  /// The folder that the last save went to because the previous files could neither be read nor copied; "" if it was
  /// written in place.
  [[nodiscard]] std::wstring SavedElsewhere() const { return generation_.SavedElsewhere(); }
  void ForgetSavedElsewhere() { generation_.ForgetSavedElsewhere(); }

 private:
  struct Group;
  /// The indexes of a group's items, by the list file that they are saved in.
  struct Split {
    std::vector<int> Main, Machine;
  };

  [[nodiscard]] Group GroupOf(LaunchGroup group) const;
  /// A failure ends the loading of this file only.
  void LoadListFile(const Group& group, const GroupBoxes& boxes, std::wstring_view path, int upper, bool onMedia);
  /// Returns false if the file holds fewer records than it should, or can't be read.
  [[nodiscard]] bool LoadRecords(const Group& group, const GroupBoxes& boxes, std::wstring_view path, int upper,
                                 bool onMedia);
  template <class Reader>
  [[nodiscard]] bool LoadRecords(const Group& group, const GroupBoxes& boxes, Reader reader, int upper, bool onMedia);
  [[nodiscard]] bool TargetExists(const Group& group, std::wstring_view target) const;

  /// On the remembered computer, items that are not on the medium go to the machine's list file; otherwise everything
  /// goes to the main list file.
  [[nodiscard]] Split SplitGroup(const Group& group, const GroupBoxes& boxes) const;
  /// Returns the upper index of the group's items on the medium, and sets that of the items on the computer.
  std::int16_t CountMediaItems(const Group& group, const Split& split);
  void SaveGroupList(const Group& group, const GroupBoxes& boxes, const Split& split);

  service::Services services_;
  const state::Environment& environment_;
  Settings& settings_;
  Generation generation_;
  bool settingsWhole_ = false;
  bool listsWhole_ = false;
  bool machineRead_ = false;   // its list files were read too
  std::exception_ptr broken_;  // the exception of the first load that failed
};

}  // namespace vantor::list
