#include "support/design.h"

#include "emit/output.h"
#include "run/run.h"
#include "support/memory_files.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <regex>

namespace marlogl {

namespace {

std::string two_digits(int number)
{
    return text_of(p00(number));
}

std::vector<std::string> split_lines(const std::string &text)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find("\r\n", start);
        lines.push_back(text.substr(start, end - start));
        start = end == text.npos ? end : end + 2;
    }
    return lines;
}

bool reads_vertex(const std::string &line, Point3 &p)
{
    return std::sscanf(line.c_str(), " glVertex3d( %lf, %lf, %lf", &p.x, &p.y, &p.z) == 3;
}

// Names may hold anything; only the statements are looked at.
bool is_statement(const std::string &line)
{
    return !line.starts_with("//") && !line.starts_with("BindTexture");
}

void check_every_output(const Converted &converted)
{
    bool open = false;
    double moved[4] = {};
    static const std::regex bad_number("(^|[ (,])-0(\\.0+)?f?[ ,]|nan|inf");
    EXPECT_TRUE(converted.output.empty() || converted.output.ends_with("\r\n"));
    for (const std::string &line : converted.lines()) {
        EXPECT_EQ(line.find('\n'), line.npos) << line;
        if (!is_statement(line))
            continue;
        EXPECT_FALSE(std::regex_search(line, bad_number)) << line;
        if (line.starts_with("glBegin(")) {
            EXPECT_FALSE(open) << "a begin inside a block";
            open = true;
        }
        if (line == "glEnd();")
            open = false;
        Point3 p{};
        if (std::sscanf(line.c_str(), "glTranslated( %lf, %lf, %lf", &p.x, &p.y, &p.z) == 3) {
            moved[0] += p.x;
            moved[1] += p.y;
            moved[2] += p.z;
        } else if (std::sscanf(line.c_str(), "glRotated( %lf", &p.x) == 1) {
            moved[3] += p.x;
        }
    }
    if (converted.error || converted.output.empty())
        return;
    EXPECT_FALSE(open) << "a block without an end";
    for (const double sum : moved)
        EXPECT_EQ(sum, 0) << "a placement that is not undone";
}

} // namespace

Design &Design::line(const std::string &text)
{
    text_ += text + "\r\n";
    return *this;
}

Design &Design::object(int type, const std::string &name)
{
    line('A' + std::to_string(type));
    return name.empty() ? *this : line('B' + name);
}

Design &Design::params(std::initializer_list<std::pair<int, double>> cells)
{
    for (const auto &[cell, value] : cells)
        line('P' + two_digits(cell) + text_of(general(value)));
    return *this;
}

Design &Design::textured(int first, int last, const std::string &name)
{
    for (int slot = first; slot <= last; ++slot)
        line('K' + two_digits(slot) + 'Y').line('F' + two_digits(slot) + name);
    return *this;
}

Design &Design::point(int number, int x, int y, const std::string &code, const std::string &attribute)
{
    char text[64];
    std::snprintf(text, sizeof text, "Q%03d%4d%4d%-2s%-4s", number, x, y, code.c_str(), attribute.c_str());
    return line(text);
}

Design &Design::at(double x, double y, double angle)
{
    line('C' + text_of(general(x))).line('D' + text_of(general(y)));
    return params({
        {61, angle}
    });
}

std::vector<std::string> Converted::lines() const
{
    return split_lines(output);
}

std::vector<std::string> Converted::body() const
{
    constexpr int header = 5 + 2, footer = 4;
    const std::vector<std::string> all = lines();
    return all.size() < header + footer ? std::vector<std::string>()
                                        : std::vector<std::string>(all.begin() + header, all.end() - footer);
}

std::string colour_table(int lines)
{
    std::string table;
    for (int i = 1; i <= lines; ++i) {
        char line[64];
        std::snprintf(line, sizeof line, "Colour %-11d%03d %03d %03d\r\n", i, i, i, i);
        table += line;
    }
    return table;
}

Converted convert(const Given &given)
{
    MemoryFiles memory;
    memory.files["program/MarlOgl.dat"] =
        given.configuration.empty() ? given.design_path + "\r\nscene.out\r\n200100050\r\n050100200\r\n"
                                    : given.configuration;
    memory.files[given.design_path] = given.design;
    if (given.colour_table)
        memory.files["program/appl/colors.tab"] = *given.colour_table;

    use_file_system(&memory);
    reset();
    Converted converted;
    try {
        Form_Load();
    } catch (const RunError &error) {
        converted.error = error;
    }
    use_file_system(nullptr);

    converted.has_output = memory.files.contains("scene.ogl");
    converted.output = memory.files["scene.ogl"];
    if (const auto left = memory.files.find("program/tempofil.%%%"); left != memory.files.end())
        converted.point_file = left->second;
    check_every_output(converted);
    return converted;
}

Converted convert(const Design &design)
{
    Given given;
    given.design_path = design.version() == 1 ? "scene.mrl" : "scene.mr2";
    given.design = design.text();
    given.colour_table = colour_table();
    return convert(given);
}

std::vector<Polygon> polygons(const Converted &converted)
{
    std::vector<Polygon> found;
    bool open = false;
    for (const std::string &line : converted.lines()) {
        Point3 p{};
        if (line == "glBegin( GL_POLYGON );") {
            found.emplace_back();
            open = true;
        } else if (line == "glEnd();") {
            open = false;
        } else if (open && reads_vertex(line, p)) {
            found.back().push_back(p);
        }
    }
    return found;
}

} // namespace marlogl
