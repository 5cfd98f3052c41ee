// What a design file says.
#pragma once

#include "design/table.h"
#include "design/text.h"

#include <vector>

namespace marlogl {

inline constexpr int most_objects = 70, last_face_slot = 28, point_count_cell = 50;
inline constexpr Range cells{0, 61, "parameter cell"}, code_slots{0, 32, "code slot"},
    colour_slots{0, last_face_slot, "colour slot"}, text_slots{0, last_face_slot, "text slot"},
    point_numbers{0, 180, "point"};

/// A point of an outline, a road or a tower, or a texture position in pixels: by the object's kind.
struct Point {
    std::int16_t x = 0, y = 0;
};

/// What else a few kinds read of their points.
struct PointText {
    Text<2> colour;    ///< a colour number
    Text<4> attribute; ///< four marks, whose meaning belongs to the kind
};

/// Two characters, then red, green and blue in three characters each; white unless said otherwise.
struct ColourText : Text<11> {
    constexpr ColourText() : Text<11>("00255255255") {}
    using Text<11>::operator=;
};

struct Object {
    /// What the tables need comes from `memory`.
    explicit Object(std::pmr::memory_resource *memory)
        : parameters(memory), codes(memory), colours(memory), texts(memory), points(memory),
          point_texts(memory)
    {
    }

    /// Type code; 0 means that there is no such object.
    std::int16_t type = 0;
    /// The name, never null, and the position as the texts of its records. All texts are kept by the scene.
    std::string_view name = "", x, y;
    /// Cell 50 counts the points, cell 58 is the base elevation, cell 61 the rotation about the vertical axis
    /// in degrees; the others belong to the object's kind.
    Table<double, cells> parameters;
    /// A face whose slot begins with "Y" is textured; slot 30 is the instance reference.
    Table<Text<2>, code_slots> codes;
    Table<ColourText, colour_slots> colours;
    /// Free texts, among them the texture names of the faces.
    Table<std::string_view, text_slots> texts;
    Table<Point, point_numbers> points;
    Table<PointText, point_numbers> point_texts;
};

struct Scene {
    /// Keeps what the objects refer to, many things in one allocation.
    std::unique_ptr<std::pmr::monotonic_buffer_resource> memory =
        std::make_unique<std::pmr::monotonic_buffer_resource>(64 * 1024);
    /// Objects 1, 2, ... in the order of the design file.
    std::vector<Object> objects;
    /// Chooses the factor of the scale line.
    Text<2> scale_level{"00"};
};

} // namespace marlogl
