#pragma once

#include <functional>
#include <string>

#include "form/Form.h"
#include "form/ListControl.h"
#include "form/Static.h"
#include "list/LaunchList.h"
#include "list/ListFiles.h"

namespace vantor::list {

/// The list dialog. Its eight boxes are the launch list for the length of the run; loading the form fills them.
class frmChoose : public form::Form {
 public:
  frmChoose(form::UserInterface& ui, const ListFiles& files);

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

  LaunchList List{{ComboListFileName, ComboListFilePath},
                  {ComboListFoldName, ComboListFoldPath},
                  {ComboListProgName, ComboListProgPath},
                  {ComboListWebName, ComboListWebPath}};

 protected:
  void Form_Load() override;

 private:
  const ListFiles& files_;
};

}  // namespace vantor::list
