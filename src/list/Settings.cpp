#include "list/Settings.h"

#include <array>

#include "text/Numbers.h"
#include "text/SequentialFile.h"

namespace vantor::list {

namespace {

using Number = std::int16_t Settings::*;

// Around the folder's name, which stands in the midst of the numbers.
constexpr std::array<Number, 7> NumbersBeforeFolder{
    &Settings::OptionMask, &Settings::FileUpper, &Settings::FoldUpper, &Settings::ProgUpper,
    &Settings::WebUpper,   &Settings::Left,      &Settings::Top,
};
constexpr std::array<Number, 3> NumbersAfterFolder{&Settings::MachineFileUpper, &Settings::MachineFoldUpper,
                                                   &Settings::MachineProgUpper};

template <std::size_t Count>
bool ReadNumbers(text::SequentialReader& reader, const std::array<Number, Count>& numbers, Settings& settings) {
  for (const Number number : numbers) {
    const auto field = reader.Read();
    if (!field) return false;
    if (const auto value = text::ParseInt16(field->Text)) settings.*number = *value;
  }
  return true;
}

}  // namespace

bool LoadSettings(service::DataFiles& files, const service::Language& language, std::wstring_view path,
                  Settings& settings) {
  const auto content = text::ReadTextFile(files, language, path);
  if (!content) return false;
  text::SequentialReader reader(*content);
  if (!ReadNumbers(reader, NumbersBeforeFolder, settings)) return true;
  const auto folder = reader.Read();
  if (!folder) return true;
  settings.Folder = folder->Text;
  ReadNumbers(reader, NumbersAfterFolder, settings);
  return true;
}

bool SaveSettings(service::DataFiles& files, const service::Language& language, std::wstring_view path,
                  const Settings& settings) {
  text::SequentialWriter writer;
  for (const Number number : NumbersBeforeFolder) writer.Write(settings.*number);
  writer.Write(settings.Folder);
  for (const Number number : NumbersAfterFolder) writer.Write(settings.*number);
  return text::WriteTextFile(files, language, path, writer);
}

}  // namespace vantor::list
