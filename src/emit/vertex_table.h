// The points of an object: recorded by its generator, named by number in its faces and lines.
#pragma once

#include "design/table.h"
#include "design/text.h"
#include "host/list_box.h"

namespace marlogl {

struct Vertex {
    double x, y, z;
};

struct ShortVertex {
    std::int16_t x, y, z;
};

inline constexpr Range vertex_rows{0, 300};

/// Point number n (from 0, in the order of recording) lives in row n + 1. Rows are never cleared during a
/// run: those above the current count keep the points of earlier objects.
extern Table<Vertex, vertex_rows> vertex_table;
/// How many points of the current object are recorded.
extern int vertex_count;

/// The points that were recorded while the flag was "Y".
extern Table<ShortVertex, vertex_rows> vertex_copy;
extern std::int16_t vertex_copy_count;
extern Text<1> vertex_copy_flag;

/// Scratch lists of texts; record_point adds to them.
extern ListBox List1, List2;

/// Records the point (x = `a`, y = `c`, z = `b`), each coordinate cut to its whole part; adds "a/b@c" to
/// List1 and, while vertex_copy_flag is "Y", fills vertex_copy and adds "a, c, b" to List2. Errors: index for
/// more than 300 points, overflow for a coordinate that is not finite or, while the flag is on, outside the
/// 16-bit range.
void record_point(double a, double b, double c);

/// Takes the next row for a point that is written into it directly, past both lists. Errors: index.
Vertex &next_vertex();

/// Errors: index when `point` is outside 0 to 299 (rounded after 1 was added: halves go to the even row).
inline const Vertex &vertex(double point)
{
    return vertex_table(point + 1);
}

/// Whether the way from point i by j to k, seen in the x-y or the x-z plane, turns clockwise or not at all.
/// A number that names no row makes the differences that it takes part in 0.
bool fnturn_xy(double i, double j, double k);
bool fnturn_xz(double i, double j, double k);

/// Puts the table, its copy and both lists back to what they are when the program starts.
void reset_vertices();

} // namespace marlogl
