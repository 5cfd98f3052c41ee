// The kinds of objects, and the lines around an object: places it, draws it, and takes the placement back.
#pragma once

#include "emit/pen.h"

namespace marlogl {

/// A kind of object: its name in the manual, its type code in either version, and what draws it.
struct Kind {
    std::string_view name;
    int types[2]; // version 1, version 2
    void (*draw)(Pen &pen);
};

/// The kind of a type code in a version, 1 or 2; null for a type that draws nothing.
const Kind *find_kind(int version, int type);

/// The object whose tables draw object `number`, 1 to 70: the one that its code slot 30 names, or itself. It
/// need not exist.
int source_of(const Scene &scene, int number);

/// Draws object `number` of a scene of a version, 1 or 2: comment lines, placement lines, the geometry of the
/// object itself or of the one that it is an instance of, undo lines. An unknown type has no geometry.
/// Errors: overflow for a position that is too large; those of the drawing functions. The message names the
/// object.
void draw_object(Drawing &drawing, const Scene &scene, int number, int version);

} // namespace marlogl
