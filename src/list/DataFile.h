#pragma once

#include <string>
#include <string_view>

#include "service/DataFiles.h"
#include "service/Language.h"
#include "text/SequentialFile.h"

namespace vantor::list {

/// Reads a file. If it exists but can't be read, for example while a scanner holds it, retries for up to 2 seconds.
[[nodiscard]] service::FileRead ReadPatiently(service::DataFiles& files, std::wstring_view path);

/// The text of a data file, which is in the system's ANSI code page, or in UTF-8 if it begins with that byte-order
/// mark.
[[nodiscard]] std::wstring DecodeText(std::string_view bytes, const service::Language& language);
/// The bytes of a data file: in the ANSI code page if that holds every character, else in UTF-8 with a byte-order
/// mark.
[[nodiscard]] std::string EncodeText(const text::SequentialWriter& writer, const service::Language& language);

}  // namespace vantor::list
