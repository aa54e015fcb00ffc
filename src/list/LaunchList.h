#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "form/ListControl.h"

namespace vantor::list {

/// The groups of the launch list, in the order in which they are processed.
enum class LaunchGroup { File, Fold, Prog, Web };

inline constexpr std::array LaunchGroups{LaunchGroup::File, LaunchGroup::Fold, LaunchGroup::Prog, LaunchGroup::Web};

/// Something that can be started: a display name and a target, which is a path or a web address.
struct LaunchItem {
  std::wstring_view Name;
  std::wstring_view Target;
};

/// The two boxes of a group: entry k of both together is one item.
struct GroupBoxes {
  form::ComboBox& Name;
  form::ComboBox& Path;

  /// Adds an item to the end of both boxes, or throws and adds it to neither.
  void AddItem(const LaunchItem& item) const {
    Name.AddItem(item.Name);
    try {
      Path.AddItem(item.Target);
    } catch (...) {
      Name.RemoveItem(Name.ListCount() - 1);
      throw;
    }
  }
  [[nodiscard]] LaunchItem Item(int index) const { return {Name.List(index), Path.List(index)}; }
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
