// The lines that drawing functions share: vertices, colours, and the statements around them.
#pragma once

#include "design/colour_table.h"
#include "emit/vertices.h"

namespace marlogl {

/// What begins a comment line.
inline constexpr char comment_prefix[] = "//                                                  ";
static_assert(sizeof comment_prefix == 52 + 1);

// Around vertices.
inline constexpr char begin_polygon[] = "glBegin( GL_POLYGON );";
inline constexpr char begin_lines[] = "glBegin( GL_LINES ); ";
inline constexpr char end_block[] = "glEnd();";

// Errors of all of them: input_output; those of the number texts.

inline void vertex_line(Output &out, double x, double y, double z)
{
    out.line("      glVertex3d( ", p0(x), ", ", p0(y), ", ", p0(z), " );");
}

inline void texture_line(Output &out, auto u, auto v)
{
    out.line("      glTexCoord2f( ", texture_u(u), ", ", texture_v(v), " );");
}

inline void normal_line(Output &out, double x, double y, double z)
{
    out.line("      glNormal3d( ", p2(x), ", ", p2(y), ", ", p2(z), " );");
}

/// `more` is a line end and what follows, if anything is to follow at once.
template <typename... Parts> void bind_lines(Output &out, std::string_view texture, const Parts &...more)
{
    out.line("BindTexture( \"", texture, ".bmp\" );\r\nglEnable( GL_TEXTURE_2D );", more...);
}

/// The colour of a colour text: characters 3 to 11 are red, green and blue. Some have a blank behind them.
inline void colour_line(Output &out, const Text<11> &colour, std::string_view behind = "")
{
    out.line("glColor3ub( ", columns(colour, 3, 5), ", ", columns(colour, 6, 8), ", ", columns(colour, 9, 11),
             " );", behind);
}

/// The colour of an entry of the colour table.
inline void colour_line(Output &out, const TableColour &colour)
{
    out.line("glColor3ub( ", colour.red.view(), ", ", colour.green.view(), ", ", colour.blue.view(), " ); ");
}

// Scenery commands: move or draw to a point, whose number stands behind a blank.

inline void move_line(Output &out, double point)
{
    out.line("MoveToPt( ", spaced(point), " )");
}

inline void draw_line(Output &out, double point)
{
    out.line("DrawToPt( ", spaced(point), " )");
}

} // namespace marlogl
