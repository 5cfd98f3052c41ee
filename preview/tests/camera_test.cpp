#include "camera.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace {

struct Clip {
    double x, y, z, w; // inside the picture where x, y and z lie between -w and w
};

Clip clip(const Matrices &camera, Vec3 p)
{
    const auto transform = [](const std::array<double, 16> &m, std::array<double, 4> v) {
        std::array<double, 4> result{};
        for (std::size_t row = 0; row < 4; ++row)
            for (std::size_t column = 0; column < 4; ++column)
                result[row] += m[column * 4 + row] * v[column];
        return result;
    };
    const auto [x, y, z, w] = transform(camera.projection, transform(camera.view, {p.x, p.y, p.z, 1}));
    return {x, y, z, w};
}

Scene scene_of(const std::vector<Vec3> &points)
{
    std::ostringstream text;
    text.precision(17);
    text << "glBegin( GL_POINTS );\n";
    for (const Vec3 p : points)
        text << "glVertex3d( " << p.x << ", " << p.y << ", " << p.z << " );\n";
    Problems problems;
    return read_scene(text.str(), problems);
}

Matrices seen(const Scene &scene, Direction from, const Lens &lens, double aspect)
{
    return matrices_of(frame(scene.vertices, from, lens, aspect), aspect, scene.centre(), scene.lowest,
                       scene.highest);
}

TEST(Camera, AnySceneFillsThePictureAndStaysInside)
{
    std::mt19937 random(1);
    const auto between = [&](double a, double b) { return std::uniform_real_distribution(a, b)(random); };
    for (int round = 0; round < 300; ++round) {
        const Vec3 size{std::exp(between(-6, 9)), std::exp(between(-6, 9)), std::exp(between(-6, 9))};
        const Vec3 far_away{between(-1e6, 1e6), between(-1e6, 1e6), 0};
        std::vector<Vec3> points;
        for (int i = 0; i < 40; ++i)
            points.push_back(far_away +
                             Vec3{size.x * between(-1, 1), size.y * between(-1, 1), size.z * between(-1, 1)});
        const Scene scene = scene_of(points);
        const double aspect = std::exp(between(-1, 1));
        const Lens lens{0.268, round % 2 == 1};
        const Matrices camera = seen(scene, {between(-180, 180), between(-90, 90)}, lens, aspect);
        double left = 1e9, right = 1e9, bottom = 1e9, top = 1e9; // the room at the four edges
        const double distance = lens.orthographic ? 1 : -camera.view[14];
        for (const Vertex &vertex : scene.vertices) {
            const auto [x, y, z, w] = clip(camera, vertex.position - scene.centre());
            left = std::min(left, (w + x) / distance);
            right = std::min(right, (w - x) / distance);
            bottom = std::min(bottom, (w + y) / distance);
            top = std::min(top, (w - y) / distance);
            EXPECT_LE(std::abs(z), w) << round;
        }
        constexpr double margin = 1 - 1 / 1.05;
        EXPECT_NEAR(left, right, 1e-6) << round;
        EXPECT_NEAR(bottom, top, 1e-6) << round;
        EXPECT_NEAR(std::min(left, top), margin, 1e-6) << round;
    }
}

TEST(Camera, NamedViewsLookFromWhereTheirNameSays)
{
    const Scene scene = scene_of({
        {-1, -1, -1},
        {1,  1,  1 }
    });
    // To which side of the picture +x, +y and +z go: r(ight), l(eft), u(p), d(own), n(ear), f(ar).
    const std::pair<std::string_view, std::string_view> rows[] = {
        {"top",   "run"},
        {"front", "rfu"},
        {"back",  "lnu"},
        {"left",  "flu"},
        {"right", "nru"}
    };
    for (const auto &[name, sides] : rows)
        for (const NamedView &view : named_views)
            if (view.name == name) {
                const Matrices camera = seen(scene, view.direction, {0.268, true}, 1);
                std::string seen;
                for (const Vec3 axis : {
                         Vec3{1, 0, 0},
                         Vec3{0, 1, 0},
                         Vec3{0, 0, 1}
                }) {
                    const Clip at = clip(camera, axis);
                    seen += at.x > 0.3    ? 'r'
                            : at.x < -0.3 ? 'l'
                            : at.y > 0.3  ? 'u'
                            : at.y < -0.3 ? 'd'
                            : at.z < 0    ? 'n'
                                          : 'f';
                }
                EXPECT_EQ(seen, sides) << name;
            }
}

TEST(Camera, ScenesWithoutExtentDoNotBreakTheCamera)
{
    for (const std::vector<Vec3> &points : {
             std::vector<Vec3>{},
             {                      {5, 5, 5}},
             {             {0, 0, 0}, {0, 0, 1e-300}},
             { {-1e15, -1e15, -1e15}, {1e15, 1e15, 1e15}}
    })
        for (const NamedView &view : named_views)
            for (const bool orthographic : {false, true}) {
                const Matrices camera = seen(scene_of(points), view.direction, {0.268, orthographic}, 1);
                for (const auto &matrix : {camera.projection, camera.view})
                    for (const double value : matrix)
                        EXPECT_LT(std::abs(value), 1e38) << points.size() << view.name; // false for NaN, too
            }
}

// Whatever mouse and keys do, rays go through the places that the matrices give.
TEST(Camera, TurnsAboutWhatItLooksAtAndComesCloserAtThePointer)
{
    const Scene scene = scene_of({
        {-9, -3, -1},
        {9,  5,  4 }
    });
    for (const bool orthographic : {false, true}) {
        constexpr double aspect = 1.5, x = 0.4, y = -0.3;
        Camera camera = frame(scene.vertices, {30, 40}, {0.268, orthographic}, aspect);
        const Vec3 focal_point = camera.focal_point,
                   under_pointer = camera.point_at(x, y, aspect) + Vec3{1, 2, 0};
        camera.turn(700, 500);
        EXPECT_EQ(camera.direction.elevation, 90);
        EXPECT_EQ(length(camera.focal_point - focal_point), 0);
        camera.turn(0, -60);
        const auto before = camera.place_of(under_pointer, aspect);
        camera.approach(0.3, under_pointer);
        const auto after = camera.place_of(under_pointer, aspect);
        ASSERT_TRUE(before && after);
        const auto [at_x, at_y] = *after;
        EXPECT_NEAR(at_x, (*before)[0], 1e-9);
        EXPECT_NEAR(at_y, (*before)[1], 1e-9);
        const Clip clipped =
            clip(matrices_of(camera, aspect, {}, scene.lowest, scene.highest), under_pointer);
        EXPECT_NEAR(clipped.x / clipped.w, at_x, 1e-9);
        EXPECT_NEAR(clipped.y / clipped.w, at_y, 1e-9);
        const Ray ray = camera.ray(at_x, at_y, aspect);
        EXPECT_NEAR(length(cross(unit(ray.direction), unit(under_pointer - ray.origin))), 0, 1e-9);
        camera.stand_at({3, -4, 5});
        EXPECT_NEAR(length(camera.position() - Vec3{3, -4, 5}), 0, 1e-9);
    }
}

} // namespace
