#include "offscreen.h"
#include "png_file.h"
#include "render.h"
#include "textures.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iostream>

namespace {

constexpr int width = 150, height = 100;

using Rgb = std::array<int, 3>;

constexpr Rgb background{76, 89, 102}, red{255, 0, 0}, green{0, 255, 0}, blue{0, 0, 255}, yellow{255, 255, 0},
    magenta_and_white{255, 127, 255};

// A folder with one bitmap of 2 x 2 pixels: red and green above, blue and yellow below.
std::filesystem::path texture_folder()
{
    const std::filesystem::path folder =
        std::filesystem::path(testing::TempDir()) / "marlogl_preview_textures";
    std::filesystem::create_directories(folder / "Sub");
    std::string bytes("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0", 30);
    bytes.resize(54);
    bytes += std::string("\xff\0\0\0\xff\xff\0\0", 8) + std::string("\0\0\xff\0\xff\0\0\0", 8);
    std::ofstream(folder / "Sub" / "Four.BMP", std::ios::binary) << bytes;
    return folder;
}

Scene scene_of(const std::string &text)
{
    Problems problems;
    Scene scene = build_scene(read_statements(text, problems), problems);
    for (const Problem &problem : problems.list())
        ADD_FAILURE() << problem.line << ": " << problem.text;
    return scene;
}

Picture draw(const std::string &text, std::string_view view, bool lit)
{
    const Scene scene = scene_of(text);
    FileFinder finder({texture_folder()});
    const Offscreen offscreen(width, height);
    Appearance appearance;
    appearance.lit = lit;
    appearance.thickness = oversampling;
    const Drawing drawing(scene, load_textures(scene.textures, finder).bitmaps, appearance);
    for (const NamedView &each : named_views)
        if (each.name == view)
            drawing.draw(frame(scene, each.direction, {1.0 * width / height, 1, true}), width * oversampling,
                         height * oversampling);
    return offscreen.read();
}

// The mean colour of a rectangle; its middle and size in hundredths of the picture's width and height.
Rgb mean(const Picture &picture, int x, int y, int size)
{
    std::array<long, 3> sum{};
    long count = 0;
    for (int row = (y - size / 2) * height / 100; row < (y + size / 2) * height / 100; ++row)
        for (int column = (x - size / 2) * width / 100; column < (x + size / 2) * width / 100;
             ++column, ++count)
            for (std::size_t c = 0; c < 3; ++c)
                sum[c] += picture.rgb[static_cast<std::size_t>(row * width + column) * 3 + c];
    return {static_cast<int>(sum[0] / count), static_cast<int>(sum[1] / count),
            static_cast<int>(sum[2] / count)};
}

bool is_close(Rgb a, Rgb b)
{
    return std::abs(a[0] - b[0]) < 32 && std::abs(a[1] - b[1]) < 32 && std::abs(a[2] - b[2]) < 32;
}

// A wall from x = `left`, 30 wide and 20 high, whose corners run counter-clockwise for a viewer in front.
std::string wall(int left, int y, const std::string &colour, bool with_tex_coords = false)
{
    std::string text =
        "glBegin( GL_POLYGON );\nglColor3ub( " + colour + " );\nglNormal3d( 0.00, 1.00, 0.00 );\n";
    for (const auto &[u, v] : {
             std::pair{0, 0},
             {1, 0},
             {1, 1},
             {0, 1}
    }) {
        if (with_tex_coords)
            text += "glTexCoord2f( " + std::to_string(u) + ".0f, " + std::to_string(v) + ".0f );\n";
        text += "glVertex3d( " + std::to_string(left + 30 * u) + ", " + std::to_string(y) + ", " +
                std::to_string(20 * v) + " );\n";
    }
    return text + "glEnd();\n";
}

std::string reversed_wall(int left, int y, const std::string &colour)
{
    return "glPushMatrix();\nglTranslated( " + std::to_string(2 * left + 30) + ", " + std::to_string(2 * y) +
           ", 0 );\nglRotated( 180, 0, 0, 1 );\n" + wall(left, y, colour) + "glPopMatrix();\n";
}

const std::string four = "BindTexture( \"sub\\FOUR.bmp\" );\nglEnable( GL_TEXTURE_2D );\n";
const std::string missing = "BindTexture( \"nowhere.bmp\" );\nglEnable( GL_TEXTURE_2D );\n";

TEST(Picture, RegionsHaveTheirColours)
{
    // clang-format off
    const struct {
        std::string what, text, view;
        std::vector<std::tuple<int, int, Rgb>> regions; // where, as in mean(), and its colour
    } rows[] = {
        {"a wall fills the picture but for its margin",
         wall(0, 0, "255, 0, 0"),
         "front", {{50, 50, red}, {6, 50, red}, {94, 94, red}, {1, 50, background}, {50, 99, background}}},
        {"a face is seen from behind, too", wall(0, 0, "255, 0, 0"), "back", {{50, 50, red}}},
        {"a nearer face hides one that comes later",
         wall(0, -5, "255, 0, 0") + wall(0, 5, "0, 0, 255"),
         "front", {{50, 50, red}}},
        {"of two faces in one plane each viewer sees his own, outside",
         wall(0, 0, "255, 0, 0") + reversed_wall(0, 0, "0, 0, 255"),
         "front", {{50, 50, red}, {10, 80, red}}},
        {"of two faces in one plane each viewer sees his own, inside",
         wall(0, 0, "255, 0, 0") + reversed_wall(0, 0, "0, 0, 255"),
         "back", {{50, 50, blue}, {10, 80, blue}}},
        {"placements hold for their object only",
         "glTranslated( 40, 0, 0 );\n" + wall(0, 0, "0, 0, 255") + "glTranslated( -40, 0, 0 );\n" +
             wall(0, 0, "255, 0, 0"),
         "front", {{20, 50, red}, {80, 50, blue}, {50, 50, background}}},
        {"a texture stands upright and is not mirrored",
         four + wall(0, 0, "255, 255, 255", true),
         "front", {{25, 25, red}, {75, 25, green}, {25, 75, blue}, {75, 75, yellow}}},
        {"what has no texture coordinates has no texture, though it follows a textured face",
         four + wall(0, 0, "255, 255, 255", true) + wall(40, 0, "0, 0, 255") +
             "glBegin( GL_LINES );\nglColor3ub( 255, 255, 255 );\nglTexCoord2f( 0, 0 );\n"
             "glVertex3d( 0, 0, 50 );\nglVertex3d( 70, 0, 50 );\nglEnd();\n",
         "front", {{85, 80, blue}}},
        {"a missing texture is a checkerboard, whatever the colour",
         missing + wall(0, 0, "0, 0, 0", true),
         "front", {{50, 50, magenta_and_white}}},
    };
    // clang-format on
    for (const auto &row : rows) {
        const Picture picture = draw(row.text, row.view, false);
        for (const auto &[x, y, colour] : row.regions) {
            const Rgb seen = mean(picture, x, y, x < 5 || y > 95 ? 2 : 6);
            EXPECT_TRUE(is_close(seen, colour)) << row.what << ", at " << x << ' ' << y << ": " << seen[0]
                                                << ' ' << seen[1] << ' ' << seen[2];
        }
    }
}

TEST(Picture, LinesAndPointsKeepTheirColourInTheLight)
{
    const auto block = [](const std::string &mode) {
        return "glBegin( " + mode +
               " );\nglColor3ub( 255, 255, 0 );\nglVertex3d( -9, 0, 0 );\n"
               "glVertex3d( 9, 0, 0 );\nglEnd();\n";
    };
    for (const std::string mode : {"GL_LINES", "GL_POINTS"}) {
        const Picture picture = draw(four + wall(-15, 0, "0, 0, 255") + block(mode), "front", true);
        int yellows = 0;
        for (std::size_t i = 0; i < picture.rgb.size(); i += 3)
            yellows += is_close({picture.rgb[i], picture.rgb[i + 1], picture.rgb[i + 2]}, yellow);
        EXPECT_GT(yellows, mode == "GL_LINES" ? 60 : 8) << mode;
    }
}

TEST(Picture, FacesAreLitFromBothSides)
{
    for (const char *view : {"front", "back"}) {
        const Rgb lit = mean(draw(wall(0, 0, "255, 255, 255"), view, true), 50, 50, 20);
        EXPECT_GT(lit[0], 150) << view;
        EXPECT_LT(lit[0], 250) << view;
    }
    const Rgb top =
        mean(draw("glRotated( -90, 1, 0, 0 );\n" + wall(0, 0, "255, 255, 255"), "top", true), 50, 50, 20);
    const Rgb oblique =
        mean(draw("glRotated( 75, 0, 0, 1 );\n" + wall(0, 0, "255, 255, 255"), "front", true), 50, 50, 4);
    EXPECT_GT(top[0], oblique[0] + 20);
}

TEST(Textures, AreFoundBesideTheDesignFileAndMissingOnesAreNamedOnce)
{
    const std::filesystem::path folder = texture_folder();
    std::ofstream(folder / "marlogl.DAT") << " .\\Sub\\town.mr2 \r\nout\\town.ogl\r\n";
    std::ofstream(folder / "Sub" / "broken.bmp") << "BM, but no more";
    std::filesystem::create_directories(folder / "out");
    FileFinder finder(texture_folders(folder / "out" / "town.ogl", {}));
    const Textures textures =
        load_textures({"fOUR.bmp", "nowhere.bmp", "BROKEN.bmp", "", "..", "a/b\\c"}, finder);
    EXPECT_EQ(textures.missing, (std::vector<std::string>{"nowhere.bmp", "BROKEN.bmp", "", "..", "a/b\\c"}));
    ASSERT_EQ(textures.bitmaps.size(), 6u);
    EXPECT_EQ(textures.bitmaps[0].width, 2);
    EXPECT_EQ(textures.bitmaps[1].rgb, checkerboard().rgb);
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    try {
        const Offscreen probe(width, height);
    } catch (const std::exception &error) {
        std::cout << "skipped: " << error.what() << '\n';
        return 77;
    }
    return RUN_ALL_TESTS();
}
