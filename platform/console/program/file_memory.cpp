#include "platform/console/program/file_memory.h"

#include <fstream>

namespace console {
namespace {

constexpr const char* kFile = "log_on.txt";

}  // namespace

FileMemory::FileMemory(std::filesystem::path folder) : folder_(std::move(folder)) {
  std::ifstream stream(folder_ / kFile);
  for (std::string line; std::getline(stream, line);) {
    const std::size_t sign = line.find('=');
    if (sign != std::string::npos) kept_[line.substr(0, sign)] = line.substr(sign + 1);
  }
}

std::string FileMemory::Read(std::string_view name) {
  const auto found = kept_.find(name);
  return found == kept_.end() ? std::string() : found->second;
}

void FileMemory::Write(std::string_view name, std::string_view text) {
  kept_[std::string(name)] = text;
  std::error_code ignored;
  std::filesystem::create_directories(folder_, ignored);
  std::ofstream stream(folder_ / kFile, std::ios::trunc);
  for (const auto& [key, value] : kept_) stream << key << '=' << value << '\n';
}

}  // namespace console
