// Whole files, read and written in one go.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// The bytes of a file; nothing when it cannot be opened or read.
std::optional<std::string> read_file(const std::filesystem::path &file);

// Writes `bytes` to a file, or to standard output for the name "-". Throws std::runtime_error when not all of
// it could be written.
void write_file(const std::string &name, const std::vector<std::uint8_t> &bytes);
