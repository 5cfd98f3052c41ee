#include "support/folded.h"

#include <cmath>
#include <cstdio>
#include <optional>
#include <vector>

namespace marlogl {

namespace {

std::optional<std::string_view> between(std::string_view line, std::string_view before,
                                        std::string_view after)
{
    if (line.size() < before.size() + after.size() || !line.starts_with(before) || !line.ends_with(after))
        return std::nullopt;
    return line.substr(before.size(), line.size() - before.size() - after.size());
}

// "1, 2, 3" as "1 2 3"; nothing for a text that has other blanks.
std::optional<std::string> spaced_out(std::string_view numbers)
{
    std::string text;
    for (std::size_t i = 0; i < numbers.size(); ++i)
        if (numbers.substr(i).starts_with(", "))
            text += numbers[++i];
        else if (numbers[i] == ' ' || numbers[i] == ',')
            return std::nullopt;
        else
            text += numbers[i];
    return text;
}

std::string coordinate_text(int pixel)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.6ff", pixel / 255.0);
    return text;
}

// The pixels of "0.501961f, 1.000000f".
std::optional<std::string> pixels(std::string_view coordinates)
{
    const std::size_t comma = coordinates.find(", ");
    if (comma == coordinates.npos)
        return std::nullopt;
    const std::string u(coordinates.substr(0, comma)), v(coordinates.substr(comma + 2));
    const int x = static_cast<int>(std::lround(std::strtod(u.c_str(), nullptr) * 255));
    const int y = static_cast<int>(std::lround(std::strtod(v.c_str(), nullptr) * 255));
    if (coordinate_text(x) != u || coordinate_text(y) != v)
        return std::nullopt;
    return std::to_string(x) + ' ' + std::to_string(255 - y);
}

// The face whose lines begin at `at`, which goes behind its end; nothing when it is not written in the usual
// way.
std::optional<std::string> face(const std::vector<std::string_view> &lines, std::size_t &at)
{
    std::size_t i = at;
    const auto next = [&] { return i < lines.size() ? lines[i++] : std::string_view(); };
    const auto name = between(next(), "BindTexture( \"", "\" );");
    if (!name || next() != "glEnable( GL_TEXTURE_2D );" || next() != "glBegin( GL_POLYGON );")
        return std::nullopt;
    std::string text = "face " + std::string(*name) + ' ';
    std::string_view line = next();
    if (line == "glColor3ub( 050, 100, 200 ); ")
        text += 'I';
    else if (line == "glColor3ub(200, 100, 050 ); ")
        text += 'O';
    else {
        text += '-';
        --i;
    }
    for (line = next(); line != "glEnd();"; line = next()) {
        std::optional<std::string> part;
        if (const auto normal = between(line, "      glNormal3d( ", " );")) {
            part = spaced_out(*normal);
            text += " n";
        } else if (const auto position = between(line, "      glTexCoord2f( ", " );")) {
            part = pixels(*position);
            text += ' ';
        } else if (const auto point = between(line, "      glVertex3d( ", " );")) {
            part = spaced_out(*point);
            text += " @";
        }
        if (!part)
            return std::nullopt;
        text += *part;
    }
    at = i;
    return text;
}

} // namespace

std::string folded(std::string_view output)
{
    std::vector<std::string_view> lines;
    for (std::size_t end; (end = output.find("\r\n")) != output.npos; output.remove_prefix(end + 2))
        lines.push_back(output.substr(0, end));
    std::string text;
    for (std::size_t i = 0; i < lines.size();) {
        const auto short_face = face(lines, i);
        text += short_face ? *short_face : std::string(lines[i++]);
        text += '\n';
    }
    return text + std::string(output);
}

} // namespace marlogl
