#pragma once

#include <algorithm>
#include <string>
#include <utility>

#include "fake/Walker.h"

namespace vantor::fuzz {

using flows::Text;

inline constexpr int DeepestMessages = 4;

// Several that one is chosen from are separated by " | ".

/// Lines, or parts of them.
inline constexpr std::wstring_view Lines =
    L"p=notepad | d.s | e.b | t=123 | w- | p- | f-on | c/abc | {tab}\n | \" | \u00e9\u0416\uffff | "
    L"C:\\Work\\Tool.EXE | E:\\Work\\Tool.EXE | http://example.org";

/// What else a user may do, and what may happen.
inline constexpr std::wstring_view Events =
    L"press Tab | press Enter | press Escape | press Up | press Down | press PageUp | press PageDown | "
    L"press Backspace | press Ctrl+Backspace | compose x | composed | leave | restore | wait 1 | wait 3 | "
    L"turn ListMatches 3 | turn TextMain -3 | drop C:\\Work\\Tool.EXE | drop E:\\Work | drop http://x | "
    L"hold CommandFindPath | move over other | move over nothing | move over system | release | "
    L"given screen 800 600 | given screen 1600 900 | given drive E empty | given drive E floppy | "
    L"given failing C: | given nothing failing | given no file C:\\Work\\Tool.EXE";

/// The data that there may be, by bits of a choice; several steps are separated by line ends.
inline constexpr std::wstring_view Givens[] = {L"given home E",
                                               LR"(given data Set 7 | 1 | -1 | 1 | 1 | 0 | 0 | "C:\Work" | 1 | -1 | 0
given data User "Ada"
given data MediaSet "Vantor Media 1" | "Ready" | "Ada"
given data ListFile "one","C:\Work\Tool.EXE" | "two","E:\Work\Tool.EXE"
given data ListProg "one","C:\Work\Tool.EXE" | "two","E:\Work\Tool.EXE"
given data ListWeb "one","http://a{return}b" | "two","http://example.org"
given data MachineFile "one","C:\Work\Tool.EXE" | "two","E:\Work\Tool.EXE"
given data MachineProg "one","C:\Work\Tool.EXE" | "two","E:\Work\Tool.EXE")",
                                               L"given data Machine 3 | \"1A2B3C4D\" | 80023715840",
                                               L"given data Saving \"Saving\""};

/// A user who does anything, in any order, at a place and with data files and services that the first bytes choose.
class Wanderer : public fake::Walker {
 public:
  explicit Wanderer(std::string_view bytes) : bytes_(bytes) {
    const unsigned flags = Byte();
    Do(L"given program E:\\Work\\Tool.EXE");
    for (unsigned bit = 0; bit < std::size(Givens); ++bit) {
      for (const Text& step : flows::Split((flags >> bit) % 2 != 0 ? Givens[bit] : L"", L"\n")) Do(step);
    }
    // One file may hold anything.
    const Text file = L"\\Vantor\\" + OneOf(L"MediaSet | Machine | User | Saving | Unsaved | Set | ListWeb | ListProg");
    if ((flags & 64) != 0) Write(Computer.Home + file + L".Orbel", Take(Byte()));
    if ((flags & 16) == 0) return;
    const unsigned rate = Byte() / 4;  // so many calls of 256 go wrong
    const bool mayThrow = (flags & 32) != 0;
    Computer.Decide = [rate, mayThrow, random = Byte() + 1](std::string_view /*call*/) mutable {
      random = random * 1664525U + 1013904223U;
      if ((random >> 24) >= rate) return fake::Outcome::Works;
      return mayThrow && ((random >> 16) & 1) != 0 ? fake::Outcome::Throws : fake::Outcome::Fails;
    };
  }

  /// Starts, does what the bytes say, and ends. What could be saved is there at the next start.
  void Run() {
    Do(L"start");
    while (!bytes_.empty() && !Desktop->Ended()) Act();
    const bool failing = std::exchange(Computer.Decide, {}) != nullptr;
    Do(L"close");
    Require(Desktop->Ended(), "the program ends");
    const auto drive = Computer.Disk.DriveOf(Computer.Home);
    if (failing || !drive.Ready || drive.WriteProtected) return;
    const flows::Texts before = Sites();
    depth_ = DeepestMessages;  // from here on nothing is done but to close messages
    Start();
    Require(Sites() == before, "all sites come back");
    Do(L"close");
  }

 private:
  void Act() {
    const std::size_t what = Below(8);
    if (what == 0) return Do(L"type " + Line().substr(0, 100));  // more than that is pasted
    if (what == 1) return Do(L"paste " + Line());
    if (what == 2) return Do(L"press F" + std::to_wstring(1 + Below(9) + Below(4)));
    if (what == 3) return Do(L"drag " + std::to_wstring(Byte() * 8) + L" -" + std::to_wstring(Byte() * 4));
    what < 6 ? Do(OneOf(Events)) : Use();
  }
  /// Clicks on something that is shown.
  void Use() {
    const auto& shown = Shown();
    if (shown.empty()) return;
    const form::Control& control = *shown[Below(shown.size())];
    Text entry;
    if (const auto* list = dynamic_cast<const form::ListControl*>(&control); list != nullptr && list->ListCount() > 0)
      entry = L' ' + list->List(static_cast<int>(Below(list->Entries().size())));
    if (const auto* rows = dynamic_cast<const form::RowList*>(&control); rows != nullptr && rows->RowCount() > 0)
      entry = L' ' + rows->RowAt(static_cast<int>(Below(4)) % rows->RowCount()).Text;
    Do((Below(4) == 0 ? L"double-click " : entry.empty() ? L"click " : L"choose ") + control.Name() + entry);
  }
  void GoOnUntil(const std::function<bool()>& closed) override {
    ++depth_;
    for (int acts = 0; !closed() && !bytes_.empty() && acts < 20 && depth_ < DeepestMessages; ++acts) Act();
    if (!closed()) Desktop->ModalForm()->InputClose();
    if (!closed()) Press(form::Key::Enter);
    Require(closed(), "a message can be closed");
    --depth_;
  }

  /// The names of the listed sites. A quote is replaced when it is saved.
  [[nodiscard]] flows::Texts Sites() const {
    flows::Texts names = Program->ListPage.ComboListWebName.Entries();
    for (Text& name : names) std::ranges::replace(name, L'"', L'\'');
    return names;
  }
  Text OneOf(std::wstring_view texts) {
    const flows::Texts all = flows::Split(texts, L" | ");
    return all[Below(all.size())];
  }
  Text Line() {
    Text line;
    for (std::size_t words = 1 + Below(2); words > 0; --words) {
      const std::size_t what = Below(20);
      line += what == 0 ? Text(2000, L'x') : what < 8 ? Text(1, static_cast<wchar_t>(Byte())) : OneOf(Lines);
    }
    return line;
  }

  // The bytes as decisions, one after another; zeros when there are no more.

  /// At most so many of the next bytes.
  std::string Take(std::size_t most) {
    const std::string taken(bytes_.substr(0, most));
    bytes_.remove_prefix(taken.size());
    return taken;
  }
  unsigned Byte() { return static_cast<unsigned char>(Take(1)[0]); }
  /// 0 to count - 1.
  std::size_t Below(std::size_t count) {
    const std::size_t number = count > 256 ? Byte() * 256 + Byte() : Byte();
    return count > 0 ? number % count : 0;
  }

  std::string_view bytes_;
  int depth_ = 0;
};

}  // namespace vantor::fuzz
