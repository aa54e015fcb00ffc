#include "list/DataFile.h"

#include "text/Utf8.h"

namespace vantor::list {

constexpr int Patience = 2000;  // milliseconds
constexpr int Pause = 50;

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

service::FileRead ReadPatiently(service::DataFiles& files, std::wstring_view path) {
  service::FileRead read = files.Read(path);
  for (int waited = 0; read.Failed() && waited < Patience; waited += Pause) {
    files.Pause(Pause);
    read = files.Read(path);
  }
  return read;
}

std::wstring DecodeText(std::string_view bytes, const service::Language& language) {
  if (bytes.starts_with(ByteOrderMark)) return text::FromUtf8(bytes.substr(ByteOrderMark.size()));
  if (text::IsAscii(bytes)) return {bytes.begin(), bytes.end()};
  return language.FromCodePage(bytes);
}

std::string EncodeText(const text::SequentialWriter& writer, const service::Language& language) {
  if (writer.Ascii()) return std::string(writer.Bytes());
  if (auto bytes = language.ToCodePage(writer.Text())) return *std::move(bytes);
  return std::string(ByteOrderMark).append(writer.Bytes());
}

}  // namespace vantor::list
