#pragma once

#include <array>
#include <cstddef>

#include "form/ListControl.h"

namespace vantor::list {

/// The groups of the launch list, in the order in which all of them are walked.
enum class LaunchGroup { File, Fold, Prog, Web };

inline constexpr std::array LaunchGroups{LaunchGroup::File, LaunchGroup::Fold, LaunchGroup::Prog, LaunchGroup::Web};

/// The paired boxes of one group: entry k of both is one item.
struct GroupBoxes {
  form::ComboBox& Name;
  form::ComboBox& Path;

  void AddItem(std::wstring_view name, std::wstring_view path) const {
    Name.AddItem(name);
    Path.AddItem(path);
  }
};

/// The launch list: the boxes of all groups, in the order of LaunchGroups.
class LaunchList {
 public:
  LaunchList(GroupBoxes file, GroupBoxes fold, GroupBoxes prog, GroupBoxes web) : boxes_{file, fold, prog, web} {}

  [[nodiscard]] const GroupBoxes& Of(LaunchGroup group) const { return boxes_[static_cast<std::size_t>(group)]; }

 private:
  std::array<GroupBoxes, LaunchGroups.size()> boxes_;
};

}  // namespace vantor::list
