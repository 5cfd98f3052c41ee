// All object kinds. A generator takes no arguments: it reads the tables of current_object and appends the
// object's lines to the output, relative to the object's own origin. The vertex count is 0 when it starts.
// Errors of all of them: index for a slot, cell or point outside its table, overflow for numbers that are too
// large, input_output.
#pragma once

namespace marlogl {

// Structures: polygon faces.
void save_house();     ///< a box of walls under a roof of two slopes
void save_building();  ///< the same under a roof of eight strips
void save_structure(); ///< a leaning solid of eight corners, with antennas and lights
void save_bigpoly();   ///< an outline of up to 20 corners, extruded
void save_poly();      ///< an outline of up to 10 corners, extruded, seen from both sides
void save_base();      ///< a hip roof on its plate
void save_sign();      ///< a sign board of two faces
void save_cone();      ///< a cone on its base

// Scenery: faces, lines and points.
void save_tower();         ///< a lattice tower: lines and scenery commands. Also: errors of the colour table.
void save_wheel();         ///< an upright wheel. Also: division for a wheel without width.
void save_basket_sphere(); ///< an envelope of seven rings, with a basket below
void save_flag();          ///< a textured rectangle
void save_beam();          ///< fans of triangles, seen from both sides
void save_mast();          ///< a mast of segments with guy lines. Also: division for a mast without segments.
void save_cylinder();      ///< two rings and two ends, with a railing and lights
void save_roads();         ///< a wire-frame along a profile, with surfaces. Also: errors of the colour table.
void save_fence();         ///< rails and posts. Also: errors of the colour table.
void save_panel();         ///< a pole with a pennant
void save_digital();       ///< a clock of six digits
void save_tree();          ///< one or two crossed rectangles

} // namespace marlogl
