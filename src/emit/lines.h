// The lines that generators share: vertices, colours, and the statements around them.
#pragma once

#include "design/scene.h"
#include "emit/colour_table.h"
#include "emit/output.h"
#include "emit/vertex_table.h"

namespace marlogl {

/// What begins a comment line.
inline constexpr char comment_prefix[] = "//                                                  ";
static_assert(sizeof comment_prefix == 52 + 1);

// Errors of all of them: input_output; those of the number texts and of vertex().

inline void vertex_line(double x, double y, double z)
{
    write_line("      glVertex3d( ", p0(x), ", ", p0(y), ", ", p0(z), " );");
}

/// The vertex line of a recorded point.
inline void vertex_line(double point)
{
    const Vertex &v = vertex(point);
    vertex_line(v.x, v.y, v.z);
}

inline void texture_line(double u, double v)
{
    write_line("      glTexCoord2f( ", fntexu(u), ", ", fntexv(v), " );");
}

inline void begin_polygon_line()
{
    write_line("glBegin( GL_POLYGON );");
}

inline void begin_lines_line()
{
    write_line("glBegin( GL_LINES ); ");
}

inline void normal_line(double x, double y, double z)
{
    write_line("      glNormal3d( ", fnform2(p6(x)), ", ", fnform2(p6(y)), ", ", fnform2(p6(z)), " );");
}

inline void gl_end_line()
{
    write_line("glEnd();");
}

/// The colour of a colour text: characters 3 to 11 are red, green and blue.
inline void colour_line(const Text<11> &colour)
{
    write_line("glColor3ub( ", columns(colour, 3, 5), ", ", columns(colour, 6, 8), ", ",
               columns(colour, 9, 11), " );");
}

/// The same line with a blank at its end.
inline void colour_line_blank(const Text<11> &colour)
{
    write_line("glColor3ub( ", columns(colour, 3, 5), ", ", columns(colour, 6, 8), ", ",
               columns(colour, 9, 11), " ); ");
}

/// The colour of an entry of the colour table.
inline void table_colour_line(const ColourEntry &entry)
{
    write_line("glColor3ub( ", entry.red(), ", ", entry.green(), ", ", entry.blue(), " ); ");
}

// Scenery commands: move or draw to a point, whose number stands behind a blank.

inline void move_line(double point)
{
    write_line("MoveToPt( ", spaced(point), " )");
}

inline void draw_line(double point)
{
    write_line("DrawToPt( ", spaced(point), " )");
}

} // namespace marlogl
