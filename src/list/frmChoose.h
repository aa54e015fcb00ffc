#pragma once

#include <string>

#include "form/Form.h"
#include "form/ListControl.h"
#include "form/Static.h"

namespace vantor::list {

/// The paired boxes of one group: entry k of both is one item.
struct GroupBoxes {
  form::ComboBox& Name;
  form::ComboBox& Path;
};

/// The list dialog. Its eight boxes are the launch list for the length of the run.
class frmChoose : public form::Form {
 public:
  explicit frmChoose(form::UserInterface& ui);

  form::Frame FrameProgList{*this, L"FrameProgList"};
  form::ComboBox ComboListProgName{FrameProgList, L"ComboListProgName"};
  form::ComboBox ComboListProgPath{FrameProgList, L"ComboListProgPath"};
  form::Frame FrameFileList{*this, L"FrameFileList"};
  form::ComboBox ComboListFileName{FrameFileList, L"ComboListFileName"};
  form::ComboBox ComboListFilePath{FrameFileList, L"ComboListFilePath"};
  form::Frame FrameFoldList{*this, L"FrameFoldList"};
  form::ComboBox ComboListFoldName{FrameFoldList, L"ComboListFoldName"};
  form::ComboBox ComboListFoldPath{FrameFoldList, L"ComboListFoldPath"};
  form::Frame FrameWebList{*this, L"FrameWebList"};
  form::ComboBox ComboListWebName{FrameWebList, L"ComboListWebName"};
  form::ComboBox ComboListWebPath{FrameWebList, L"ComboListWebPath"};

  GroupBoxes Prog{ComboListProgName, ComboListProgPath};
  GroupBoxes File{ComboListFileName, ComboListFilePath};
  GroupBoxes Fold{ComboListFoldName, ComboListFoldPath};
  GroupBoxes Web{ComboListWebName, ComboListWebPath};
};

}  // namespace vantor::list
