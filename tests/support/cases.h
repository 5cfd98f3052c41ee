// Tables of cases, and the errors that cases expect.
#pragma once

#include "base/run_error.h"
#include "emit/output.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace marlogl {

/// The parts of a text between separators.
inline std::vector<std::string> split(std::string_view text, std::string_view separator)
{
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == text.npos)
            return parts;
        text.remove_prefix(end + separator.size());
    }
}

/// Calls `test(input, expected)` with each case of a table such as "1e2=100|1e=1".
template <typename Test> void for_each_case(std::string_view table, Test test)
{
    for (const std::string &row : split(table, "|"))
        test(row.substr(0, row.rfind('=')), row.substr(row.rfind('=') + 1));
}

/// Calls `test(input, expected)` with each case of a raw string: lines "input => expected", or that on two
/// lines, the second indented. "/" stands for the end of a line in the input.
template <typename Test> void for_each_line(std::string table, Test test)
{
    for (std::size_t at; (at = table.find("\n    =>")) != table.npos;)
        table.replace(at, 5, " ");
    for (const std::string &row : split(table, "\n"))
        if (const std::vector<std::string> parts = split(row, " => "); parts.size() == 2) {
            std::string input = parts[0];
            std::replace(input.begin(), input.end(), '/', '\n');
            test(input, parts[1]);
        }
}

/// Of generated cases one in so many is tried in every run, all where the environment wants them.
inline const int one_in = std::getenv("MARLOGL_ALL_CASES") != nullptr   ? 1
                          : std::getenv("MARLOGL_FEW_CASES") != nullptr ? 100
                                                                        : 10;

/// A number that hardly two texts share.
inline std::uint64_t checksum(const std::string &text)
{
    std::uint64_t sum = 14695981039346656037u;
    for (const char c : text)
        sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211u;
    return sum;
}

/// The content of a file, which must be there.
inline std::string content_of(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Compares a text with the content of a file. With MARLOGL_REWRITE_GOLDEN=1 in the environment the file gets
/// it first.
inline void expect_content(const std::filesystem::path &path, const std::string &text)
{
    if (const char *rewrite = std::getenv("MARLOGL_REWRITE_GOLDEN"); rewrite != nullptr && *rewrite == '1')
        std::ofstream(path, std::ios::binary) << text;
    EXPECT_EQ(content_of(path), text) << path.string();
}

/// The parts of a line as one text.
template <typename... Parts> std::string text_of(const Parts &...parts)
{
    char text[4000];
    char *end = text;
    ((end = output::put(end, parts)), ...);
    return {text, end};
}

constexpr std::string_view fault_names[] = {"index",    "overflow",        "missing file", "past end",
                                            "division", "negative length", "input/output"};

/// The error that `action` raises, as "kind: message".
template <typename Action> std::string error_of(Action action)
{
    try {
        action();
    } catch (const RunError &error) {
        return std::string(fault_names[static_cast<int>(error.fault)]) + ": " + error.what();
    }
    return "no error";
}

} // namespace marlogl
