// Rules that look at files beside the design file: the run configuration, the colour table, the textures.
#include "examples.h"
#include "rules.h"

namespace marlogl::check {

namespace {

using enum Severity;
using namespace examples;

constexpr std::string_view dat = "MarlOgl.dat";

// A row is a rule, and reads as one.
// clang-format off
constexpr Rule all_file_rules[] = {
    {"texture-missing", warning, "a bitmap lies neither beside the output nor beside the design file",
     "This is checked where other bitmaps lie there. Elsewhere the textures are kept in another place.",
     {scene, house, "F01front\n", "F01frnt\n"}},
    {"texture-case", warning, "a bitmap is there in other capital and small letters",
     "Some systems do not find it then. Write the name as the file has it.",
     {scene, house, "F01front\n", "F01Front\n"}},
    {"configuration-line", error, "the run configuration has fewer than four lines",
     "Design file, output, colour of outsides, colour of insides.",
     {dat, configuration, "224224224\n", ""}},
    {"configuration-colour", error, "a colour of the run configuration is not nine digits",
     "Red, green and blue have three digits each, without blanks around them. The output has a colour\n"
     "that does not compile, or a wrong one.",
     {dat, configuration, "224224224\n", "white\n"}},
    {"design-missing", error, "the design file is not there",
     "Line 1 of MarlOgl.dat names it.",
     {dat, configuration, "scene.mr2\n", "town.mr2\n"}},
    {"output-ending", warning, "the output's name has no ending of three characters",
     "The last three characters of line 2 are replaced by ogl, whatever they are.",
     {dat, configuration, "scene.out\n", "scene\n"}},
    {"output-folder", error, "the folder of the output is not there",
     "Line 2 of MarlOgl.dat names the output.",
     {dat, configuration, "scene.out\n", "nowhere/scene.out\n"}},
    {"stops-run", error, "the run stops",
     "Two files are one, or a file cannot be read.",
     {dat, configuration, "scene.out\n", "og\n"}},
    {"colour-table-missing", error, "the colour table cannot be read, and an object needs it",
     "Towers, roads and fences take their colours from appl/colors.tab beside MarlOgl.dat.",
     {"appl/colors.tab", colour_table, colour_table, ""}},
    {"unknown-rule", warning, "a remark switches off a rule that is not there",
     "The names of the rules are those that --list-rules prints.",
     {scene, house, "", "# check: ignore small-x\n"}},
};
// clang-format on

} // namespace

std::span<const Rule> file_rules()
{
    return all_file_rules;
}

} // namespace marlogl::check
