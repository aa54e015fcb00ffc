#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "form/ListControl.h"
#include "service/FileSystem.h"

namespace vantor::form {

/// The drives of the computer as a drop-down list of entries such as "c: [label]".
class DriveList : public DropDownList {
 public:
  template <class Parent>
  DriveList(Parent& parent, std::wstring_view name, service::FileSystem& files)
      : DropDownList(parent, name), files_(files) {}

  /// Reads the drives again and keeps the chosen one. Raises no event.
  void Refresh();
  /// The chosen drive, such as "c:"; "" before the first choice.
  [[nodiscard]] std::wstring Drive() const;
  /// Chooses the drive of a path ("c:", "C:\x") and raises Change; choosing the current drive
  /// raises nothing, and a drive that is not in the list is added to it.
  void SetDrive(std::wstring_view path);

  [[nodiscard]] bool ChoosesAtEnd() const override { return true; }
  /// Whether the drive can be read now.
  [[nodiscard]] bool Ready(int index) const override;

  Event<> Change;

 protected:
  void EntrySelected() override { Change(); }

 private:
  service::FileSystem& files_;
};

/// The path from a drive's root to the current folder, followed by that folder's subfolders, indented by level. A
/// double click or Enter goes to an entry.
class FolderList : public OpenList {
 public:
  template <class Parent>
  FolderList(Parent& parent, std::wstring_view name, service::FileSystem& files)
      : OpenList(parent, name), files_(files) {}

  /// The current folder; a trailing backslash only at a drive's root.
  [[nodiscard]] const std::wstring& Path() const { return path_; }
  /// Goes to a folder and raises Change, unless it is the current one. Returns false and changes nothing if the drive
  /// is not ready or there is no such folder. While the form is hidden, the subfolders are not read: Refresh does that.
  bool SetPath(std::wstring_view path);
  void Refresh();
  /// The full path of entry `index`.
  [[nodiscard]] std::wstring PathOf(int index) const;
  /// How many levels entry `index` is below the root; this determines its indentation.
  [[nodiscard]] int LevelOf(int index) const override;

  Event<> Change;
  /// The user chose a folder that can't be opened; the list is unchanged.
  Event<> Unreachable;

 protected:
  void EntryChosen() override;

 private:
  /// Fills the list for the current folder, with its subfolders if they are to be read, and selects the folder's entry.
  void Fill(bool read);

  service::FileSystem& files_;
  std::wstring path_;
  int currentIndex_ = -1;  // the entry of the current folder; its subfolders follow
};

/// The files of a folder whose names match a pattern such as "*.exe", sorted without regard to case.
class FileList : public OpenList {
 public:
  template <class Parent>
  FileList(Parent& parent, std::wstring_view name, service::FileSystem& files)
      : OpenList(parent, name), files_(files) {}

  [[nodiscard]] const std::wstring& Path() const { return path_; }
  void SetPath(std::wstring_view path);
  void SetPattern(std::wstring_view pattern);
  /// Reads the folder again; no file is selected afterwards. A folder that can't be read is shown as empty.
  void Refresh();

 protected:
  /// Enter on a file has the effect of a click.
  void EnterPressed() override {
    if (ListIndex() != -1) Click();
  }

 private:
  service::FileSystem& files_;
  std::wstring path_;
  std::wstring pattern_ = L"*.*";
};

}  // namespace vantor::form
