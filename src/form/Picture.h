#pragma once

namespace vantor::form {

/// A picture that the back end draws at whatever size is asked for. None draws nothing.
enum class Picture {
  None,
  ButtonNormal,
  ButtonPressed,
  ButtonDisabled,
  FaceUnfold,  // the add-web box is folded; a click unfolds it
  FaceFold,    // the add-web box is unfolded; a click folds it
  FaceMinimize,
  FaceExit,
  Launcher,  // the product's mark
  MessageBackground,
};

}  // namespace vantor::form
