// Face writers: each writes one textured face as a whole polygon block, and nothing where the face is not
// textured.
#pragma once

#include <string_view>

namespace marlogl {

// A face is textured when, for the current object, the code of its slot begins with "Y" and its texture name
// is not blank. Corners are written in the order of their points. Arguments:
//
//   xide1           direction word, for the normal line, which does not depend on it
//   xide2, xide3    not used
//   t               face slot, 0 to 28
//   bit1            first slot of the face's texture positions in point_x and point_y
//   p1 to p4        point numbers, 0 to 299
//   where           name of the face, not used
//
// Slots and point numbers are rounded where they name a row, halves to the even one.
// Errors of all writers: index for a slot or a point outside its table, overflow for points too large for a
// normal, input_output.

/// Texture positions of the corners: slots bit1 + 2, bit1 + 1, bit1.
void write3(std::string_view xide1, std::string_view xide2, std::string_view xide3, double t, double bit1,
            double p1, double p2, double p3, std::string_view where);

/// Texture rectangle: point_x slots bit1 to bit1 + 3 hold ua, va, ub, vb; the corners take (ua, vb), (ua,
/// va), (ub, va), (ub, vb).
void write4(std::string_view xide1, std::string_view xide2, std::string_view xide3, double t, double bit1,
            double p1, double p2, double p3, double p4, std::string_view where);

/// p4, p5, p6 are the slots of the corners' texture positions.
void write3a(std::string_view xide1, std::string_view xide2, std::string_view xide3, double t, double p1,
             double p2, double p3, double p4, double p5, double p6);

/// Texture positions of the corners: slots bit1 + 3, bit1 + 2, bit1 + 1, bit1.
void write4a(std::string_view xide1, double t, double p1, double p2, double p3, double p4, double bit1,
             std::string_view where);

/// The reversed face of write4a: corner i takes x and y from the i-th last point and z from the i-th, which
/// turns a face that stands upright; the normal is that of p1, p2, p3 all the same.
void write4ar(std::string_view xide1, double t, double p1, double p2, double p3, double p4, double bit1,
              std::string_view where);

/// An n-gon of up to 20 corners, which the temporary point file holds; it is read and deleted, unless the
/// face is not textured. `reverse` "Y" writes the last corner first. Less than three corners have no normal.
/// Further errors: those of point_file::read.
void writen(double t, std::string_view reverse);

/// A road surface over the points 0 to 3, textured when slot `text` (1 above, 2 below) has a texture name.
/// The texture rectangle is cells 11 to 14 for slot 1 and 15 to 18 for the others; the cells are cut to whole
/// numbers. (xx1, xx2, xx3) is the normal. There is no colour line; with xx3 = 1 the corners run from 3 to 0,
/// and the normal stands before the last of them. The line that ends the polygon is the caller's. `argument1`
/// is not used.
void write_roads(double text, std::string_view argument1, double xx1, double xx2, double xx3);

/// Writes the normal line of the plane through three points, or nothing when they lie on a line. For corners
/// that run counter-clockwise for a viewer the normal points away from that viewer. `direccion` does not
/// matter. Errors: index, overflow, input_output.
void fnVector(double p1, double p2, double p3, std::string_view direccion);

/// Whether face slot `t` of the current object is textured. Errors: index.
bool is_textured(double t);

} // namespace marlogl
