#include "flows/Player.h"

#include <fstream>

namespace vantor::flows {

// Where one begins as another, the longer one comes first.
const std::vector<Player::Verb> Player::Verbs = {{L"only", &Player::Only},
                                                 {L"given item", &Player::GiveItems},
                                                 {L"given settings", &Player::GiveSettings},
                                                 {L"given first start", &Player::GiveFirstStart},
                                                 {L"given data", &Player::GiveData},
                                                 {L"given drive", &World::NeedDrive},
                                                 {L"given home", &World::SetHome},
                                                 {L"given file", &World::MakeFile, true},
                                                 {L"given program", &World::MakeProgram, true},
                                                 {L"given folder", &World::MakeFolder, true},
                                                 {L"given no file", &World::Remove, true},
                                                 {L"given screen", &World::SetScreen},
                                                 {L"given failing", &World::Fail},
                                                 {L"given throwing", &World::Throw},
                                                 {L"start", &Player::Begin},
                                                 {L"press", &Player::PressKeys},
                                                 {L"type", &World::Type},
                                                 {L"paste", &World::Paste},
                                                 {L"compose", &World::Compose},
                                                 {L"composed", &World::EndComposing},
                                                 {L"click", &World::Click},
                                                 {L"choose", &World::Click},
                                                 {L"double-click", &World::DoubleClick},
                                                 {L"turn", &World::Turn},
                                                 {L"leave", &World::Leave},
                                                 {L"hold", &World::Hold},
                                                 {L"move over", &World::MoveOver},
                                                 {L"release", &World::Release},
                                                 {L"drag", &World::Drag},
                                                 {L"drop", &World::Drop},
                                                 {L"restore", &World::Restore},
                                                 {L"close", &World::Close},
                                                 {L"wait", &World::Wait},
                                                 {L"look", &Player::CallLook},
                                                 {L"see line", &World::Line},
                                                 {L"see title", &World::Title},
                                                 {L"see place", &World::Place},
                                                 {L"see run value", &World::RunValue},
                                                 {L"see text", &World::TextOf},
                                                 {L"see entries", &World::EntriesOf},
                                                 {L"see message", &Player::SeeMessage},
                                                 {L"see started", &Player::SeeStarted},
                                                 {L"see data", &Player::SeeData},
                                                 {L"see settings", &Player::SeeSettings},
                                                 {L"see file", &Player::SeeFile, true},
                                                 {L"see no file", &Player::SeeNoFile, true},
                                                 {L"see", &Player::See}};

bool PlayAll(const std::vector<std::filesystem::path>& files, const std::function<void(const std::string&)>& tell) {
  std::size_t skipped = 0;
  std::size_t failed = 0;
  for (const std::filesystem::path& path : files) {
    const std::string name = path.filename().string();
    try {
      std::ifstream file(path, std::ios::binary);
      if (!file) throw Failure(path.string() + " can't be read");
      Player(name).Play(file);
    } catch (const Skip& why) {
      ++skipped;
      tell(name + ": skipped: " + why.what());
    } catch (const std::exception& error) {
      ++failed;
      tell(error.what());
    }
  }
  tell(std::to_string(files.size() - skipped) + " flows, " + std::to_string(failed) + " failed");
  return failed == 0 && files.size() > skipped;
}

}  // namespace vantor::flows
