// Texts and numbers as glTF has them. Few sources should include this: the library takes long to compile.
#pragma once

#include <nlohmann/json.hpp>

#include <cmath>

// Keys stay in their order, and numbers are no longer than floats need.
using Json = nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t,
                                  std::uint64_t, float>;

// The same text, as Latin-1 where it is no UTF-8.
inline std::string in_utf8(const std::string &text)
{
    try {
        (void)nlohmann::json(text).dump(); // throws when it is none
        return text;
    } catch (const nlohmann::json::exception &) {
        std::string letters;
        for (const char c : text) {
            const auto code = static_cast<unsigned char>(c);
            if (code >= 0x80)
                letters += static_cast<char>(0xc0 | code >> 6);
            letters += static_cast<char>(code < 0x80 ? code : 0x80 | (code & 0x3f));
        }
        return letters;
    }
}

// Whole numbers are shorter without a point.
inline Json number(double value)
{
    constexpr float exact = 1 << 24;
    const auto rounded = static_cast<float>(value);
    if (rounded == std::round(rounded) && std::abs(rounded) < exact)
        return static_cast<std::int64_t>(rounded);
    return rounded;
}

template <class Values> Json list_of(const Values &values)
{
    Json list = Json::array();
    for (const auto value : values)
        list.push_back(number(value));
    return list;
}
