#include "flows/Player.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>
#include <span>
#include <sstream>
#include <utility>

#include "flows/World.h"
#include "text/Utf8.h"

namespace vantor::flows {
namespace {

std::string Narrow(std::wstring_view text) {
  std::string bytes;
  text::AppendUtf8(bytes, text);
  return bytes;
}

/// The parts between separators, blanks around them apart; none of "".
Texts Split(std::wstring_view text, std::wstring_view separator) {
  Texts parts;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(separator, at), text.size());
    if (end > at || separator.size() > 1) parts.emplace_back(text.substr(at, end - at));
    at = end + separator.size();
  }
  return parts;
}
Texts Words(const Text& text) { return Split(text, L" "); }

/// The first word, and the rest after it.
std::pair<Text, Text> Cut(const Text& text, std::wstring_view separator = L" ") {
  const std::size_t end = text.find(separator);
  if (end == text.npos) return {text, {}};
  return {text.substr(0, end), text.substr(end + separator.size())};
}

constexpr std::pair<std::wstring_view, form::Key> Keys[] = {{L"Backspace", form::Key::Back},
                                                            {L"Tab", form::Key::Tab},
                                                            {L"Enter", form::Key::Enter},
                                                            {L"Escape", form::Key::Escape},
                                                            {L"Space", form::Key::Space},
                                                            {L"Home", form::Key::Home},
                                                            {L"End", form::Key::End},
                                                            {L"Up", form::Key::Up},
                                                            {L"Down", form::Key::Down},
                                                            {L"PageUp", form::Key::PageUp},
                                                            {L"PageDown", form::Key::PageDown},
                                                            {L"Left", form::Key::Left},
                                                            {L"Right", form::Key::Right},
                                                            {L"Delete", form::Key::Delete},
                                                            {L"A", form::Key::A},
                                                            {L"C", form::Key::C},
                                                            {L"V", form::Key::V},
                                                            {L"X", form::Key::X},
                                                            {L"Z", form::Key::Z},
                                                            {L"F1", form::Key::F1},
                                                            {L"F2", form::Key::F2},
                                                            {L"F3", form::Key::F3},
                                                            {L"F4", form::Key::F4},
                                                            {L"F5", form::Key::F5},
                                                            {L"F6", form::Key::F6},
                                                            {L"F7", form::Key::F7},
                                                            {L"F8", form::Key::F8},
                                                            {L"F9", form::Key::F9},
                                                            {L"F10", form::Key::F10},
                                                            {L"F11", form::Key::F11},
                                                            {L"F12", form::Key::F12}};

/// The settings file's values in its order, as they are when nothing else is said.
constexpr std::pair<std::wstring_view, std::wstring_view> SettingNames[] = {{L"OptionMask", L"2"},
                                                                            {L"FileUpper", L"-1"},
                                                                            {L"FoldUpper", L"-1"},
                                                                            {L"ProgUpper", L"-1"},
                                                                            {L"WebUpper", L"-1"},
                                                                            {L"Left", L"0"},
                                                                            {L"Top", L"0"},
                                                                            {L"Folder", L""},
                                                                            {L"MachineFileUpper", L"-1"},
                                                                            {L"MachineFoldUpper", L"-1"},
                                                                            {L"MachineProgUpper", L"-1"}};

class Player : public Steps {
 public:
  explicit Player(std::string name) : name_(std::move(name)) {}

  Result Play(const std::string& script) {
    std::istringstream stream(script);
    for (std::string line; std::getline(stream, line);) lines_.push_back(text::FromUtf8(line));
    try {
      world_ = MakeWorld(*this);
      GoOnUntil([] { return false; });
      if (!failed_) CheckEnd();
    } catch (const Skip& why) {
      std::fprintf(stderr, "%s: skipped: %s\n", name_.c_str(), why.what());
      return Result::Skipped;
    } catch (const std::exception& error) {
      Fail(error.what());
    }
    return failed_ ? Result::Failed : Result::Passed;
  }

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

 private:
  struct Verb {
    std::wstring_view Begin;
    void (*Do)(Player& player, const Text& rest);
  };
  static std::span<const Verb> Verbs();

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
  void Fail(const std::string& why) {
    if (failed_) return;
    failed_ = true;
    const std::string step = number_ > 0 && number_ <= lines_.size() ? Narrow(lines_[number_ - 1]) : "";
    std::fprintf(stderr, "%s:%zu: %s: %s\n", name_.c_str(), number_, step.c_str(), why.c_str());
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
    const auto [list, item] = Cut(rest);
    const auto [name, target] = Cut(item, L" > ");
    items_[list] += L"\"" + name + L"\",\"" + target + L"\" | ";
  }
  /// What the program finds when it is not its first start.
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
    for (const auto& [name, value] : SettingNames) values.emplace_back(name, name == L"Folder" ? folder : value);
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

  // --- what the user does

  void Press(const Text& rest) {
    for (const Text& pressed : Words(rest)) {
      const bool control = pressed.starts_with(L"Ctrl+");
      const Text word = control ? pressed.substr(5) : pressed;
      const auto* const key = std::ranges::find(Keys, word, &std::pair<std::wstring_view, form::Key>::first);
      if (key == std::end(Keys)) throw Failure("no such key: " + Narrow(word));
      control ? world_->PressControl(key->second) : world_->Press(key->second);
    }
  }
  /// In the place of what stands in the bar's box.
  void WriteLine(const Text& rest) {
    world_->Press(form::Key::F12);
    Check("line", L"line", {}, L"");
    world_->Type(rest);
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
  void CheckNothingStarted() {
    const Texts started = world_->Started();
    if (started.size() > seenStarts_) throw Failure("started was \"" + Narrow(started[seenStarts_]) + '"');
  }
  void CheckBytes(const Text& path, const std::optional<std::string>& expected) {
    std::optional<std::string> seen;
    if (world_->Becomes([&] { return (seen = world_->Read(path)) == expected; })) return;
    throw Failure(seen ? "the file holds:\n" + *seen + "instead of:\n" + expected.value_or("(no file)")
                       : "there is no such file");
  }

  /// Words in braces by what they stand for.
  [[nodiscard]] Text Fill(Text text) {
    for (std::size_t begin = text.find(L'{'); begin != text.npos; begin = text.find(L'{', begin + 1)) {
      const std::size_t end = text.find(L'}', begin);
      if (end == text.npos) break;
      const Text word = text.substr(begin + 1, end - begin - 1);
      constexpr std::pair<std::wstring_view, wchar_t> characters[] = {
          {L"space", L' '}, {L"tab", L'\t'}, {L"return", L'\r'}, {L"separator", L'\u2028'}};
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
  Texts lines_;
  std::size_t next_ = 0;
  std::size_t number_ = 0;  // of the line that is played
  int depth_ = 0;           // of steps within steps
  bool failed_ = false;
  std::unique_ptr<World> world_;

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
    {L"given file", [](Player& p, const Text& rest) { p.world_->Write(p.PathOf(rest), ""); }},
    {L"given program", [](Player& p, const Text& rest) { p.world_->MakeProgram(p.PathOf(rest)); }},
    {L"given folder", [](Player& p, const Text& rest) { p.world_->MakeFolder(p.PathOf(rest)); }},
    {L"given no file", [](Player& p, const Text& rest) { p.world_->Remove(p.PathOf(rest)); }},
    {L"given read-only", [](Player& p, const Text& rest) { p.world_->Protect(p.PathOf(rest), true); }},
    {L"given writable", [](Player& p, const Text& rest) { p.world_->Protect(p.PathOf(rest), false); }},
    {L"given data",
     [](Player& p, const Text& rest) { p.world_->Write(p.DataPath(Cut(rest).first), p.Records(Cut(rest).second)); }},
    {L"given screen",
     [](Player& p, const Text& rest) { p.world_->SetScreen(std::stoi(Cut(rest).first), std::stoi(Cut(rest).second)); }},
    {L"given failing", [](Player& p, const Text& rest) { p.world_->Break(rest, L"fails"); }},
    {L"given throwing", [](Player& p, const Text& rest) { p.world_->Break(rest, L"throws"); }},
    {L"given nothing failing", [](Player& p, const Text& /*rest*/) { p.world_->Break(L"", L"works"); }},

    {L"start",
     [](Player& p, const Text& /*rest*/) {
       p.WriteGiven();
       p.world_->Start();
     }},
    {L"press", [](Player& p, const Text& rest) { p.Press(rest); }},
    {L"type", [](Player& p, const Text& rest) { p.world_->Type(rest); }},
    {L"paste", [](Player& p, const Text& rest) { p.world_->Paste(rest); }},
      {L"compose", [](Player& p, const Text& rest) { p.world_->Compose(true, rest); }},
      {L"composed", [](Player& p, const Text& rest) { p.world_->Compose(false, rest); }},
    {L"line", [](Player& p, const Text& rest) { p.WriteLine(rest); }},
    {L"enter",
     [](Player& p, const Text& rest) {
       p.WriteLine(rest);
       p.world_->Press(form::Key::Enter);
     }},
    {L"click", [](Player& p, const Text& rest) { p.world_->Click(rest, L"", false); }},
    {L"choose", [](Player& p, const Text& rest) { p.world_->Click(Cut(rest).first, Cut(rest).second, false); }},
    {L"double-click", [](Player& p, const Text& rest) { p.world_->Click(Cut(rest).first, Cut(rest).second, true); }},
    {L"turn", [](Player& p, const Text& rest) { p.world_->Turn(Cut(rest).first, std::stoi(Cut(rest).second)); }},
    {L"leave", [](Player& p, const Text& /*rest*/) { p.world_->Leave(); }},
    {L"hold", [](Player& p, const Text& rest) { p.world_->Hold(rest); }},
    {L"move over", [](Player& p, const Text& rest) { p.world_->MoveOver(rest); }},
    {L"release", [](Player& p, const Text& /*rest*/) { p.world_->Release(); }},
    {L"drag", [](Player& p, const Text& rest) { p.world_->Drag(std::stoi(Cut(rest).first), std::stoi(Cut(rest).second)); }},
    {L"drop", [](Player& p, const Text& rest) { p.world_->Drop(Split(rest, L" | ")); }},
    {L"restore", [](Player& p, const Text& /*rest*/) { p.world_->Restore(); }},
    {L"close", [](Player& p, const Text& /*rest*/) { p.world_->Close(); }},
    {L"exit",
     [](Player& p, const Text& /*rest*/) {
       p.world_->Press(form::Key::F10);
       p.Check("running", L"running", {}, L"no");
     }},
    {L"wait", [](Player& p, const Text& rest) { p.world_->Wait(std::stoi(rest) * 1000); }},

    {L"see text", [](Player& p, const Text& rest) { p.Check("text", L"text", Cut(rest).first, Cut(rest).second); }},
    {L"see entries",
     [](Player& p, const Text& rest) { p.Check("entries", L"entries", Cut(rest).first, Cut(rest).second); }},
    {L"see focus", [](Player& p, const Text& rest) { p.Check("focus", L"focus", rest, rest); }},
    {L"see line", [](Player& p, const Text& rest) { p.Check("line", L"line", {}, rest); }},
    {L"see title", [](Player& p, const Text& rest) { p.Check("title", L"title", {}, rest); }},
    {L"see place", [](Player& p, const Text& rest) { p.Check("place", L"place", {}, rest); }},
    {L"see run value", [](Player& p, const Text& rest) { p.Check("run value", L"run value", {}, rest); }},
    {L"see enabled", [](Player& p, const Text& rest) { p.CheckAll(L"enabled", rest, L"yes"); }},
    {L"see disabled", [](Player& p, const Text& rest) { p.CheckAll(L"enabled", rest, L"no"); }},
    {L"see shown", [](Player& p, const Text& rest) { p.CheckAll(L"shown", rest, L"yes"); }},
    {L"see hidden", [](Player& p, const Text& rest) { p.CheckAll(L"shown", rest, L"no"); }},
    {L"see ticked", [](Player& p, const Text& rest) { p.CheckAll(L"ticked", rest, L"yes"); }},
    {L"see cleared", [](Player& p, const Text& rest) { p.CheckAll(L"ticked", rest, L"no"); }},
    {L"see minimised", [](Player& p, const Text& /*rest*/) { p.Check("minimised", L"minimised", {}, L"yes"); }},
    {L"see on top", [](Player& p, const Text& /*rest*/) { p.Check("on top", L"on top", {}, L"yes"); }},
    {L"see not on top", [](Player& p, const Text& /*rest*/) { p.Check("on top", L"on top", {}, L"no"); }},
    {L"see end", [](Player& p, const Text& /*rest*/) { p.Check("running", L"running", {}, L"no"); }},
    {L"see message", [](Player& p, const Text& rest) { p.SeeMessage(rest); }},
    {L"see no message", [](Player& p, const Text& /*rest*/) { p.CheckAll(L"shown", L"LabelMessage", L"no"); }},
    {L"see started", [](Player& p, const Text& rest) { p.SeeStarted(rest); }},
    {L"see nothing started", [](Player& p, const Text& /*rest*/) { p.CheckNothingStarted(); }},
    {L"see data",
     [](Player& p, const Text& rest) { p.CheckBytes(p.DataPath(Cut(rest).first), p.Records(Cut(rest).second)); }},
    {L"see no data", [](Player& p, const Text& rest) { p.CheckBytes(p.DataPath(rest), {}); }},
    {L"see settings",
     [](Player& p, const Text& rest) {
       p.CheckBytes(p.DataPath(L"Set"), p.SettingsBytes(rest, p.world_->Place(L"f")));
     }},
    {L"see file",
     [](Player& p, const Text& rest) {
       if (!p.world_->Becomes([&] { return p.world_->Read(p.PathOf(rest)).has_value(); })) throw Failure("no such file");
     }},
    {L"see no file", [](Player& p, const Text& rest) { p.CheckBytes(p.PathOf(rest), {}); }},
  };
  return all;
}

}  // namespace

Result Play(const std::string& name, const std::string& script) { return Player(name).Play(script); }

}  // namespace vantor::flows
