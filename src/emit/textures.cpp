#include "emit/textures.h"

#include "design/scene.h"
#include "emit/output.h"
#include "host/letters.h"

namespace marlogl {

constinit Text<2> override_texture_code("00");

namespace {

std::string remembered_name;
Text<2> remembered_code;

// Whether both name one texture, whatever blanks are around it.
bool same_name(std::string_view a, std::string_view b)
{
    return a == b || same_letters(trimmed(a), trimmed(b));
}

} // namespace

void remember_texture(std::string_view name)
{
    remembered_name = name;
    forget_texture_code();
}

void forget_texture_code()
{
    remembered_code = {};
}

int bitmap_string(std::string_view textura, double, std::string_view)
{
    const Text<2> code = override_texture_code == "00" ? "86" : override_texture_code;
    if (remembered_code != code || !same_name(remembered_name, textura)) {
        remembered_name = textura;
        remembered_code = code;
        texture_active = false;
    }
    write_line("BindTexture( \"", trimmed(textura), ".bmp\" );");
    write_line("glEnable( GL_TEXTURE_2D );");
    return 0;
}

void reset_textures()
{
    override_texture_code = "00";
    remembered_name.clear();
    remembered_code = {};
}

} // namespace marlogl
