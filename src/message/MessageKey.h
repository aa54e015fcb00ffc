#pragma once

#include <string_view>

namespace vantor::message {

/// The name of a message; empty for none, which means success. The ones below are the only ones.
class MessageKey {
 public:
  constexpr MessageKey() = default;
  explicit consteval MessageKey(std::wstring_view name) : name_(name) {}

  [[nodiscard]] constexpr std::wstring_view Name() const { return name_; }
  [[nodiscard]] constexpr bool empty() const { return name_.empty(); }
  friend constexpr bool operator==(MessageKey, MessageKey) = default;

 private:
  std::wstring_view name_;
};

inline constexpr MessageKey MessageGetUserName{L"MessageGetUserName"};
inline constexpr MessageKey MessageChangeUserName{L"MessageChangeUserName"};
inline constexpr MessageKey MessageMustChoosePicture{L"MessageMustChoosePicture"};
inline constexpr MessageKey MessageIncorrectPicture{L"MessageIncorrectPicture"};
inline constexpr MessageKey MessageSmallScreen{L"MessageSmallScreen"};
inline constexpr MessageKey MessageNeedSriptRuntime{L"MessageNeedSriptRuntime"};
inline constexpr MessageKey MessageMediaUnknown{L"MessageMediaUnknown"};
inline constexpr MessageKey MessageMediaCDRom{L"MessageMediaCDRom"};
inline constexpr MessageKey MessageMediaRunCancel{L"MessageMediaRunCancel"};
inline constexpr MessageKey MessageMediaCreateError{L"MessageMediaCreateError"};
inline constexpr MessageKey MessageRecreateMedia{L"MessageRecreateMedia"};
inline constexpr MessageKey MessageFisrtStart{L"MessageFisrtStart"};
inline constexpr MessageKey MessagePathAlreadyListed{L"MessagePathAlreadyListed"};
inline constexpr MessageKey MessageNameAlreadyListed{L"MessageNameAlreadyListed"};
inline constexpr MessageKey MessageEmptyList{L"MessageEmptyList"};
inline constexpr MessageKey MessageProgramDetermineError{L"MessageProgramDetermineError"};
inline constexpr MessageKey MessageProgramExplorerError{L"MessageProgramExplorerError"};
inline constexpr MessageKey MessageProgramRunError{L"MessageProgramRunError"};
inline constexpr MessageKey MessageProgramStartError{L"MessageProgramStartError"};
inline constexpr MessageKey MessageDriveNotReady{L"MessageDriveNotReady"};
inline constexpr MessageKey MessageExecutableNotFound{L"MessageExecutableNotFound"};
inline constexpr MessageKey MessageAddNotFound{L"MessageAddNotFound"};
// Failures that are not shown: these have no text.
inline constexpr MessageKey MessageProgInSystem{L"MessageProgInSystem"};
inline constexpr MessageKey MessagePanelOpenError{L"MessagePanelOpenError"};

}  // namespace vantor::message
