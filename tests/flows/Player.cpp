#include "flows/Player.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>
#include <tuple>
#include <utility>

#include "flows/Words.h"
#include "flows/World.h"
#include "text/Utf8.h"

namespace vantor::flows {
namespace {

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
    std::string line;
    for (std::size_t number = 1; std::getline(script, line); ++number) Take(text::FromUtf8(line), number);
    try {
      const std::unique_ptr<World> world = MakeWorld(*this);
      world_ = world.get();
      for (const auto& [number, step] : steps_) world->Foresee(step);
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

  std::function<void(World&)> Look;  // what a step `look` does, for tests in C++

  void GoOnUntil(const std::function<bool()>& condition) override {
    ++depth_;
    while (!failed_ && next_ < steps_.size() && !condition()) {
      std::tie(number_, step_) = steps_[next_++];
      try {
        Do(step_);
      } catch (const Skip&) {
        throw;
      } catch (const std::exception& error) {
        Fail(error.what());
      }
    }
    if (--depth_ > 0 && !failed_ && !condition()) Fail("the flow ends while a message is open");
  }

  /// One step; throws Failure when it can't be done or is not so.
  void Do(Text line) {
    while (!line.empty() && line.back() <= L' ') line.pop_back();
    if (line.empty() || line.starts_with(L"#")) return;
    if (const auto world = After(L"only", line)) {
      if (*world != world_->Name()) throw Skip(Narrow(line));
      return;
    }
    for (const std::wstring_view world : {L"native", L"real"}) {
      const auto step = After(Text(world) + L':', line);
      if (step && world != world_->Name()) return;
      if (step) line = *step;
    }
    for (const auto& [begin, act] : Verbs) {
      if (const auto rest = After(begin, line)) return act(*this, Fill(*rest));
    }
    throw Failure("no such step");
  }

 private:
  /// How a step begins, and what is done with the rest of it.
  static const std::vector<std::pair<std::wstring_view, void (*)(Player&, const Text& rest)>> Verbs;

  /// What follows a word that a text begins with; none if it begins otherwise.
  static std::optional<Text> After(std::wstring_view word, const Text& text) {
    if (text != word && !text.starts_with(Text(word) + L' ')) return std::nullopt;
    return text.substr(std::min(word.size() + 1, text.size()));
  }

  /// The steps of a line: what is seen of the first may stand behind it.
  void Take(const Text& line, std::size_t number) {
    const auto [step, sight] = Cut(line, L" > see ");
    const Text mark = line.starts_with(L"native: ") ? L"native: " : line.starts_with(L"real: ") ? L"real: " : L"";
    steps_.emplace_back(number, step);
    if (!sight.empty()) steps_.emplace_back(number, mark + L"see " + sight);
  }
  void Fail(const std::string& why) {
    if (failed_) return;
    failed_ = true;
    told_ = name_ + ':' + std::to_string(number_) + ": " + Narrow(step_) + ": " + why;
  }
  /// Whatever the flow was about: nothing is open or started at the end that it did not speak of, and the program can
  /// be left.
  void CheckEnd() {
    See(L"hidden LabelMessage");
    SeeNothingStarted();
    if (world_->See(L"running") == L"yes") world_->Close();
    See(L"end");
  }

  /// As the program writes text: in the code page, or in UTF-8 with its mark where that lacks a character.
  [[nodiscard]] std::string Encode(const Text& text) const {
    const auto bytes = world_->InCodePage(text);
    return bytes ? *bytes : "\xEF\xBB\xBF" + Narrow(text);
  }
  /// Of a data file's name and its records: its path, and their bytes.
  [[nodiscard]] Text DataOf(const Text& rest) { return DataPath(Cut(rest).first); }
  [[nodiscard]] std::string RecordsOf(const Text& rest) const { return Records(Cut(rest).second); }
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
    world_->Write(DataPath(L"Set"), Encode(SettingsText(settings, L"")));
    world_->Write(DataPath(L"User"), "\"Anna\"\r\n");
  }
  /// Does something with each of several paths.
  template <class Action>
  void Each(const Text& paths, Action action) {
    for (const Text& path : Split(paths, L" | ")) action(PathOf(path));
  }
  static int First(const Text& numbers) { return std::stoi(numbers); }
  static int Second(const Text& numbers) { return std::stoi(Cut(numbers).second); }
  static int Third(const Text& numbers) { return Words(numbers).size() > 2 ? Second(Cut(numbers).second) : 96; }

  // --- what the user does

  void Start() {
    WriteGiven();
    world_->Start();
  }
  void Exit() {
    world_->Press(form::Key::F10);
    See(L"end");
  }

  void Press(const Text& rest) {
    const auto [keys, line] = Cut(rest, L" > ");
    for (const Text& pressed : Words(keys)) {
      const bool control = pressed.starts_with(L"Ctrl+");
      control ? world_->PressControl(KeyOf(pressed.substr(5))) : world_->Press(KeyOf(pressed));
    }
    if (!line.empty()) SeeLine(line);
  }
  /// Replaces the text of the bar's box.
  void WriteLine(const Text& rest, bool enter) {
    world_->Press(form::Key::F12);
    SeeLine({});
    Answer(rest, enter);
  }
  void Answer(const Text& rest, bool enter) {
    world_->Type(rest);
    if (enter) world_->Press(form::Key::Enter);
  }

  // --- what is then seen

  void Check(std::wstring_view what, const Text& control, const Text& expected) {
    Text seen;
    if (world_->Becomes([&] { return (seen = world_->See(what, control)) == expected; })) return;
    throw Failure((control.empty() ? "" : Narrow(control) + ' ') + Narrow(what) + " is \"" + Narrow(seen) + '"');
  }
  void SeeLine(const Text& line) { Check(L"line", {}, line); }
  void See(const Text& sight) {
    for (const auto& [word, what, expected] : Sights) {
      const auto controls = After(word, sight);
      if (controls && controls->empty()) return Check(what, {}, Text(expected));
      if (!controls) continue;
      for (const Text& control : Words(*controls)) Check(what, control, Text(expected));
      return;
    }
    for (const std::wstring_view what : {L"line", L"title", L"place", L"run value"}) {
      if (const auto expected = After(what, sight)) return Check(what, {}, *expected);
    }
    for (const std::wstring_view what : {L"text", L"entries"}) {
      if (const auto rest = After(what, sight)) return Check(what, Cut(*rest).first, Cut(*rest).second);
    }
    // The real world asks whether this control has the focus.
    if (const auto control = After(L"focus", sight)) return Check(L"focus", *control, *control);
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
    SeeLine({});
  }
  void Completes(const Text& rest) {
    WriteLine(Cut(rest, L" > ").first, false);
    SeeLine(Cut(rest, L" > ").second);
  }
  void Told(const Text& text) {
    SeeMessage(text);
    world_->Press(form::Key::Enter);
  }
  void SeeNothingStarted() {
    const Texts started = world_->Started();
    if (started.size() > seenStarts_) throw Failure("started was \"" + Narrow(started[seenStarts_]) + '"');
  }
  void SeeSettings(const Text& changes) {
    SeeBytes(DataPath(L"Set"), Encode(SettingsText(changes, world_->Place(L"f"))));
  }
  void SeeFile(const Text& path, bool there) {
    if (!world_->Becomes([&] { return world_->Read(path).has_value() == there; })) throw Failure("it is not so");
  }
  void SeeBytes(const Text& path, const std::string& expected) {
    std::optional<std::string> seen;
    if (world_->Becomes([&] { return (seen = world_->Read(path)) == expected; })) return;
    throw Failure("the file holds:\n" + seen.value_or("(no file)") + "instead of:\n" + expected);
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
  std::vector<std::pair<std::size_t, Text>> steps_;  // with the numbers of their lines
  std::size_t next_ = 0;
  std::size_t number_ = 0;  // of the step that is played
  Text step_;
  int depth_ = 0;  // of steps within steps
  bool failed_ = false;
  World* world_ = nullptr;

  Text settings_;
  std::map<Text, Text> items_;  // records by the list file's name
  bool firstStart_ = false;
  std::size_t seenStarts_ = 0;
};

// Where one begins as another, the longer one comes first.
const std::vector<std::pair<std::wstring_view, void (*)(Player&, const Text& rest)>> Player::Verbs = {
    {L"given item", [](Player& p, const Text& rest) { p.GiveItem(rest); }},
    {L"given settings", [](Player& p, const Text& rest) { p.settings_ = rest; }},
    {L"given first start", [](Player& p, const Text&) { p.firstStart_ = true; }},
    {L"given drive", [](Player& p, const Text& rest) { p.world_->NeedDrive(rest.at(0), Cut(rest).second); }},
    {L"given home", [](Player& p, const Text& rest) { p.world_->SetHome(rest.at(0)); }},
    {L"given file",
     [](Player& p, const Text& rest) { p.Each(rest, [&](const Text& at) { p.world_->Write(at, ""); }); }},
    {L"given program",
     [](Player& p, const Text& rest) { p.Each(rest, std::bind_front(&World::MakeProgram, p.world_)); }},
    {L"given folder", [](Player& p, const Text& rest) { p.Each(rest, std::bind_front(&World::MakeFolder, p.world_)); }},
    {L"given no file", [](Player& p, const Text& rest) { p.Each(rest, std::bind_front(&World::Remove, p.world_)); }},
    {L"given data", [](Player& p, const Text& rest) { p.world_->Write(p.DataOf(rest), p.RecordsOf(rest)); }},
    {L"given screen", [](Player& p, const Text& rest) { p.world_->SetScreen(First(rest), Second(rest), Third(rest)); }},
    {L"given failing", [](Player& p, const Text& rest) { p.world_->Break(rest, L"fails"); }},
    {L"given throwing", [](Player& p, const Text& rest) { p.world_->Break(rest, L"throws"); }},
    {L"given nothing failing", [](Player& p, const Text&) { p.world_->Break(L"", L"works"); }},

    {L"start", [](Player& p, const Text&) { p.Start(); }},
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
    {L"leave", [](Player& p, const Text&) { p.world_->Leave(); }},
    {L"hold", [](Player& p, const Text& rest) { p.world_->Hold(rest); }},
    {L"move over", [](Player& p, const Text& rest) { p.world_->MoveOver(rest); }},
    {L"release", [](Player& p, const Text&) { p.world_->Release(); }},
    {L"drag", [](Player& p, const Text& rest) { p.world_->Drag(First(rest), Second(rest)); }},
    {L"drop", [](Player& p, const Text& rest) { p.world_->Drop(Split(rest, L" | ")); }},
    {L"restore", [](Player& p, const Text&) { p.world_->Restore(); }},
    {L"close", [](Player& p, const Text&) { p.world_->Close(); }},
    {L"exit", [](Player& p, const Text&) { p.Exit(); }},
    {L"wait", [](Player& p, const Text& rest) { p.world_->Wait(First(rest) * 1000); }},
    {L"look", [](Player& p, const Text&) { p.Look(*p.world_); }},

    {L"told", [](Player& p, const Text& rest) { p.Told(rest); }},
    {L"see message", [](Player& p, const Text& rest) { p.SeeMessage(rest); }},
    {L"see no message", [](Player& p, const Text&) { p.See(L"hidden LabelMessage"); }},
    {L"see started", [](Player& p, const Text& rest) { p.SeeStarted(rest); }},
    {L"see nothing started", [](Player& p, const Text&) { p.SeeNothingStarted(); }},
    {L"see data", [](Player& p, const Text& rest) { p.SeeBytes(p.DataOf(rest), p.RecordsOf(rest)); }},
    {L"see settings", [](Player& p, const Text& rest) { p.SeeSettings(rest); }},
    {L"see file", [](Player& p, const Text& rest) { p.SeeFile(p.PathOf(rest), true); }},
    {L"see no file", [](Player& p, const Text& rest) { p.SeeFile(p.PathOf(rest), false); }},
    {L"see", [](Player& p, const Text& rest) { p.See(rest); }}};

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

std::string Play(const Text& flow, const std::function<void(World&)>& look) {
  Player player("");
  player.Look = look;
  std::istringstream lines(Narrow(flow));
  return player.Play(lines) == Result::Passed ? "" : player.Told();
}

void Try(World& world, const Text& steps) {
  Player player("", &world);
  for (const Text& step : Split(steps, L"\n")) {
    try {
      player.Do(step);
    } catch (const Failure&) {
    }
  }
}

}  // namespace vantor::flows
