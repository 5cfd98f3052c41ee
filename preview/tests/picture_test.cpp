#include "bmp_file.h"
#include "picture.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iostream>

namespace {

constexpr int width = 150, height = 100;

using Rgb = std::array<int, 3>;

constexpr Rgb background{76, 89, 102}, red{255, 0, 0}, green{0, 255, 0}, blue{0, 0, 255}, yellow{255, 255, 0},
    magenta_and_white{255, 127, 255};

// The bytes of a BMP with a header of 40 bytes.
std::string bmp(int bmp_width, int bmp_height, int bits, int compression, const std::string &after_header)
{
    std::string bytes("BM");
    const auto number = [&](long value, int size) {
        for (int i = 0; i < size; ++i)
            bytes += static_cast<char>(value >> 8 * i & 0xff);
    };
    const std::size_t palette = bits <= 8 ? std::size_t{4} << bits : compression == 3 ? 12 : 0;
    for (const long value : {0l, 0l, static_cast<long>(54 + palette), 40l, static_cast<long>(bmp_width),
                             static_cast<long>(bmp_height)})
        number(value, 4);
    number(1, 2);
    number(bits, 2);
    for (const int value : {compression, 0, 0, 0, 0, 0})
        number(value, 4);
    return bytes + after_header;
}

const std::string four_colours =
    bmp(2, 2, 24, 0, std::string("\xff\0\0\0\xff\xff\0\0\0\0\xff\0\xff\0\0\0", 16));

// A folder with one bitmap of 2 x 2 pixels: red and green above, blue and yellow below.
std::filesystem::path texture_folder()
{
    const std::filesystem::path folder =
        std::filesystem::path(testing::TempDir()) / "marlogl_preview_textures";
    std::filesystem::create_directories(folder / "Sub");
    std::ofstream(folder / "Sub" / "Four.BMP", std::ios::binary) << four_colours;
    return folder;
}

Scene scene_of(const std::string &text)
{
    Problems problems;
    Scene scene = read_scene(text, problems);
    for (const Problem &problem : problems.list())
        ADD_FAILURE() << problem.line << ": " << problem.text;
    return scene;
}

// Drawn in square tiles of that size.
Picture draw(const std::string &text, std::string_view view, bool lit, int tile_size = largest_tile)
{
    const Scene scene = scene_of(text);
    FilesRead files_read;
    FileFinder finder({texture_folder()}, files_read);
    Problems missing_textures;
    const Offscreen tile(std::min(width, tile_size), std::min(height, tile_size));
    Appearance appearance;
    appearance.lit = lit;
    appearance.background = {0.3f, 0.35f, 0.4f};
    const Drawing drawing(scene, load_textures(scene.textures, finder, missing_textures));
    Picture picture{width, height, {}};
    for (const NamedView &each : named_views)
        if (each.name == view)
            draw_picture(tile, drawing,
                         frame(scene.vertices, each.direction, {0.268, true}, 1.0 * width / height),
                         appearance, width, height, [&](const Picture &rows) {
                             picture.rgb.insert(picture.rgb.end(), rows.rgb.begin(), rows.rgb.end());
                         });
    return picture;
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

using Corner = std::array<int, 3>;

std::string polygon(const std::string &colour, std::initializer_list<Corner> corners)
{
    std::string text = "glBegin( GL_POLYGON );\nglColor3ub( " + colour + " );\n";
    for (const auto &[x, y, z] : corners)
        text += "glVertex3d( " + std::to_string(x) + ", " + std::to_string(y) + ", " + std::to_string(z) +
                " );\n";
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
        {"a concave face leaves its notch open",
         polygon("255, 0, 0", {{15, 0, 5}, {0, 0, 20}, {0, 0, 0}, {30, 0, 0}, {30, 0, 20}}),
         "front", {{15, 80, red}, {85, 80, red}, {50, 15, background}, {50, 90, red}}},
        {"a concave face whose first corner sees only some of the others",
         polygon("255, 0, 0", {{30, 0, 20}, {15, 0, 5}, {0, 0, 20}, {0, 0, 0}, {30, 0, 0}}),
         "front", {{15, 80, red}, {85, 80, red}, {50, 15, background}}},
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

// The sun stands still in the world: what a side looks like does not depend on which way its corners run.
TEST(Picture, NeighbouringSidesDifferInTheLight)
{
    const std::string lying = "glRotated( -90, 1, 0, 0 );\n", across = "glRotated( 90, 0, 0, 1 );\n";
    const std::string white = wall(0, 0, "255, 255, 255"), reversed = reversed_wall(0, 0, "255, 255, 255");
    std::vector<int> around;
    for (const auto &[view, turn] : {
             std::pair{"front", ""            },
             {"right", across.c_str()},
             {"back",  ""            },
             {"left",  across.c_str()}
    }) {
        around.push_back(mean(draw(turn + white, view, true), 50, 50, 20)[0]);
        EXPECT_NEAR(around.back(), mean(draw(turn + reversed, view, true), 50, 50, 20)[0], 1) << view;
        EXPECT_GT(around.back(), 90) << view;
    }
    const int top = mean(draw(lying + white, "top", true), 50, 50, 20)[0];
    for (std::size_t i = 0; i < around.size(); ++i) {
        EXPECT_GT(std::abs(around[i] - around[(i + 1) % around.size()]), 25) << i;
        EXPECT_GT(top, around[i] + 25) << i;
    }
}

TEST(Picture, ShadowsLieOnTheGroundAndRoadsOnTheMeadow)
{
    const auto square = [](const std::string &colour, int low, int high, int z) {
        const Corner a{low, low, z}, b{high, low, z}, c{high, high, z}, d{low, high, z};
        return polygon(colour, {a, b, c, d});
    };
    const auto object = [](int number) {
        return "// *** Sequence " + std::to_string(number) + "\n// *** x\n";
    };
    const std::string road_first = object(1) + square("255, 0, 0", -60, -20, 0) + object(2) +
                                   square("0, 255, 0", -100, 100, 0) + object(3) +
                                   square("0, 0, 255", 40, 60, 30);
    const Picture picture = draw(road_first, "top", false);
    EXPECT_TRUE(is_close(mean(picture, 37, 70, 8), red));
    EXPECT_TRUE(is_close(mean(picture, 60, 20, 6), green));
    const Picture lit = draw(road_first, "top", true);
    EXPECT_TRUE(is_close(mean(lit, 66, 26, 4), {0, 0, 247})) << "the square itself";
    EXPECT_GT(mean(lit, 30, 20, 6)[1], mean(lit, 68, 13, 4)[1] + 40) << "its shadow, away from the sun";
}

TEST(Picture, TilesDoNotShow)
{
    const std::string block =
        "glColor3ub( 255, 255, 0 );\nglVertex3d( 1, -1, 2 );\nglVertex3d( 29, -1, 17 );\n"
        "glVertex3d( 2, -1, 19 );\nglVertex3d( 30, -1, 9 );\nglEnd();\n";
    const std::string scene = four + wall(0, 0, "255, 255, 255", true) + "glBegin( GL_LINES );\n" + block +
                              "glBegin( GL_POINTS );\n" + block;
    const Picture whole = draw(scene, "iso", true);
    for (const int size : {17, 64, 101}) {
        const Picture tiled = draw(scene, "iso", true, size);
        ASSERT_EQ(tiled.rgb.size(), whole.rgb.size());
        int worst = 0;
        for (std::size_t i = 0; i < whole.rgb.size(); ++i)
            worst = std::max(worst, std::abs(whole.rgb[i] - tiled.rgb[i]));
        EXPECT_LE(worst, 3) << size;
    }
}

TEST(Textures, AreFoundBesideTheDesignFileAndMissingOnesAreNamedOnce)
{
    const std::filesystem::path folder = texture_folder();
    std::ofstream(folder / "marlogl.DAT") << " .\\Sub\\town.mr2 \r\nout\\town.ogl\r\n";
    std::filesystem::create_directories(folder / "out");
    FilesRead files_read;
    FileFinder finder(texture_folders(folder / "out" / "town.ogl", {}, files_read), files_read);
    Problems problems;
    const Textures textures = load_textures(
        {
            {"fOUR.bmp",    3},
            {"nowhere.bmp", 7},
            {"Four.bmp",    8},
            {"",            9},
            {"..",          9},
            {"a/b\\c",      9}
    },
        finder, problems);
    EXPECT_EQ(textures.of_name, (std::vector<std::uint32_t>{1, 0, 1, 0, 0, 0}));
    EXPECT_EQ(textures.missing, 4u);
    ASSERT_EQ(textures.bitmaps.size(), 2u);
    EXPECT_EQ(textures.bitmaps[0].rgb, checkerboard().rgb);
    EXPECT_EQ(textures.bitmaps[1].width, 2);
    const Problem &first = problems.list().front();
    EXPECT_EQ(first.line, 7u);
    EXPECT_TRUE(first.text.starts_with("texture \"nowhere.bmp\" is missing; it was looked for in "))
        << first.text;
}

TEST(Bitmaps, AreReadOrSayWhatIsWrong)
{
    using namespace std::string_literals;
    constexpr int least = std::numeric_limits<int>::min();
    const std::string row = "\x40\x80\xff\0"s, text = "not that"s;
    const std::string pixel = "255 128 64 ", white = "255 255 255 ";
    const std::string palette = std::string(4, '\xff') + "\x40\x80\xff\0"s,
                      core = "\x0c\0\0\0\1\0\1\0\1\0\x18\0"s;
    // clang-format off
    const struct {
        std::string bytes, outcome; // the pixels, or the end of the message
    } rows[] = {
        {bmp(1, 1, 24, 0, row), pixel},
        {bmp(1, -2, 24, 0, "\0\0\0\0"s + row), pixel + "0 0 0 "},
        {bmp(1, 1, 32, 0, row), pixel},
        {bmp(1, 1, 16, 0, "\x08\x7e\0\0"s), "255 132 66 "},
        {bmp(1, 1, 16, 3, "\0\xf8\0\0\xe0\x07\0\0\x1f\0\0\0\x08\xfc"s), "255 130 66 "},
        {bmp(1, 1, 16, 3, "\0\xf8\0\0\xe0\x07\0\0\0\0\0\0\x09\xfc"s), "255 130 0 "},
        {bmp(10, 1, 1, 0, palette + "\x28\x40\0\0"s), white + white + pixel + white + pixel + white + white + white + white + pixel},
        {bmp(3, 1, 4, 0, palette + std::string(56, '\0') + "\x10\x10"s), pixel + white + pixel},
        {bmp(2, 1, 8, 0, palette + std::string(1016, '\0') + "\1\0"s), pixel + white},
        {"BM"s + std::string(8, '\0') + "\x1a\0\0\0"s + core + row, pixel},
        {text, "is no BMP file"},
        {"BM", "is cut off in its header"},
        {bmp(1, 1, 24, 0, "").substr(0, 40), "is cut off in its header"},
        {bmp(1, 1, 16, 3, "\0\xf8"s), "is cut off in its header"},
        {bmp(0, 1, 24, 0, row), "is of 0 x 1 pixels; width and height must be from 1 to 8192"},
        {bmp(1, 0, 24, 0, row), "is of 1 x 0 pixels; width and height must be from 1 to 8192"},
        {bmp(1, least, 24, 0, row), "is of 1 x 2147483648 pixels; width and height must be from 1 to 8192"},
        {bmp(-1, 1, 24, 0, row), "is of -1 x 1 pixels; width and height must be from 1 to 8192"},
        {bmp(8192, 8192, 24, 0, row), "is cut off: it has 58 of 201326646 bytes"},
        {bmp(1, 2, 24, 0, row), "is cut off: it has 58 of 61 bytes"},
        {bmp(1, 1, 8, 1, palette), "is compressed (method 1); save it without compression"},
        {bmp(1, 1, 24, 3, row + row + row), "is compressed (method 3); save it without compression"},
        {bmp(1, 1, 7, 0, row), "has 7 bits a pixel, not 1, 4, 8, 16, 24 or 32"},
        {bmp(1, 1, 32, 3, "\5\0\0\0"s + row + row), "has bit fields with gaps"},
        {std::string(bmp(1, 1, 24, 0, row)).replace(10, 1, "\5"),
         "is damaged: its pixels begin at byte 5, inside its header"},
        {std::string(bmp(1, 1, 24, 0, row)).replace(14, 1, "\5"),
         "is no BMP file that can be read: its header has 5 bytes, not 12 or 40 to 124"},
    };
    // clang-format on
    const std::filesystem::path file = texture_folder() / "row.bmp";
    for (const auto &[bytes, outcome] : rows) {
        std::ofstream(file, std::ios::binary) << bytes;
        std::string seen;
        try {
            for (const int channel : read_bmp(file, largest_bmp).rgb)
                seen += std::to_string(channel) + ' ';
        } catch (const std::exception &error) {
            seen = error.what();
            seen.erase(0, file.string().size() + 1);
        }
        EXPECT_EQ(seen, outcome);
    }
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
