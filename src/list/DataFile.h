#pragma once

#include <string>
#include <string_view>

#include "service/DataFiles.h"
#include "service/Language.h"
#include "text/SequentialFile.h"

namespace vantor::list {

/// Reads a file. One that is there but can't be read, as while a scanner holds it, is tried again for up to 2 seconds.
[[nodiscard]] service::FileRead ReadPatiently(service::DataFiles& files, std::wstring_view path);

/// The text of a data file, which is in the system's ANSI code page, or in UTF-8 when it begins with that byte-order
/// mark.
[[nodiscard]] std::wstring DecodeText(std::string_view bytes, const service::Language& language);
/// The bytes of a data file: in the ANSI code page if that holds every character, else in UTF-8 with a byte-order
/// mark.
[[nodiscard]] std::string EncodeText(const text::SequentialWriter& writer, const service::Language& language);

}  // namespace vantor::list
