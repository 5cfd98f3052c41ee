// The whole data model: what one design file says, and the state that dispatchers and generators share.
#pragma once

#include "design/table.h"
#include "design/text.h"

#include <cstdint>
#include <string>

namespace marlogl {

/// Objects are numbered 1 to 70 in the order of the design file; object 0 is the scene record.
inline constexpr Range objects{0, 70};
inline constexpr Range cells{0, 61}, code_slots{0, 32}, face_slots{0, 28}, points{0, 180};

/// Type code; 0 means that there is no such object.
extern Table<std::int16_t, objects> object_type;
/// Parameters, addressed (cell, object). Cell 50 counts the points, cell 58 is the base elevation, cell 61
/// the rotation about the vertical axis in degrees; the others belong to the object's kind.
extern Table<double, cells, objects> object_param;
/// Two-character codes (slot, object). A face slot whose code begins with "Y" is textured; slot 30 is the
/// instance reference.
extern Table<Text<2>, code_slots, objects> object_code;
/// Two characters, then red, green and blue in three characters each.
extern Table<Text<11>, face_slots, objects> object_colour;
/// Kept as the design file has them; nothing reads them.
extern Table<Text<1>, face_slots, objects> object_colour_flag;
/// Free texts, among them the texture names of the faces.
extern Table<std::string, face_slots, objects> object_text;
extern Table<std::string, objects> object_name;
/// The position, kept as the text of its record.
extern Table<std::string, objects> object_x, object_y;
/// Points of an outline, a road, a tower, or texture positions in pixels: by kind.
extern Table<std::int16_t, points, objects> point_x, point_y;
/// A colour number, for the kinds that colour their points.
extern Table<Text<2>, points, objects> point_code;
/// Four marks, whose meaning belongs to the kind.
extern Table<Text<4>, points, objects> point_attr;

/// Chooses the factor of the scale line.
extern Text<2> scale_level;

/// Settings of the run.
extern std::string input_path, output_path, colour_outside, colour_inside;

/// The object whose tables the generators read.
extern int current_object;
/// A scratch flag that the run and the generators share.
extern bool work_flag;
/// Where the object in hand is placed, and whether that moves it; its z is always 0.
extern bool placement_moved;
extern double placement_x, placement_y;
extern std::int16_t placement_z;
extern bool texture_active;
/// "I" while the inside of a solid is written, "O" while its outside is.
extern Text<1> view_side;

/// Resets every table, not the settings and the state of the run.
void clear_all();

/// To be called before anything of object `object` is stored: clear_all resets the tables up to the last
/// object that was opened.
void open_object(int object);

/// Puts the settings and the state of the run back to what they are when the program starts.
void reset_run_state();

} // namespace marlogl
