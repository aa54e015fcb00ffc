#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "command/Candidates.h"
#include "list/NameMatch.h"
#include "service/Language.h"

namespace vantor::command {

/// The names that fit what was typed, the closest first: those that begin with it, in their order, then those with a
/// word that begins with it, then those that contain it. They are found anew by each search.
class Matches {
 public:
  explicit Matches(const service::Language& language) : language_(language) {}

  /// Among at most 32,767 names.
  void Search(const Candidates& candidates, std::wstring_view typed);

  [[nodiscard]] int Count() const;
  /// Of row 0 to Count() - 1: its index among the candidates, and what it shows.
  [[nodiscard]] int IndexOf(int row) const;
  [[nodiscard]] std::wstring_view NameOf(int row) const { return candidates_->Name(IndexOf(row)); }
  [[nodiscard]] std::wstring_view DetailOf(int row) const { return candidates_->Detail(IndexOf(row)); }
  /// Where in the row's name the typed characters stand.
  [[nodiscard]] std::size_t PlaceOf(int row) const { return match_->Find(NameOf(row)).Start; }
  [[nodiscard]] std::size_t TypedLength() const { return typedLength_; }

  [[nodiscard]] const Candidates& From() const { return *candidates_; }

 private:
  const service::Language& language_;
  std::optional<Candidates> candidates_;
  std::optional<list::NameMatch> match_;
  std::size_t typedLength_ = 0;
  std::array<std::vector<std::int16_t>, 3> found_;  // by how they fit
};

}  // namespace vantor::command
