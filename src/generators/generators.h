// All object kinds. A drawing function reads its pen's object and appends the object's lines to the output,
// relative to the object's own origin. Errors of all of them: index for a slot, cell or point outside its
// table, overflow for numbers that are too large, input_output.
#pragma once

#include "emit/pen.h"

namespace marlogl {

// Structures: polygon faces.
void draw_gabled_house(Pen &pen);
void draw_profiled_house(Pen &pen);
void draw_structure(Pen &pen);
void draw_extruded_polygon(Pen &pen);
void draw_two_sided_polygon(Pen &pen);
void draw_hip_roof(Pen &pen);
void draw_sign(Pen &pen);
void draw_cone(Pen &pen);

// Scenery: faces, lines and points.
void draw_tower(Pen &pen); ///< Also: errors of the colour table.
void draw_wheel(Pen &pen); ///< Also: division for a wheel without width.
void draw_basket_sphere(Pen &pen);
void draw_flag(Pen &pen);
void draw_beam(Pen &pen);
void draw_mast(Pen &pen); ///< Also: division for a mast without segments.
void draw_cylinder(Pen &pen);
void draw_roads(Pen &pen); ///< Also: errors of the colour table.
void draw_fence(Pen &pen); ///< Also: errors of the colour table.
void draw_pennant(Pen &pen);
void draw_clock(Pen &pen);
void draw_tree(Pen &pen);

} // namespace marlogl
