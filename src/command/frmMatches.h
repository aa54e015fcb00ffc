#pragma once

#include <functional>
#include <string_view>

#include "command/Matches.h"
#include "form/Form.h"
#include "form/RowList.h"
#include "service/Language.h"

namespace vantor::command {

/// The list of names that match the line, shown below it. The keys of the line move through it.
class frmMatches : public form::Form, private form::RowSource {
 public:
  static constexpr int MostRows = 8;  // visible at once

  /// Keeps both by reference.
  frmMatches(form::UserInterface& ui, const service::Language& language);

  form::RowList ListMatches{*this, L"ListMatches", *this};

  /// Returns the place on the desktop for a list of this size. To be set before the first search.
  std::function<form::Rect(form::Size)> Place;

  /// Searches. The visible list stays unchanged until it is shown or hidden.
  void Search(const Candidates& candidates, std::wstring_view typed) { matches_.Search(candidates, typed); }
  /// Shows the result from its first row, with this row as the current one (-1: none).
  void ShowFound(int current);
  [[nodiscard]] const Matches& Found() const { return matches_; }

 protected:
  void Form_Load() override;

 private:
  [[nodiscard]] int RowCount() const override { return matches_.Count(); }
  [[nodiscard]] form::Row RowAt(int index) const override;

  Matches matches_;
};

}  // namespace vantor::command
