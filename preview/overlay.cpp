#include "overlay.h"

#include "font.h"
#include "gl.h"

#include <algorithm>

namespace {

void rectangle(double left, double top, double right, double bottom)
{
    glVertex2d(left, top);
    glVertex2d(right, top);
    glVertex2d(right, bottom);
    glVertex2d(left, bottom);
}

} // namespace

Overlay::Overlay(int to_width, int to_height, int of_dot) : width(to_width), height(to_height), dot(of_dot)
{
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glViewport(0, 0, width, height);
    for (const GLenum capability :
         {GLenum{GL_DEPTH_TEST}, GLenum{GL_CULL_FACE}, GLenum{GL_TEXTURE_2D}, GLenum{GL_LIGHTING}})
        glDisable(capability);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    use_screen();
}

Overlay::~Overlay()
{
    use_world();
    glPopAttrib();
}

void Overlay::use_screen() const
{
    for (const GLenum matrix : {GLenum{GL_PROJECTION}, GLenum{GL_MODELVIEW}}) {
        glMatrixMode(matrix);
        glPushMatrix();
        glLoadIdentity();
    }
    glOrtho(0, width, height, 0, -1, 1);
}

void Overlay::use_world() const
{
    for (const GLenum matrix : {GLenum{GL_PROJECTION}, GLenum{GL_MODELVIEW}}) {
        glMatrixMode(matrix);
        glPopMatrix();
    }
}

double Overlay::width_of(std::string_view text) const
{
    return static_cast<double>(text.size()) * glyph_advance * dot;
}

double Overlay::line_height() const
{
    return static_cast<double>(line_advance) * dot;
}

std::size_t Overlay::columns() const
{
    return static_cast<std::size_t>(std::max(width / (glyph_advance * dot) - 6, 8));
}

void Overlay::panel(int left, int top, std::string_view text) const
{
    std::size_t lines = 1, column = 0, widest = 0;
    for (const char c : text) {
        lines += c == '\n';
        column = c == '\n' ? 0 : column + 1;
        widest = std::max(widest, column);
    }
    const int margin = 4 * dot, wide = static_cast<int>(widest) * glyph_advance * dot + 2 * margin,
              high = static_cast<int>(lines) * line_advance * dot + 2 * margin;
    left = left < 0 ? width + left - wide : left;
    top = top < 0 ? height + top - high : top;
    glColor4ub(16, 20, 28, 200);
    glBegin(GL_QUADS);
    rectangle(left, top, left + wide, top + high);
    glEnd();
    glColor4ub(255, 255, 255, 255);
    write(left + margin, top + margin + dot, text);
}

void Overlay::label(double x, double y, std::string_view text) const
{
    const double left = std::floor(x - width_of(text) / 2), top = std::floor(y - line_height());
    glColor4ub(16, 20, 28, 150);
    glBegin(GL_QUADS);
    rectangle(left - 2 * dot, top - dot, left + width_of(text) + dot, top + (glyph_height + 1) * dot);
    glEnd();
    glColor4ub(255, 255, 255, 255);
    write(left, top, text);
}

void Overlay::write(double left, double top, std::string_view text) const
{
    double x = left, y = top;
    glBegin(GL_QUADS);
    for (const char c : text) {
        if (c == '\n') {
            x = left;
            y += line_advance * dot;
            continue;
        }
        for (int column = 0; column < glyph_width; ++column)
            for (int row = 0; row < glyph_height; ++row)
                if ((glyph_of(c)[static_cast<std::size_t>(column)] >> row & 1) != 0)
                    rectangle(x + column * dot, y + row * dot, x + (column + 1) * dot, y + (row + 1) * dot);
        x += glyph_advance * dot;
    }
    glEnd();
}
