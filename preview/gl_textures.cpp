#include "gl_textures.h"

#include "gl.h"

#include <algorithm>
#include <string_view>

// Drivers without a graphics card have the better filters, too, but take several times as long.
Filter usable_filter()
{
    constexpr float enough = 8;
    const auto *const renderer = reinterpret_cast<const char *>(glGetString(GL_RENDERER));
    if (renderer == nullptr || std::string_view(renderer).find("pipe") != std::string_view::npos)
        return {GL_LINEAR_MIPMAP_NEAREST, 1};
    Filter filter{GL_LINEAR_MIPMAP_LINEAR, 1};
    glGetFloatv(GL_MAX_TEXTURE_MAX_ANISOTROPY_EXT, &filter.directions);
    filter.directions = glGetError() == GL_NO_ERROR ? std::min(filter.directions, enough) : 1;
    return filter;
}

unsigned upload_texture(const Bitmap &bitmap, const Filter &filter)
{
    unsigned name = 0;
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_2D, name);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter.between_mipmaps);
    if (filter.directions > 1)
        glTexParameterf(GL_TEXTURE_2D, GL_TEXTURE_MAX_ANISOTROPY_EXT, filter.directions);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    int largest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    Bitmap smaller;
    const Bitmap *level = &bitmap;
    for (int number = 0;; level = &smaller) {
        if (std::max(level->width, level->height) <= largest)
            glTexImage2D(GL_TEXTURE_2D, number++, GL_RGB, level->width, level->height, 0, GL_RGB,
                         GL_UNSIGNED_BYTE, level->rgb.data());
        if (level->width == 1 && level->height == 1)
            return name;
        smaller = halved(*level);
    }
}
