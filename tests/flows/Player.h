#pragma once

#include <algorithm>
#include <filesystem>
#include <functional>
#include <istream>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#ifdef _WIN32
#include "flows/RealWorld.h"
#else
#include "flows/NativeWorld.h"
#endif
#include "flows/Words.h"
#include "text/Utf8.h"

namespace vantor::flows {

/// Plays a flow in a world of its own; README.md describes the steps.
class Player : public World {
 public:
  explicit Player(std::string name = {}) : name_(std::move(name)) {}

  /// Throws Failure with the first difference from what the flow says, which is a text in UTF-8, after the flow's name
  /// and the number of the line; or Skip if it can't be played here.
  void Play(std::istream& script) {
    std::size_t number = 1;
    for (std::string line; std::getline(script, line); ++number) Take(text::FromUtf8(line), number);
    const auto done = std::ranges::find_if(steps_, [](const auto& step) {
      return !After(L"given", step.second) && !After(L"only", step.second) && step.second != L"look";
    });
    if (done == steps_.end() || done->second != L"start") throw Failure(name_ + ": does not start the program first");
    // Whatever the flow was about.
    for (const auto* step : {L"see no message", L"see nothing started", L"close", L"see end"}) Take(step, number);
    for (const auto& [line, step] : steps_) Foresee(step);
    GoOnUntil([] { return false; });
    if (!told_.empty()) throw Failure(told_);
  }
  std::function<void(World&)> Look;  // what a step `look` does, for tests in C++

  void GoOnUntil(const std::function<bool()>& condition) override {
    while (told_.empty() && next_ < steps_.size() && !condition()) {
      const auto& [number, step] = steps_[next_++];
      try {
        Do(step);
      } catch (const Skip&) {
        throw;
      } catch (const std::exception& error) {
        if (told_.empty()) told_ = name_ + ':' + std::to_string(number) + ": " + Narrow(step) + ": " + error.what();
      }
    }
  }
  /// Throws Failure when the step can't be done or is not so.
  void Do(const Text& step) {
    for (const auto& [begin, steps] : Compounds) {
      const auto rest = After(begin, step);
      if (!rest) continue;
      const auto [first, second] = Cut(*rest, L" > ");
      for (Text part : Split(steps, L" | ")) {
        if (part.back() == L'<') part.replace(part.size() - 1, 1, first);
        if (part.back() == L'>') part.replace(part.size() - 1, 1, second);
        Do(part);
      }
      return;
    }
    for (const Verb& verb : Verbs) {
      const auto rest = After(verb.Begin, step);
      if (!rest) continue;
      const Text filled = Fill(*rest);
      if (!verb.TakesPaths) return verb.Act(*this, filled);
      for (const Text& path : Split(filled, L" | ")) verb.Act(*this, PathOf(path));
      return;
    }
    throw Failure("no such step");
  }

 private:
  /// What stands in a step, for a function that takes texts or numbers.
  struct Given {
    const Text& Written;
    operator const Text&() const { return Written; }
    operator int() const { return Number(Written); }
  };
  /// How a step begins, and the function that does what it says, with all that follows, with the first word and the
  /// rest, or with one path after the other; or the one that looks, and must then see what follows.
  struct Verb {
    template <class Owner, class... Taken>
    Verb(std::wstring_view begin, void (Owner::*act)(Taken...), bool takesPaths = false)
        : Begin(begin), TakesPaths(takesPaths), Act([act](Player& player, const Text& rest) {
            const auto& [first, second] = Cut(rest);
            if constexpr (sizeof...(Taken) == 0) (player.*act)();
            if constexpr (sizeof...(Taken) == 1) (player.*act)(Given{rest});
            if constexpr (sizeof...(Taken) == 2) (player.*act)(Given{first}, Given{second});
          }) {}
    Verb(std::wstring_view begin, Text (World::*look)())
        : Begin(begin), Act([look](Player& player, const Text& rest) {
            player.Expect(Narrow(rest), [&] { return Narrow((player.*look)()); });
          }) {}
    Verb(std::wstring_view begin, Text (World::*look)(const Text& control))
        : Begin(begin), Act([look](Player& player, const Text& rest) {
            const auto& [control, text] = Cut(rest);
            player.Expect(Narrow(text), [&, &of = control] { return Narrow((player.*look)(of)); });
          }) {}

    std::wstring_view Begin;
    bool TakesPaths = false;
    std::function<void(Player&, const Text& rest)> Act;
  };
  static const std::vector<Verb> Verbs;

  /// Steps that stand for others, in which < is what follows, up to " > ", and > is what follows that.
  static constexpr std::pair<std::wstring_view, std::wstring_view> Compounds[] = {
      {L"given nothing failing", L"given failing nothing"},
      {L"exit", L"press F10 | see end"},
      {L"answer", L"type < | press Enter"},
      {L"line", L"press F12 | see line | type <"},
      {L"enter", L"line < | press Enter"},
      {L"completes", L"line < | see line >"},
      {L"starts", L"enter < | see started > | see line"},
      {L"find", L"hold CommandFindPath | move over < | release"},
      {L"told", L"see message < | press Enter"},
      {L"see no message", L"see hidden LabelMessage"},
      {L"see nothing started", L"see started"}};
  static constexpr std::wstring_view States[] = {L"enabled",    L"disabled", L"shown",    L"hidden",
                                                 L"ticked",     L"cleared",  L"focus",    L"on top",
                                                 L"not on top", L"end",      L"minimised"};

  /// What follows a word that a text begins with; none if it begins otherwise.
  static std::optional<Text> After(std::wstring_view word, const Text& text) {
    if (text != word && !text.starts_with(Text(word) + L' ')) return std::nullopt;
    return text.substr(std::min(word.size() + 1, text.size()));
  }
  /// The steps of a line: what is seen of the first may stand behind it.
  void Take(Text line, std::size_t number) {
    while (!line.empty() && line.back() <= L' ') line.pop_back();
    const auto [world, rest] = Cut(line, L": ");
    const bool marked = world == L"native" || world == L"real";
    if (line.starts_with(L'#') || (marked && world != Name)) return;
    Text begin;
    for (const Text& step : Split(marked ? rest : line, L" > see "))
      steps_.emplace_back(number, std::exchange(begin, L"see ") + step);
  }

  /// As the program writes text: in the code page, or in UTF-8 with its mark where that lacks a character.
  [[nodiscard]] std::string Encode(const Text& text) const {
    const auto bytes = InCodePage(text);
    return bytes ? *bytes : "\xEF\xBB\xBF" + Narrow(text);
  }
  /// The records of a file, each a line of its own.
  [[nodiscard]] std::string Records(const Text& records) const {
    Text lines;
    for (const Text& record : Split(records, L" | ")) lines += record + L"\r\n";
    return Encode(lines);
  }
  [[nodiscard]] Text PathOf(const Text& path) { return path.find(L':') == 1 ? path : MeaningOf(L"f") + L'\\' + path; }
  [[nodiscard]] Text DataPath(const Text& name) { return PathOf(L"Vantor\\" + name + L".Orbel"); }
  /// Replaces words in braces by what they stand for.
  [[nodiscard]] Text Fill(Text text) {
    for (std::size_t begin = text.find(L'{'); begin != text.npos; begin = text.find(L'{', begin + 1)) {
      const std::size_t end = text.find(L'}', begin);
      if (end == text.npos) break;
      const Text word = text.substr(begin + 1, end - begin - 1);
      constexpr std::pair<std::wstring_view, wchar_t> characters[] = {
          {L"space", L' '}, {L"tab", L'\t'}, {L"return", L'\r'}, {L"separator", L'\u2028'}, {L"turn", L'\u202E'}};
      const auto* const known = std::ranges::find(characters, word, &std::pair<std::wstring_view, wchar_t>::first);
      const Text filled = known != std::end(characters) ? Text(1, known->second) : MeaningOf(word);
      if (filled.empty()) throw Failure("nothing stands for {" + Narrow(word) + '}');
      text.replace(begin, end + 1 - begin, filled);
    }
    return text;
  }

  // --- what there is

  void Only(const Text& world) {
    if (world != Name) throw Skip("only " + Narrow(world));
  }
  void NeedNoStart() const {
    if (started_) throw Failure("comes after the start");
  }
  void GiveItems(const Text& list, const Text& items) {
    NeedNoStart();
    for (const Text& item : Split(items, L" | ")) {
      const auto [name, target] = Cut(item, L" > ");
      const Text path = target.empty() ? PathOf(L"tool.exe") : target;
      items_[list].append(L"\"").append(name).append(L"\",\"").append(path).append(L"\" | ");
    }
  }
  void GiveSettings(const Text& changes) {
    NeedNoStart();
    settings_ = changes;
  }
  void GiveFirstStart() {
    NeedNoStart();
    firstStart_ = true;
  }
  void GiveData(const Text& name, const Text& records) { Write(DataPath(name), Records(records)); }
  /// With what the program finds if it is not its first start.
  void Begin() {
    if (!std::exchange(started_, true) && !firstStart_) {
      MakeProgram(PathOf(L"tool.exe"));
      for (const auto& [list, records] : items_) {
        GiveData(list, records);
        const Text name = list.starts_with(L"List") ? list.substr(4) : list;
        settings_.insert(0, name + L"Upper=" + std::to_wstring(Split(records, L" | ").size() - 1) + L' ');
      }
      Write(DataPath(L"Set"), Encode(SettingsText(settings_, L"")));
      GiveData(L"User", L"\"Anna\"");
    }
    Start();
  }

  void CallLook() { Look(*this); }
  void PressKeys(const Text& keys) {
    for (const Text& key : Words(keys)) {
      key.starts_with(L"Ctrl+") ? PressControl(KeyOf(key.substr(5))) : Press(KeyOf(key));
    }
  }

  // --- what is then seen

  /// Waits until what is seen is what must be, or has that in it.
  void Expect(const std::string& expected, const std::function<std::string()>& look, bool whole = true) {
    std::string seen;
    const auto isSo = [&] {
      seen = look();
      return whole ? seen == expected : seen.find(expected) != seen.npos;
    };
    if (!Becomes(isSo)) throw Failure("seen is \"" + seen + '"');
  }
  void See(const Text& sight) {
    for (const auto state : States) {
      const auto names = After(state, sight);
      if (!names) continue;
      for (const Text& name : names->empty() ? Texts{L""} : Words(*names))
        Expect(
            ',' + Narrow(state) + ',', [&] { return Narrow(StatesOf(name)); }, false);
      return;
    }
    throw Failure("nobody can see that");
  }
  void SeeMessage(const Text& part) {
    Expect(
        Narrow(part), [this] { return Narrow(TextOf(L"LabelMessage")); }, false);
  }
  /// The next thing that was started; "" for nothing more.
  void SeeStarted(const Text& start) {
    Expect(Narrow(start), [this] { return Started().size() > seenStarts_ ? Narrow(Started()[seenStarts_]) : ""; });
    seenStarts_ += start.empty() ? 0 : 1;
  }
  void SeeSettings(const Text& changes) { SeeBytes(DataPath(L"Set"), Encode(SettingsText(changes, MeaningOf(L"f")))); }
  void SeeData(const Text& name, const Text& records) { SeeBytes(DataPath(name), Records(records)); }
  void SeeBytes(const Text& path, const std::string& bytes) {
    Expect(bytes, [&] { return Read(path); });
  }
  void SeeNoFile(const Text& path) { SeeBytes(path, NoFile); }
  void SeeFile(const Text& path) {
    if (!Becomes([&] { return Read(path) != NoFile; })) throw Failure("there is none");
  }

  std::string name_;
  std::string told_;                                 // what was not as the flow says
  std::vector<std::pair<std::size_t, Text>> steps_;  // with the numbers of their lines
  std::size_t next_ = 0;
  Text settings_;
  std::map<Text, Text> items_;  // records by the list file's name
  bool firstStart_ = false;
  bool started_ = false;
  std::size_t seenStarts_ = Started().size();
};

/// Plays the flows of files. Tells the first difference from what each says, those that can't be played here, and at
/// the end how many were played and failed. Returns whether all that can be played here passed, and there was at least
/// one.
bool PlayAll(const std::vector<std::filesystem::path>& files, const std::function<void(const std::string& line)>& tell);

}  // namespace vantor::flows
