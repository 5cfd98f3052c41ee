// The two lines that bind a texture, and the texture that counts as bound.
#pragma once

#include "design/text.h"

#include <string_view>

namespace marlogl {

/// "00": none. The tree sets it while it draws.
extern Text<2> override_texture_code;

/// Makes `name`, with two blanks for its code, the remembered texture, as generators do when they start.
void remember_texture(std::string_view name);

/// Sets only the remembered code back to blanks.
void forget_texture_code();

/// Writes the lines that bind the bitmap of texture `textura`, without the blanks at its ends, and switch
/// texturing on; remembers the texture. `no` (the face slot) and `kolor` (the face's code) are not used.
/// Errors: input_output.
int bitmap_string(std::string_view textura, double no, std::string_view kolor);

/// Puts the remembered texture and the override code back to none.
void reset_textures();

} // namespace marlogl
