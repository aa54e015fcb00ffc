#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "command/Candidates.h"
#include "list/NameMatch.h"
#include "service/Language.h"

namespace vantor::command {

/// The names that match what was typed, best matches first: those that begin with it, in their order, then those with
/// a word that begins with it, then those that contain it. Each search replaces them.
class Matches {
 public:
  explicit Matches(const service::Language& language) : language_(language) {}

  /// Searches among at most 32,767 names.
  void Search(const Candidates& candidates, std::wstring_view typed);

  [[nodiscard]] int Count() const;
  /// For rows 0 to Count() - 1: the index among the candidates, and the texts shown.
  [[nodiscard]] int IndexOf(int row) const;
  [[nodiscard]] std::wstring_view NameOf(int row) const { return candidates_->Name(IndexOf(row)); }
  [[nodiscard]] std::wstring_view DetailOf(int row) const { return candidates_->Detail(IndexOf(row)); }
  /// The position of the typed characters in the row's name.
  [[nodiscard]] std::size_t PlaceOf(int row) const { return match_->Find(NameOf(row)).Start; }
  [[nodiscard]] std::size_t TypedLength() const { return typedLength_; }

  [[nodiscard]] const Candidates& From() const { return *candidates_; }

 private:
  const service::Language& language_;
  std::optional<Candidates> candidates_;
  std::optional<list::NameMatch> match_;
  std::size_t typedLength_ = 0;
  std::array<std::vector<std::int16_t>, 3> found_;  // by how they match
};

}  // namespace vantor::command
