#include "emit/textures.h"

#include "design/scene.h"
#include "emit/output.h"

namespace marlogl {

constinit Text<2> override_texture_code("00");

namespace {

std::string remembered_name;
Text<2> remembered_code;

char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Whether both name one texture, whatever blanks are around it.
bool same_name(std::string_view a, std::string_view b)
{
    if (a == b)
        return true;
    a = trimmed(a);
    b = trimmed(b);
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return upper(x) == upper(y); });
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
    remembered_code = "";
}

} // namespace marlogl
