#pragma once

#include <string>
#include <vector>

#include "desktop/Folder.h"

namespace vantor::desktop {

/// Sees what the program starts, by the recorder program standing in its place.
class Recorder {
 public:
  /// Puts the recorder into the folder as recorder.exe, and behind the documents whose names end in .vantortest.
  explicit Recorder(const Folder& folder);
  ~Recorder();
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  /// Wine only: puts it in the place of Explorer and rundll32, and behind web and mail addresses.
  void ReplaceSystem();
  /// Wine only: takes Explorer, rundll32, the mail program and telephony away.
  static void RemoveSystemPrograms();

  /// The command lines recorded so far.
  [[nodiscard]] std::vector<std::string> Lines() const;
  /// Waits for the next command line that was not asked for yet.
  std::string Next();

 private:
  const Folder& folder_;
  std::size_t seen_ = 0;
};

}  // namespace vantor::desktop
