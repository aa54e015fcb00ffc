#include "list/Rescue.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "list/DataFile.h"
#include "text/Numbers.h"

namespace vantor::list {

bool Rescue::Copy(const std::vector<std::wstring>& paths) {
  number_ = 0;
  std::vector<std::pair<std::wstring_view, std::string>> found;
  for (const std::wstring& path : paths) {
    service::FileRead read = ReadPatiently(files_, path);
    if (read.Failed()) return false;
    if (read.Bytes) found.emplace_back(path, *std::move(read.Bytes));
  }
  const bool copied = std::all_of(found.begin(), found.end(),
                                  [this](const auto& file) { return this->Write(file.first, file.second); });
  if (copied) return true;
  // An incomplete copy would be worse than none when restored.
  for (const auto& [path, bytes] : found) static_cast<void>(files_.Remove(PlaceOf(path)));
  return false;
}

bool Rescue::Write(std::wstring_view path, std::string_view bytes) {
  return MakeRoomFor(path) && files_.Write(PlaceOf(path), bytes);
}

bool Rescue::MakeRoomFor(std::wstring_view path) {
  if (number_ == 0) {
    const auto names = files_.FolderEntries(Parent());
    if (!names) return false;
    int last = 0;
    for (const std::wstring& name : *names) last = std::max<int>(last, text::ParseInt16(name).value_or(0));
    if (last == INT16_MAX || !files_.MakeFolder(Parent()) || !files_.MakeFolder(Folder(last + 1))) return false;
    number_ = last + 1;
  }
  const std::wstring place = PlaceOf(path);
  const std::wstring folder = place.substr(0, place.rfind(L'\\'));
  return folder == Folder(number_) || files_.MakeFolder(folder);
}

std::wstring Rescue::PlaceOf(std::wstring_view path) const {
  return Folder(number_).append(path.substr(environment_.DataFolder.size()));
}

void Rescue::Note() {
  text::SequentialWriter writer;
  writer.Write(number_);
  static_cast<void>(files_.Write(NotePath(), writer.Bytes()));
}

std::wstring Rescue::Noted() const {
  const service::FileRead note = ReadPatiently(files_, NotePath());
  if (!note.Bytes) return {};
  const std::wstring text(note.Bytes->begin(), note.Bytes->end());
  const auto number = text::SequentialReader(text).Read();
  const auto value = number ? text::ParseInt16(number->Text) : std::nullopt;
  return value && *value > 0 ? Folder(*value) : L"";
}

}  // namespace vantor::list
