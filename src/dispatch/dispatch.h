// Places an object, calls the generator of its kind, and takes the placement back.
#pragma once

#include <string>

namespace marlogl {

/// Writes object `www`, 1 to 70, of a version-1 or a version-2 design file: placement lines, the geometry of
/// the object itself or of the one that its code slot 30 names, undo lines. An unknown type has no geometry.
/// Errors: overflow for a position that is too large; those of the generators.
void Save_MARL1(int www);
void Save_MARL2(int www);

/// The name of the generator that draws a type in a version (1 or 2), else an empty text.
std::string generator_name(int version, int type);

/// The object whose tables draw object `object`: the one that its code slot 30 names, or itself.
int instance_of(int object);

} // namespace marlogl
