#include "marks.h"

#include "font.h"
#include "gl.h"

#include <algorithm>
#include <charconv>

namespace {

std::string in_short(double value)
{
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, value, std::chars_format::general, 6).ptr};
}

// 1, 2 or 5 times a power of ten: about a twelfth of the scene, in design units.
double step_of(const Scene &scene)
{
    const Vec3 size = scene.highest - scene.lowest;
    const double wanted = std::max({size.x, size.y, 1e-3 * scene.unit}) / scene.unit / 12;
    const double power = std::pow(10, std::floor(std::log10(wanted)));
    return power * (wanted < 2 * power ? 2 : wanted < 5 * power ? 5 : 10);
}

// Lines in the world, over what is drawn already.
class Lines {
  public:
    Lines(const Screen &on, const Overlay &over, float width) : centre_(on.scene.centre()), overlay_(over)
    {
        overlay_.use_world();
        glLineWidth(width);
        glBegin(GL_LINES);
    }
    ~Lines()
    {
        glEnd();
        overlay_.use_screen();
    }
    Lines(const Lines &) = delete;
    Lines &operator=(const Lines &) = delete;

    void add(Vec3 from, Vec3 to)
    {
        for (const Vec3 end : {from - centre_, to - centre_})
            glVertex3d(end.x, end.y, end.z);
    }

  private:
    Vec3 centre_;
    const Overlay &overlay_;
};

void label(const Screen &screen, const Overlay &overlay, Vec3 at, const std::string &text)
{
    if (const auto place = screen.place_of(at))
        overlay.label((*place)[0], (*place)[1], text);
}

} // namespace

std::optional<std::array<double, 2>> Screen::place_of(Vec3 point) const
{
    auto place = camera.place_of(point, static_cast<double>(width) / height);
    if (place && std::max(std::abs((*place)[0]), std::abs((*place)[1])) > 1.2)
        return {};
    if (place)
        place = std::array{((*place)[0] + 1) / 2 * width, (1 - (*place)[1]) / 2 * height};
    return place;
}

void draw_grid(const Screen &screen, const Overlay &overlay)
{
    const Scene &scene = screen.scene;
    const double units = step_of(scene), step = units * scene.unit;
    const auto first = [&](double low) { return std::floor(low / step); };
    const auto last = [&](double high) { return std::ceil(high / step); };
    const double left = first(scene.lowest.x), right = last(scene.highest.x), front = first(scene.lowest.y),
                 back = last(scene.highest.y);
    // Far from the origin one more may be the same number: so the lines are counted, and there are not too
    // many.
    const auto lines_between = [](double low, double high) {
        return static_cast<int>(std::min(high - low, 100.0));
    };
    const int columns = lines_between(left, right), rows = lines_between(front, back);
    const Vec3 north{(left + right) / 2 * step, back * step, 0};
    {
        Lines lines(screen, overlay, 1);
        glColor4ub(255, 255, 255, 90);
        for (int i = 0; i <= columns; ++i)
            lines.add({(left + i) * step, front * step, 0}, {(left + i) * step, back * step, 0});
        for (int i = 0; i <= rows; ++i)
            lines.add({left * step, (front + i) * step, 0}, {right * step, (front + i) * step, 0});
        glColor4ub(255, 220, 60, 255);
        const Vec3 tip = north + Vec3{0, step, 0};
        lines.add(north, tip);
        for (const double side : {-0.2, 0.2})
            lines.add(tip, tip + Vec3{side, -0.3, 0} * step);
    }
    label(screen, overlay, north + Vec3{0, step * 1.1, 0}, "N");
    for (int i = 0; i <= columns; i += 2)
        label(screen, overlay, {(left + i) * step, front * step, 0}, in_short((left + i) * units));
    for (int i = 2; i <= rows; i += 2)
        label(screen, overlay, {left * step, (front + i) * step, 0}, in_short((front + i) * units));
    overlay.panel(-8, 8, "grid " + in_short(units) + " units");
}

void draw_axes(const Screen &screen, const Overlay &overlay)
{
    const double size = 2 * step_of(screen.scene) * screen.scene.unit;
    {
        Lines lines(screen, overlay, 3);
        glColor3ub(230, 60, 50);
        lines.add({}, {size, 0, 0});
        glColor3ub(50, 180, 60);
        lines.add({}, {0, size, 0});
        glColor3ub(70, 110, 255);
        lines.add({}, {0, 0, size});
    }
    label(screen, overlay, {size, 0, 0}, "x");
    label(screen, overlay, {0, size, 0}, "y");
    label(screen, overlay, {0, 0, size}, "z");
}

void draw_names(const Screen &screen, const Overlay &overlay)
{
    struct Box {
        double left, right, bottom;
    };
    std::vector<Box> taken;
    for (const SceneObject &object : screen.scene.objects) {
        const auto vertices = std::span(screen.scene.vertices)
                                  .subspan(object.first_vertex, object.end_vertex - object.first_vertex);
        if (object.number == 0 || vertices.empty())
            continue;
        const Bounds bounds = bounds_of(vertices);
        Vec3 top = (bounds.lowest + bounds.highest) * 0.5;
        top.z = bounds.highest.z;
        const auto place = screen.place_of(top);
        if (!place)
            continue;
        const std::string text = std::to_string(object.number) + ' ' + object.name;
        const double half = overlay.width_of(text) / 2, high = overlay.line_height();
        const Box box{(*place)[0] - half, (*place)[0] + half, (*place)[1]};
        if (std::any_of(taken.begin(), taken.end(), [&](const Box &other) {
                return box.left < other.right && other.left < box.right &&
                       std::abs(box.bottom - other.bottom) < high;
            }))
            continue;
        taken.push_back(box);
        overlay.label((*place)[0], (*place)[1], text);
    }
}

void draw_outline(const Screen &screen, const Overlay &overlay, const Face &face)
{
    Lines lines(screen, overlay, 3);
    glColor3ub(255, 220, 60);
    const auto corner = [&](std::uint32_t i) {
        return screen.scene.vertices[face.outline + i % face.outline_size].position;
    };
    for (std::uint32_t i = 0; i < face.outline_size; ++i)
        lines.add(corner(i), corner(i + 1));
}
