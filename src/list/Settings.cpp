#include "list/Settings.h"

#include <array>

#include "text/Numbers.h"

namespace vantor::list {

namespace {

using Number = std::int16_t Settings::*;

// The numbers before and after the folder's name.
constexpr std::array<Number, 7> NumbersBeforeFolder{
    &Settings::OptionMask, &Settings::FileUpper, &Settings::FoldUpper, &Settings::ProgUpper,
    &Settings::WebUpper,   &Settings::Left,      &Settings::Top,
};
constexpr std::array<Number, 3> NumbersAfterFolder{&Settings::MachineFileUpper, &Settings::MachineFoldUpper,
                                                   &Settings::MachineProgUpper};

/// Reads as many of the numbers as there are. Returns whether all are there and in range.
template <std::size_t Count>
bool ReadNumbers(text::SequentialReader& reader, const std::array<Number, Count>& numbers, Settings& settings) {
  bool whole = true;
  for (const Number number : numbers) {
    const auto field = reader.Read();
    const auto value = field ? text::ParseInt16(field->Text) : std::nullopt;
    if (value) settings.*number = *value;
    whole &= value.has_value();
  }
  return whole;
}

}  // namespace

bool ReadSettings(std::wstring_view text, Settings& settings) {
  text::SequentialReader reader(text);
  bool whole = ReadNumbers(reader, NumbersBeforeFolder, settings);
  const auto folder = reader.Read();
  if (folder) settings.RememberedBrowseFolder = folder->Text;
  whole &= folder.has_value();
  whole &= ReadNumbers(reader, NumbersAfterFolder, settings);
  return whole;
}

text::SequentialWriter WriteSettings(const Settings& settings) {
  text::SequentialWriter writer;
  for (const Number number : NumbersBeforeFolder) writer.Write(settings.*number);
  writer.Write(settings.RememberedBrowseFolder);
  for (const Number number : NumbersAfterFolder) writer.Write(settings.*number);
  return writer;
}

}  // namespace vantor::list
