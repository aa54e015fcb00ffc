#include "flows/Player.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <span>
#include <sstream>
#include <utility>

#include "flows/Words.h"
#include "flows/World.h"
#include "text/Utf8.h"

namespace vantor::flows {
namespace {

/// The settings file's values in its order, as they are when nothing else is said.
constexpr std::wstring_view UsualSettings =
    L"OptionMask=2 FileUpper=-1 FoldUpper=-1 ProgUpper=-1 WebUpper=-1 Left=0 Top=0 Folder= MachineFileUpper=-1 "
    L"MachineFoldUpper=-1 MachineProgUpper=-1";

/// What can be seen of controls, or of the bar, and is so or not.
constexpr struct {
  std::wstring_view Word, What, Expected;
} Sights[] = {{L"enabled", L"enabled", L"yes"},     {L"disabled", L"enabled", L"no"}, {L"shown", L"shown", L"yes"},
              {L"hidden", L"shown", L"no"},         {L"ticked", L"ticked", L"yes"},   {L"cleared", L"ticked", L"no"},
              {L"minimised", L"minimised", L"yes"}, {L"on top", L"on top", L"yes"},   {L"not on top", L"on top", L"no"},
              {L"end", L"running", L"no"}};

enum class Result { Passed, Failed, Skipped };

class Player : public Steps {
 public:
  explicit Player(std::string name, World* world = nullptr) : name_(std::move(name)), world_(world) {}

  Result Play(std::istream& script) {
    for (std::string line; std::getline(script, line);) lines_.push_back(text::FromUtf8(line));
    try {
      const std::unique_ptr<World> world = MakeWorld(*this);
      world_ = world.get();
      for (const Text& line : lines_) world->Foresee(line);
      GoOnUntil([] { return false; });
      if (!failed_) CheckEnd();
    } catch (const Skip& why) {
      told_ = name_ + ": skipped: " + why.what();
      return Result::Skipped;
    } catch (const std::exception& error) {
      Fail(error.what());
    }
    return failed_ ? Result::Failed : Result::Passed;
  }

  /// What was not as the flow says, or why it can't be played here.
  [[nodiscard]] const std::string& Told() const { return told_; }

  void GoOnUntil(const std::function<bool()>& condition) override {
    ++depth_;
    while (!failed_ && next_ < lines_.size() && !condition()) {
      const std::size_t line = next_++;
      try {
        Do(lines_[line], line + 1);
      } catch (const Skip&) {
        throw;
      } catch (const std::exception& error) {
        Fail(error.what());
      }
    }
    if (--depth_ > 0 && !failed_ && !condition()) Fail("the flow ends while a message is open");
  }

  /// One line; throws Failure when it can't be done or is not so.
  void Do(Text line, std::size_t number) {
    number_ = number;
    while (!line.empty() && line.back() <= L' ') line.pop_back();
    if (line.empty() || line.starts_with(L"#")) return;
    for (const std::wstring_view world : {L"native", L"real"}) {
      const Text mark = Text(world) + L": ";
      if (line == L"only " + Text(world) && world_->Name() != world) throw Skip("only " + Narrow(world));
      if (line == L"only " + Text(world) || (line.starts_with(mark) && world_->Name() != world)) return;
      if (line.starts_with(mark)) line.erase(0, mark.size());
    }
    for (const Verb& verb : Verbs()) {
      if (line != verb.Begin && !line.starts_with(Text(verb.Begin) + L' ')) continue;
      Text rest = line.substr(std::min(verb.Begin.size() + 1, line.size()));
      return verb.Do(*this, Fill(rest));
    }
    throw Failure("no such step");
  }

 private:
  struct Verb {
    std::wstring_view Begin;
    void (*Do)(Player& player, const Text& rest);
  };
  static std::span<const Verb> Verbs();

  void Fail(const std::string& why) {
    if (failed_) return;
    failed_ = true;
    const std::string step = number_ > 0 && number_ <= lines_.size() ? Narrow(lines_[number_ - 1]) : "";
    told_ = name_ + ':' + std::to_string(number_) + ": " + step + ": " + why;
  }
  /// Whatever the flow was about: nothing is open or started at the end that it did not speak of, and the program can
  /// be left.
  void CheckEnd() {
    CheckAll(L"shown", L"LabelMessage", L"no");
    CheckNothingStarted();
    if (world_->See(L"running") == L"yes") world_->Close();
    Check("running", L"running", {}, L"no");
  }

  /// As the program writes text: in the code page, or in UTF-8 with its mark where that lacks a character.
  [[nodiscard]] std::string Encode(const Text& text) const {
    const auto bytes = world_->InCodePage(text);
    return bytes ? *bytes : "\xEF\xBB\xBF" + Narrow(text);
  }
  /// The records of a file, each a line of its own.
  [[nodiscard]] std::string Records(const Text& records) const {
    Text lines;
    for (const Text& record : Split(records, L" | ")) lines += record + L"\r\n";
    return Encode(lines);
  }

  // --- what there is

  void GiveItem(const Text& rest) {
    const auto [list, items] = Cut(rest);
    for (const Text& item : Split(items, L" | ")) {
      const auto [name, target] = Cut(item, L" > ");
      items_[list].append(L"\"").append(name).append(L"\",\"").append(target).append(L"\" | ");
    }
  }
  /// What the program finds if it is not its first start.
  void WriteGiven() {
    if (firstStart_) return;
    firstStart_ = true;
    Text settings = settings_;
    for (const auto& [list, records] : items_) {
      world_->Write(DataPath(list), Records(records));
      const Text name = list.starts_with(L"List") ? list.substr(4) : list;
      settings.insert(0, name + L"Upper=" + std::to_wstring(Split(records, L" | ").size() - 1) + L' ');
    }
    world_->Write(DataPath(L"Set"), SettingsBytes(settings, L""));
    world_->Write(DataPath(L"User"), "\"Anna\"\r\n");
  }
  /// The settings file, with what is said in the place of the usual values: "OptionMask=6 Left=600".
  [[nodiscard]] std::string SettingsBytes(const Text& changes, std::wstring_view folder) const {
    std::vector<std::pair<Text, Text>> values;
    for (const Text& usual : Words(Text(UsualSettings))) values.push_back(Cut(usual, L"="));
    std::ranges::find(values, L"Folder", &std::pair<Text, Text>::first)->second = folder;
    for (const Text& change : Words(changes)) {
      const auto [name, value] = Cut(change, L"=");
      const auto found = std::ranges::find(values, name, &std::pair<Text, Text>::first);
      if (found == values.end()) throw Failure("no such setting: " + Narrow(name));
      found->second = value;
    }
    Text bytes;
    for (const auto& [name, value] : values) bytes += (name == L"Folder" ? L'"' + value + L'"' : value) + L"\r\n";
    return Encode(bytes);
  }

  /// Does something with each of several paths.
  template <class Action>
  void Each(const Text& paths, Action action) {
    for (const Text& path : Split(paths, L" | ")) action(PathOf(path));
  }
  static int First(const Text& numbers) { return std::stoi(numbers); }
  static int Second(const Text& numbers) { return std::stoi(Cut(numbers).second); }

  // --- what the user does

  void Start() {
    WriteGiven();
    world_->Start();
  }
  void Exit() {
    world_->Press(form::Key::F10);
    Check("running", L"running", {}, L"no");
  }

  void Press(const Text& rest) {
    const auto [keys, line] = Cut(rest, L" > ");
    for (const Text& pressed : Words(keys)) {
      const bool control = pressed.starts_with(L"Ctrl+");
      control ? world_->PressControl(KeyOf(pressed.substr(5))) : world_->Press(KeyOf(pressed));
    }
    if (!line.empty()) Check("line", L"line", {}, line);
  }
  /// Replaces the text of the bar's box.
  void WriteLine(const Text& rest, bool enter) {
    world_->Press(form::Key::F12);
    Check("line", L"line", {}, L"");
    Answer(rest, enter);
  }
  void Answer(const Text& rest, bool enter) {
    world_->Type(rest);
    if (enter) world_->Press(form::Key::Enter);
  }

  // --- what is then seen

  void Check(const std::string& label, std::wstring_view what, const Text& control, const Text& expected) {
    Text seen;
    const bool same = world_->Becomes([&] { return (seen = world_->See(what, control)) == expected; });
    if (!same) throw Failure(label + " is \"" + Narrow(seen) + '"');
  }
  void CheckAll(std::wstring_view what, const Text& controls, const Text& expected) {
    for (const Text& control : Words(controls)) Check(Narrow(control) + ' ' + Narrow(what), what, control, expected);
  }
  void See(const Text& what) {
    for (const auto& sight : Sights) {
      if (what == sight.Word) return Check(Narrow(what), sight.What, {}, Text(sight.Expected));
      if (what.starts_with(Text(sight.Word) + L' '))
        return CheckAll(sight.What, what.substr(sight.Word.size() + 1), Text(sight.Expected));
    }
    for (const std::wstring_view word : {L"line", L"title", L"place", L"run value", L"focus"}) {
      if (what != word && !what.starts_with(Text(word) + L' ')) continue;
      const Text expected = what.substr(std::min(word.size() + 1, what.size()));
      return Check(Narrow(word), word, expected, expected);  // the real world asks whether that control has the focus
    }
    throw Failure("nobody can see that");
  }
  void SeeMessage(const Text& text) {
    Text seen;
    const auto open = [&] {
      seen = world_->See(L"text", L"LabelMessage");
      return world_->See(L"shown", L"LabelMessage") == L"yes" && seen.find(text) != seen.npos;
    };
    if (!world_->Becomes(open)) throw Failure("the message is \"" + Narrow(seen) + '"');
  }
  void SeeStarted(const Text& what) {
    Texts started;
    const auto one = [&] { return (started = world_->Started()).size() > seenStarts_; };
    if (!world_->Becomes(one)) throw Failure("nothing was started");
    Text expected = what;
    std::erase(expected, L'"');
    const Text& seen = started[seenStarts_++];
    if (seen != expected) throw Failure("started was \"" + Narrow(seen) + '"');
  }
  void Starts(const Text& rest) {
    WriteLine(Cut(rest, L" > ").first, true);
    SeeStarted(Cut(rest, L" > ").second);
    Check("line", L"line", {}, L"");
  }
  void Completes(const Text& rest) {
    WriteLine(Cut(rest, L" > ").first, false);
    Check("line", L"line", {}, Cut(rest, L" > ").second);
  }
  void Told(const Text& text) {
    SeeMessage(text);
    world_->Press(form::Key::Enter);
  }
  void CheckNothingStarted() {
    const Texts started = world_->Started();
    if (started.size() > seenStarts_) throw Failure("started was \"" + Narrow(started[seenStarts_]) + '"');
  }
  void SeeSettings(const Text& changes) { CheckBytes(DataPath(L"Set"), SettingsBytes(changes, world_->Place(L"f"))); }
  void SeeFile(const Text& path) {
    if (!world_->Becomes([&] { return world_->Read(path).has_value(); })) throw Failure("no such file");
  }
  void CheckBytes(const Text& path, const std::optional<std::string>& expected) {
    std::optional<std::string> seen;
    if (world_->Becomes([&] { return (seen = world_->Read(path)) == expected; })) return;
    throw Failure(seen ? "the file holds:\n" + *seen + "instead of:\n" + expected.value_or("(no file)")
                       : "there is no such file");
  }

  /// Replaces words in braces by what they stand for.
  [[nodiscard]] Text Fill(Text text) {
    for (std::size_t begin = text.find(L'{'); begin != text.npos; begin = text.find(L'{', begin + 1)) {
      const std::size_t end = text.find(L'}', begin);
      if (end == text.npos) break;
      const Text word = text.substr(begin + 1, end - begin - 1);
      constexpr std::pair<std::wstring_view, wchar_t> characters[] = {
          {L"space", L' '}, {L"tab", L'\t'}, {L"return", L'\r'}, {L"separator", L'\u2028'}, {L"turn", L'\u202E'}};
      const auto* const known = std::ranges::find(characters, word, &std::pair<std::wstring_view, wchar_t>::first);
      const Text filled = known != std::end(characters) ? Text(1, known->second) : world_->Place(word);
      if (filled.empty()) throw Failure("nothing stands for {" + Narrow(word) + '}');
      text.replace(begin, end + 1 - begin, filled);
    }
    return text;
  }
  [[nodiscard]] Text PathOf(const Text& path) {
    return path.find(L':') == 1 ? path : world_->Place(L"f") + L'\\' + path;
  }
  [[nodiscard]] Text DataPath(const Text& name) { return PathOf(L"Vantor\\" + name + L".Orbel"); }

  std::string name_;
  std::string told_;
  Texts lines_;
  std::size_t next_ = 0;
  std::size_t number_ = 0;  // of the line that is played
  int depth_ = 0;           // of steps within steps
  bool failed_ = false;
  World* world_ = nullptr;

  Text settings_;
  std::map<Text, Text> items_;  // records by the list file's name
  bool firstStart_ = false;
  std::size_t seenStarts_ = 0;
};

std::span<const Player::Verb> Player::Verbs() {
  static constexpr Verb all[] = {
      {L"given item", [](Player& p, const Text& rest) { p.GiveItem(rest); }},
      {L"given settings", [](Player& p, const Text& rest) { p.settings_ = rest; }},
      {L"given first start", [](Player& p, const Text& /*rest*/) { p.firstStart_ = true; }},
      {L"given drive", [](Player& p, const Text& rest) { p.world_->NeedDrive(rest.at(0), Cut(rest).second); }},
      {L"given home", [](Player& p, const Text& rest) { p.world_->SetHome(rest.at(0)); }},
      {L"given file",
       [](Player& p, const Text& rest) { p.Each(rest, [&](const Text& at) { p.world_->Write(at, ""); }); }},
      {L"given program",
       [](Player& p, const Text& rest) { p.Each(rest, [&](const Text& at) { p.world_->MakeProgram(at); }); }},
      {L"given folder", [](Player& p, const Text& rest) { p.world_->MakeFolder(p.PathOf(rest)); }},
      {L"given no file",
       [](Player& p, const Text& rest) { p.Each(rest, [&](const Text& at) { p.world_->Remove(at); }); }},
      {L"given read-only", [](Player& p, const Text& rest) { p.world_->Protect(p.PathOf(rest), true); }},
      {L"given writable", [](Player& p, const Text& rest) { p.world_->Protect(p.PathOf(rest), false); }},
      {L"given data",
       [](Player& p, const Text& rest) { p.world_->Write(p.DataPath(Cut(rest).first), p.Records(Cut(rest).second)); }},
      {L"given screen", [](Player& p, const Text& rest) { p.world_->SetScreen(First(rest), Second(rest)); }},
      {L"given failing", [](Player& p, const Text& rest) { p.world_->Break(rest, L"fails"); }},
      {L"given throwing", [](Player& p, const Text& rest) { p.world_->Break(rest, L"throws"); }},
      {L"given nothing failing", [](Player& p, const Text& /*rest*/) { p.world_->Break(L"", L"works"); }},

      {L"start", [](Player& p, const Text& /*rest*/) { p.Start(); }},
      {L"press", [](Player& p, const Text& rest) { p.Press(rest); }},
      {L"type", [](Player& p, const Text& rest) { p.world_->Type(rest); }},
      {L"answer", [](Player& p, const Text& rest) { p.Answer(rest, true); }},
      {L"paste", [](Player& p, const Text& rest) { p.world_->Paste(rest); }},
      {L"compose", [](Player& p, const Text& rest) { p.world_->Compose(true, rest); }},
      {L"composed", [](Player& p, const Text& rest) { p.world_->Compose(false, rest); }},
      {L"line", [](Player& p, const Text& rest) { p.WriteLine(rest, false); }},
      {L"enter", [](Player& p, const Text& rest) { p.WriteLine(rest, true); }},
      {L"completes", [](Player& p, const Text& rest) { p.Completes(rest); }},
      {L"starts", [](Player& p, const Text& rest) { p.Starts(rest); }},
      {L"click", [](Player& p, const Text& rest) { p.world_->Click(rest, L"", false); }},
      {L"choose", [](Player& p, const Text& rest) { p.world_->Click(Cut(rest).first, Cut(rest).second, false); }},
      {L"double-click", [](Player& p, const Text& rest) { p.world_->Click(Cut(rest).first, Cut(rest).second, true); }},
      {L"turn", [](Player& p, const Text& rest) { p.world_->Turn(Cut(rest).first, Second(rest)); }},
      {L"leave", [](Player& p, const Text& /*rest*/) { p.world_->Leave(); }},
      {L"hold", [](Player& p, const Text& rest) { p.world_->Hold(rest); }},
      {L"move over", [](Player& p, const Text& rest) { p.world_->MoveOver(rest); }},
      {L"release", [](Player& p, const Text& /*rest*/) { p.world_->Release(); }},
      {L"drag", [](Player& p, const Text& rest) { p.world_->Drag(First(rest), Second(rest)); }},
      {L"drop", [](Player& p, const Text& rest) { p.world_->Drop(Split(rest, L" | ")); }},
      {L"restore", [](Player& p, const Text& /*rest*/) { p.world_->Restore(); }},
      {L"close", [](Player& p, const Text& /*rest*/) { p.world_->Close(); }},
      {L"exit", [](Player& p, const Text& /*rest*/) { p.Exit(); }},
      {L"wait", [](Player& p, const Text& rest) { p.world_->Wait(First(rest) * 1000); }},

      {L"told", [](Player& p, const Text& rest) { p.Told(rest); }},
      {L"see text", [](Player& p, const Text& rest) { p.Check("text", L"text", Cut(rest).first, Cut(rest).second); }},
      {L"see entries",
       [](Player& p, const Text& rest) { p.Check("entries", L"entries", Cut(rest).first, Cut(rest).second); }},
      {L"see message", [](Player& p, const Text& rest) { p.SeeMessage(rest); }},
      {L"see no message", [](Player& p, const Text& /*rest*/) { p.CheckAll(L"shown", L"LabelMessage", L"no"); }},
      {L"see started", [](Player& p, const Text& rest) { p.SeeStarted(rest); }},
      {L"see nothing started", [](Player& p, const Text& /*rest*/) { p.CheckNothingStarted(); }},
      {L"see data",
       [](Player& p, const Text& rest) { p.CheckBytes(p.DataPath(Cut(rest).first), p.Records(Cut(rest).second)); }},
      {L"see no data", [](Player& p, const Text& rest) { p.CheckBytes(p.DataPath(rest), {}); }},
      {L"see settings", [](Player& p, const Text& rest) { p.SeeSettings(rest); }},
      {L"see file", [](Player& p, const Text& rest) { p.SeeFile(p.PathOf(rest)); }},
      {L"see no file", [](Player& p, const Text& rest) { p.CheckBytes(p.PathOf(rest), {}); }},
      {L"see", [](Player& p, const Text& rest) { p.See(rest); }},
  };
  return all;
}

}  // namespace

bool PlayAll(const std::vector<std::filesystem::path>& files, const std::function<void(const std::string&)>& tell) {
  std::size_t skipped = 0;
  int failed = 0;
  for (const std::filesystem::path& path : files) {
    std::ifstream file(path, std::ios::binary);
    Player player(path.filename().string());
    const bool there = file.is_open();
    const Result result = there ? player.Play(file) : Result::Failed;
    if (result != Result::Passed) tell(there ? player.Told() : path.string() + " can't be read");
    skipped += result == Result::Skipped ? 1 : 0;
    failed += result == Result::Failed ? 1 : 0;
  }
  tell(std::to_string(files.size() - skipped) + " flows, " + std::to_string(failed) + " failed");
  return failed == 0 && files.size() > skipped;
}

std::string Play(const Text& flow) {
  Player player("");
  std::istringstream lines(Narrow(flow));
  return player.Play(lines) == Result::Passed ? "" : player.Told();
}

void Try(World& world, const Text& steps) {
  Player player("", &world);
  for (const Text& step : Split(steps, L"\n")) {
    try {
      player.Do(step, 1);
    } catch (const Failure&) {
    }
  }
}

}  // namespace vantor::flows
