#include "add/clsActiveProcess.h"

#include <string_view>

namespace vantor::add {

std::wstring clsActiveProcess::szExeFile(int index) const {
  const auto& name = Record(index).szExeFile;
  std::wstring text = language_.FromCodePage(std::string_view(name.data(), name.size()));
  text.resize(name.size());
  return text;
}

int clsActiveProcess::GetActiveProcess() {
  records_ = processes_.CreateSnapshot();
  return static_cast<int>(records_.size());
}

}  // namespace vantor::add
