#pragma once

#include <functional>
#include <string_view>

#include "command/Matches.h"
#include "form/Form.h"
#include "form/RowList.h"
#include "service/Language.h"

namespace vantor::command {

/// The list of what fits the line, which hangs below it. It is walked by the line's keys.
class frmMatches : public form::Form, private form::RowSource {
 public:
  static constexpr int MostRows = 8;  // seen at once

  /// Keeps both by reference.
  frmMatches(form::UserInterface& ui, const service::Language& language);

  form::RowList ListMatches{*this, L"ListMatches", *this};

  /// Where a list of this size stands on the desktop. Set before the first search.
  std::function<form::Rect(form::Size)> Place;

  /// Finds what fits. What is seen stays until it is shown or hidden.
  void Search(const Candidates& candidates, std::wstring_view typed) { matches_.Search(candidates, typed); }
  /// Shows what was found, from its first row, with this row as the current one (-1: none).
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
