#include "support/rules.h"

#include <cstdio>

namespace marlogl {

namespace {

// Whether the arguments are numbers as the output has them. Other statements may hold texts of the design
// file.
bool has_plain_numbers(std::string_view line)
{
    for (const std::string_view statement :
         {"      glVertex3d(", "      glTexCoord2f(", "      glNormal3d(", "glTranslated(", "glRotated("}) {
        if (!line.starts_with(statement))
            continue;
        const std::string_view arguments = line.substr(statement.size());
        if (arguments.find_first_not_of("0123456789.-, f);") != arguments.npos)
            return false;
        for (std::size_t at = arguments.find('-'); at != arguments.npos; at = arguments.find('-', at + 1))
            if (arguments.find_first_of("123456789", at) >= arguments.find_first_of(",)", at))
                return false; // a zero with a sign
    }
    return true;
}

} // namespace

std::string broken_rule(std::string_view output, bool done)
{
    const std::string_view footer = "glPopMatrix();\r\nglMatrixMode( GL_TEXTURE );\r\nglLoadIdentity();\r\n"
                                    "glMatrixMode( GL_MODELVIEW );\r\n";
    if (output.ends_with(footer) != done)
        return "the footer stands at the end of a conversion that is done";
    bool open = false;
    double moved[4] = {};
    while (!output.empty()) {
        const std::size_t end = output.find('\n');
        if (end == output.npos || end == 0 || output[end - 1] != '\r')
            return "lines end in CR LF: " + std::string(output.substr(0, end));
        const std::string line(output.substr(0, end - 1));
        output.remove_prefix(end + 1);
        if (!has_plain_numbers(line))
            return "numbers are plain: " + line;
        if (line.starts_with("glBegin(") && open)
            return "no block begins inside another: " + line;
        open = line.starts_with("glBegin(") || (open && line != "glEnd();");
        double x = 0, y = 0, z = 0;
        if (std::sscanf(line.c_str(), "glTranslated( %lf, %lf, %lf", &x, &y, &z) == 3) {
            moved[0] += x;
            moved[1] += y;
            moved[2] += z;
        } else if (std::sscanf(line.c_str(), "glRotated( %lf", &x) == 1) {
            moved[3] += x;
        }
    }
    if (done && open)
        return "every block ends";
    for (const double sum : moved)
        if (done && sum != 0)
            return "every placement is undone";
    return "";
}

} // namespace marlogl
