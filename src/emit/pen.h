// What drawing functions work with: the drawing, which lives as long as a conversion, and a pen that draws
// one object on it.
#pragma once

#include "design/configuration.h"
#include "design/scene.h"
#include "emit/lines.h"
#include "emit/ngon_file.h"

#include <optional>

namespace marlogl {

/// From where a face is seen. It chooses the colour of the face.
enum Side { inside, outside };

/// What outlives an object.
struct Drawing {
    FileSystem &files;
    const Configuration &configuration;
    std::string colour_table_path;
    Output out;
    NgonFile ngon;
    Vertices vertices = {};
    /// As the object before has left it, for the kinds that do not choose.
    Side side = outside;
    std::optional<ColourTable> colour_table = {}; // once it was read

    /// The colour table, which the first call reads. Errors: those of read_colour_table.
    const ColourTable &colours();
};

/// Where a face is described in its object: the slot of its switch and its texture, and the first of its
/// texture positions among the points.
struct FaceSlots {
    int face, positions;
};

/// Draws one object. A drawing function reads the object's tables and appends lines, relative to the object's
/// own origin; when it starts, no point is recorded.
struct Pen {
    Drawing &to; ///< what the pen draws on
    const Object &object;
    /// The number of that object, 1 to 70: that of the source, when an instance is drawn.
    int number;
    /// Whether recorded coordinates must lie within 16 bits: so it is with objects that can carry lights.
    bool short_coordinates = false;
    /// The lines before the normal of the last textured face, for a run of faces in the same slot and on one
    /// side.
    KeptLines<192> face_lines = {};
    int last_face = -1;
    Side last_side = outside;
    std::string_view last_texture = "";

    Output &out() { return to.out; }
    double cell(double n) const { return object.parameters(n); }
    /// Whether a cell holds yes (-1).
    bool is_true(double n) const { return cell(n) == -1; }

    /// Chooses the colour of the faces that follow, also of later objects that do not choose.
    void choose_side(Side side) { to.side = side; }

    /// Records a point, each coordinate cut to its whole part. Errors: index for more than 300 points,
    /// overflow for a coordinate that is not finite or, with short_coordinates, outside the 16-bit range.
    void record(double x, double y, double z);
    int count() const { return to.vertices.count(); }

    /// The vertex line of a recorded point. Errors: index.
    template <typename Number> void vertex(Number point)
    {
        to.vertices.line(out(), point, [](Output &out, const Vertex &v) { vertex_line(out, v.x, v.y, v.z); });
    }

    /// Whether a face slot is textured. Errors: index.
    bool is_textured(int slot) const { return !texture_of(slot).empty(); }

    // Faces. One is written when the code of its slot begins with "Y" and its texture name is not blank, as a
    // whole polygon block; otherwise it leaves no trace. Corners are written in the order of their points,
    // which are numbers of recorded points, 0 to 299.
    //
    // Errors of all of them: index for a slot or a point outside its table, overflow for points too large for
    // a normal, input_output.

    /// A triangle or a quadrilateral whose corners name the slots of their texture positions.
    template <typename Number, std::size_t Corners>
    void polygon(int face, const std::array<Number, Corners> &points,
                 const std::array<int, Corners> &positions);

    /// Texture positions of the corners: slots positions + 2, + 1, + 0.
    void triangle(FaceSlots slots, int p1, int p2, int p3)
    {
        const auto [face, last] = slots;
        polygon<int, 3>(face, {p1, p2, p3}, {last + 2, last + 1, last});
    }

    /// Texture positions of the corners: slots positions + 3, + 2, + 1, + 0.
    template <typename Number> void quad(FaceSlots slots, const std::array<Number, 4> &points)
    {
        const auto [face, last] = slots;
        polygon<Number, 4>(face, points, {last + 3, last + 2, last + 1, last});
    }

    /// A quadrilateral turned round: corner i takes x and y from the i-th last point and z from the i-th,
    /// which turns a face that stands upright; the normal is that of the points in their order all the same.
    void reversed_quad(FaceSlots slots, const std::array<double, 4> &points);

    /// A quadrilateral with a texture rectangle: the x of the slots positions to positions + 3 hold ua, va,
    /// ub, vb; the corners take (ua, vb), (ua, va), (ub, va), (ub, vb).
    void picture(FaceSlots slots, const std::array<int, 4> &points);

    /// The n-gon of up to 20 corners that was written to the temporary point file, which is read and deleted,
    /// unless the face is not textured. `reversed` writes the last corner first. It has no colour line, and
    /// with less than three corners no normal. Errors also: those of NgonFile::read.
    void ngon(int face, bool reversed = false);

    /// The normal line of the plane through three points, or nothing when they lie on a line. For corners
    /// that run counter-clockwise for a viewer the normal points away from that viewer. Errors: index,
    /// overflow.
    template <typename Number> void normal(Number p1, Number p2, Number p3)
    {
        normal(to.vertices(p1), to.vertices(p2), to.vertices(p3));
    }

  private:
    void normal(const Vertex &a, const Vertex &b, const Vertex &c);
    std::string_view texture_of(int face) const;
    template <typename Number> bool begin(int face, Number p1, Number p2, Number p3);
    void position(int slot);
};

} // namespace marlogl
