#include "glb_file.h"
#include "gltf_materials.h"
#include "host/memory_files.h"
#include "mesh.h"
#include "report.h"
#include "run/convert.h"
#include "scenes.h"
#include "support/cases.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

// Without any texture on the disk.
Gltf gltf_of(const std::string &text, const GltfStyle &style = {})
{
    Loaded loaded;
    loaded.scene = read_scene(text, loaded.problems);
    loaded.textures.of_name.assign(loaded.scene.textures.size(), 0);
    return make_gltf(loaded, style);
}

std::string bytes_of(const Gltf &gltf)
{
    std::string bytes;
    write_glb(gltf, [&](std::span<const std::uint8_t> more) { bytes.append(more.begin(), more.end()); });
    return bytes;
}

std::string begin_object(int number, const std::string &name)
{
    return "// *** Sequence " + std::to_string(number) + "\n// *** " + name + "\n";
}

// A wall of 4 x 2 whose corners run counter-clockwise for a viewer in front, or behind; from any corner on.
std::string wall(bool from_behind = false, int first = 0, const std::string &more = "")
{
    constexpr const char *corners[] = {"0, 0, 0", "4, 0, 0", "4, 0, 2", "0, 0, 2"};
    std::string text = "glBegin( GL_POLYGON );" + more;
    for (int i = 0; i < 4; ++i)
        text += "glVertex3d( " + std::string(corners[(first + (from_behind ? 4 - i : i)) % 4]) + " );";
    return text + "glEnd();\n";
}

TEST(Gltf, NodesStandWhereTheStatementsPutTheirObjects)
{
    const std::string scale = "glScalef( 0.3048, 0.3048, 0.3048 );\n";
    const std::string there = "glTranslated( 120, -40, 0 ); glRotated( -90,0 ,0 , 1 );\n",
                      back = "glRotated( 90,0 ,0 , 1 ); glTranslated( -120, 40, 0 );\n";
    // clang-format off
    const struct {
        std::string text, node;
    } rows[] = {
        {there + wall() + back,
         R"("mesh":0,"translation":[120,-40,0],"rotation":[0,0,-0.70710677,0.70710677],)"},
        {there + back, R"("translation":[120,-40,0],"rotation":[0,0,-0.70710677,0.70710677],)"},
        {"glRotated( 60,0 ,0 , 1 ); glRotated( -60,0 ,0 , 1 );", R"("rotation":[0,0,0.5,0.8660254],)"},
        {"glRotated( 180,0 ,0 , 1 );", R"("rotation":[0,0,1,0],)"},
        {"glRotated( 120, 1, 1, 1 );", R"("rotation":[0.5,0.5,0.5,0.5],)"},
        {"glPushMatrix(); glScalef( 3, 3, 3 );" + wall(), R"("mesh":1,)"},
    };
    // clang-format on
    for (const auto &row : rows) {
        const std::string bytes =
            bytes_of(gltf_of(scale + begin_object(3, "shed") + wall() + begin_object(7, "barn") + row.text));
        const std::string root =
            R"("matrix":[0.3048,0,0,0,0,0,-0.3048,0,0,0.3048,0,0,0,0,0,1],"children":[1,2])";
        for (const std::string &part : {root, R"({"name":"barn",)" + row.node + R"("extras":{"number":7}})"})
            EXPECT_NE(bytes.find(part), std::string::npos) << part << " in " << bytes;
    }
    // A matrix that is no placement does not become one: the points carry it.
    const Gltf odd = gltf_of(scale + "glScalef( 2, 1, 1 );\n" + begin_object(1, "wide") + wall());
    EXPECT_EQ(odd.nodes.at(0).scale, 1);
    EXPECT_FLOAT_EQ(odd.meshes[0].vertices[1].positions[1][0], 4 * 0.6096f / static_cast<float>(odd.unit));
}

// Every face: from where it is seen, its y, in millimetres, and that of its normal.
std::string faces_of(const Gltf &gltf)
{
    std::ostringstream text;
    for (const GltfNode &node : gltf.nodes)
        for (const GltfPart &part : gltf.meshes.at(*node.mesh).parts)
            for (std::size_t i = 0; i < part.indices.size(); i += 6) {
                const auto &vertices =
                    gltf.meshes[*node.mesh].vertices[static_cast<std::size_t>(part.outfit)];
                const std::uint32_t corner = part.indices[i];
                text << (gltf.materials[part.material].double_sided ? "both" : "one") << ' '
                     << std::round(vertices.positions[corner][1] * 1000 * gltf.unit) << ' '
                     << vertices.normals[corner][1] << ' '
                     << static_cast<int>(gltf.materials[part.material].colour[0]) << "; ";
            }
    return text.str();
}

TEST(Gltf, OfFacesInOnePlaceEachSideIsSeenOnce)
{
    // clang-format off
    const std::string black = "glColor3ub( 0, 0, 0 );", scale = "glScalef( 2, 2, 2 );\n",
                      far_away = begin_object(2, "") + "glTranslated( 0, 0, -1e14 );\n";
    const struct {
        std::string text, faces;
        std::size_t equal;
    } rows[] = {
        {wall(), "both 0 -1 1; ", 0},
        {wall() + wall(true, 1), "one -5 -1 1; one 5 1 1; ", 0},
        {wall(true) + begin_object(2, "") + wall(), "one 5 1 1; one -5 -1 1; ", 0},
        {wall() + wall(false, 3, black), "both 0 -1 0; ", 1},
        {wall() + wall(true) + wall(false, 2, black), "one 5 1 1; one -5 -1 0; ", 1},
        {wall() + "glBegin( GL_POLYGON ); glVertex3d( 4, 0, 2 ); glVertex3d( 4, 0, 0 ); glVertex3d( 0, 0, 0 );"
                  "glVertex3d( 0, 0, 2.5 ); glEnd();",
         "both 0 -1 1; both 0 1 1; ", 0},
        {wall() + "glTranslated( 0, 0.1, 0 );\n" + wall() + far_away + wall(),
         "both 0 -1 1; both 200 -1 1; both 0 -1 1; ", 0},
        {"glScalef( 1e-155, 1e-155, 1e-155 );\n" + wall() + wall(true), "one 0 0 1; one 0 0 1; ", 0},
    };
    // clang-format on
    for (const auto &row : rows) {
        const Gltf gltf = gltf_of(scale + begin_object(1, "") + row.text);
        EXPECT_EQ(faces_of(gltf), row.faces) << row.text;
        EXPECT_EQ(gltf.equal_faces, row.equal) << row.text;
    }
}

TEST(Gltf, ColoursAreAmountsOfLight)
{
    EXPECT_EQ(linear(0), 0);
    EXPECT_EQ(linear(255), 1);
    EXPECT_NEAR(linear(10), 0.003035, 1e-6);
    EXPECT_NEAR(linear(128), 0.215861, 1e-6);
}

// Six times the volume inside the solid lines of a block; it is negative where triangles look inwards.
double solid_volume(const std::string &block)
{
    const GltfMesh mesh = gltf_of("glBegin( " + block + " ); glEnd();", {false, true}).meshes.at(0);
    const auto corner = [&](std::size_t i) {
        const auto &[x, y, z] =
            mesh.vertices[static_cast<std::size_t>(Outfit::plain)].positions[mesh.parts[0].indices[i]];
        return Vec3{x, y, z};
    };
    double sum = 0;
    for (std::size_t i = 0; i < mesh.parts[0].indices.size(); i += 3)
        sum += dot(corner(i), cross(corner(i + 1), corner(i + 2)));
    return sum;
}

TEST(Gltf, SolidLinesAreClosedBodies)
{
    for (const char *end : {"9, 0, 0", "0, 9, 0", "0, 0, -9"})
        EXPECT_NEAR(solid_volume("GL_LINES ); glVertex3d( 0, 0, 0 ); glVertex3d( " + std::string(end)),
                    6 * 9 * line_width * line_width, 1e-4);
    EXPECT_NEAR(solid_volume("GL_POINTS ); glVertex3d( 1, 2, 3"), point_width * point_width * point_width,
                1e-4);
}

TEST(Glb, TextsAreUtf8WhateverTheirBytes)
{
    // clang-format off
    const struct {
        std::string name, written;
    } rows[] = {
        {"caf\xc3\xa9", "caf\xc3\xa9"},
        {"caf\xe9", "caf\xc3\xa9"},
        {"\xc0\x80\xff", "\xc3\x80\xc2\x80\xc3\xbf"},
        {"\xed\xa0\x80", "\xc3\xad\xc2\xa0\xc2\x80"},
        {R"(a "quote" \)", R"(a \"quote\" \\)"},
        {std::string("\0\t\x7f", 3), "\\u0000\\t\x7f"},
    };
    // clang-format on
    for (const auto &[name, written] : rows) {
        Gltf gltf;
        gltf.nodes.emplace_back().name = name;
        EXPECT_NE(bytes_of(gltf).find("\"name\":\"" + written + "\""), std::string::npos) << written;
    }
}

Vec3 turned(Vec3 v, const std::array<double, 4> &by)
{
    const Vec3 axis{by[0], by[1], by[2]};
    const Vec3 twice = cross(axis, v) * 2;
    return v + twice * by[3] + cross(axis, twice);
}

// The bounds of a scene from its nodes and meshes, z up.
Bounds bounds_of(const Gltf &gltf)
{
    std::vector<Vertex> vertices;
    for (const GltfNode &node : gltf.nodes)
        for (const auto &kind :
             node.mesh ? gltf.meshes.at(*node.mesh).vertices : decltype(GltfMesh::vertices)())
            for (const auto &[x, y, z] : kind.positions) {
                const auto &[right, back, up] = node.translation;
                const Vec3 at = turned(Vec3{x, y, z} * node.scale, node.rotation) + Vec3{right, back, up};
                vertices.push_back({at * gltf.unit});
            }
    return bounds_of(vertices);
}

// How many triangles look another way than the normals of their corners say.
int wrong_normals(const GltfMesh &mesh)
{
    int wrong = 0;
    for (const GltfPart &part : mesh.parts) {
        const auto &[positions, normals, texture_points] =
            mesh.vertices[static_cast<std::size_t>(part.outfit)];
        const auto vector = [](const std::array<float, 3> &v) { return Vec3{v[0], v[1], v[2]}; };
        for (std::size_t i = 0; !normals.empty() && i < part.indices.size(); i += 3) {
            const Vec3 a = vector(positions[part.indices[i]]), b = vector(positions[part.indices[i + 1]]),
                       c = vector(positions[part.indices[i + 2]]), normal = vector(normals[part.indices[i]]);
            const Vec3 area = cross(b - a, c - a);
            wrong += std::abs(length(normal) - 1) > 1e-5 || dot(area, normal) < -1e-3 * length(area);
        }
    }
    return wrong;
}

// Those of the manual and random ones, as their output files.
std::map<std::string, std::string> many_scenes()
{
    std::map<std::string, std::string> scenes = marlogl::check::manual_scenes();
    const marlogl::check::SceneGenerator generator;
    for (unsigned seed = 1; seed <= 10; ++seed) {
        const auto [name, scene] = generator.scene(seed);
        scenes["random" + std::to_string(seed) + name] = scene;
    }
    for (auto &[name, scene] : scenes) {
        marlogl::MemoryFiles files;
        files.files[name] = scene;
        files.files["appl/colors.tab"] = marlogl::content_of("examples/village/appl/colors.tab");
        marlogl::Configuration configuration;
        configuration.design = name;
        configuration.output = "scene.out";
        marlogl::convert(files, configuration);
        scene = files.files.at("scene.ogl");
    }
    return scenes;
}

// Leaves the scenes for the validator when it is told a folder.
TEST(Gltf, BoundsAndNormalsOfManyScenesAreRight)
{
    const char *const folder = std::getenv("MARLOGL_GLB_FOLDER");
    for (const auto &[name, text] : many_scenes()) {
        Problems problems;
        const Scene scene = read_scene(text, problems);
        const Gltf gltf = gltf_of(text);
        const auto [lowest, highest] = bounds_of(gltf);
        const double most = metres_apart + 1e-6 * length(scene.highest - scene.lowest);
        for (const Vec3 &off : {lowest - scene.lowest, highest - scene.highest})
            EXPECT_LE(std::max({std::abs(off.x), std::abs(off.y), std::abs(off.z)}), most) << name;
        for (const GltfMesh &mesh : gltf.meshes)
            EXPECT_EQ(wrong_normals(mesh), 0) << name;
        if (folder != nullptr)
            std::ofstream(folder + ('/' + name) + ".glb", std::ios::binary) << bytes_of(gltf);
    }
}

// Everything that pictures and files are made from, as text.
std::string made_of(const std::string &output)
{
    Loaded loaded;
    loaded.scene = read_scene(output, loaded.problems);
    loaded.textures.of_name.assign(loaded.scene.textures.size(), 0);
    std::vector<bool> in_white(loaded.scene.textures.size());
    for (std::size_t i = 0; i < in_white.size(); i += 2)
        in_white[i] = true;
    const Mesh mesh = make_mesh(loaded.scene, in_white);
    std::ostringstream text;
    const auto add = [&](const char *name, const auto &numbers) {
        text << '\n' << name;
        for (const auto number : numbers)
            text << ' ' << std::llround(1000.0 * number);
    };
    write_warnings(text, loaded);
    write_report(text, loaded);
    add("order", mesh.order);
    add("on ground", mesh.on_ground);
    add("shadows", mesh.shadow_corners);
    add("other sides", mesh.other_sides);
    for (const Vec3 &n : mesh.normals)
        add("normal", std::array{n.x, n.y, n.z});
    for (std::size_t i = 0; i < mesh.points.size(); ++i) {
        add("point", mesh.points[i]);
        for (const auto &colours : mesh.colours)
            add("colour", colours[i]);
    }
    for (const auto &shadow : mesh.shadows)
        add("shadow", shadow);
    for (const Edge &edge : mesh.edges.sharp)
        add("sharp", edge.ends);
    for (const SmoothEdge &edge : mesh.edges.smooth)
        add(edge.same_way ? "same way" : "smooth", edge.edge.ends);
    return text.str() + bytes_of(make_gltf(loaded, {})) + bytes_of(make_gltf(loaded, {true, true}));
}

// A file of checksums tells which scenes look another way than they did when somebody looked at them last.
TEST(Scenes, AreMadeAsEver)
{
    std::map<std::string, std::string> scenes = many_scenes();
    const auto polygon = [](const std::string &corners) {
        std::istringstream in(corners);
        std::string text = "glBegin( GL_POLYGON );\n";
        for (std::string at; in >> at;)
            text += "glVertex3d( " + at + " );\n";
        return text + "glEnd();\n";
    };
    scenes["bow tie"] = polygon("0,0,0 4,0,4 4,0,0 0,0,4");
    scenes["star"] = polygon("0,0,9 2,0,2 9,0,0 2,0,-2 0,0,-9 -2,0,-2 -9,0,0 -2,0,2");
    scenes["first corners clockwise"] = polygon("0,0,0 9,0,1 9,0,0 9,0,9 0,0,9");
    scenes["stack"] = wall() + wall() + wall(true) + wall(true, 2) + wall(false, 3);
    scenes["three meet"] = wall() + polygon("0,0,0 4,0,0 4,3,0 0,3,0") + polygon("0,0,0 4,0,0 4,-3,1 0,-3,1");
    scenes["repeated corners"] = polygon("0,0,0 0,0,0 4,0,0 4,0,0 4,0,2 0,0,0");
    scenes["widest triangle outside"] =
        polygon("0,0,0 10,0,5 10,0,-10 20,0,-10 20,0,-5 20,0,0 20,0,5 20,0,10 20,0,15 20,0,20");
    scenes["pentagram"] = polygon("0,0,10 6,0,-8 -9,0,3 9,0,3 -6,0,-8");
    scenes["large numbers"] = polygon("0,0,0 4e300,0,0 4,9,2 0,9,2") +
                              polygon("0,0,0 4,1e300,2 9,9,2 0,9,2") +
                              polygon("0,0,0 4,0,-1e300 9,9,2 0,9,2") + "\n";
    scenes["control character"] = "BindTexture( \"a\001b.bmp\" );\nglEnable( GL_TEXTURE_2D );\n" + wall();
    std::map<std::string, std::uint32_t> sums; // one for all whose names begin alike, up to a number
    for (const auto &[name, text] : scenes)
        sums[name.substr(0, name.find_first_of("0123456789"))] ^=
            static_cast<std::uint32_t>(marlogl::checksum(name + made_of(text)));
    std::ostringstream lines;
    for (const auto &[name, sum] : sums)
        lines << std::hex << sum << ' ' << name << '\n';
    marlogl::expect_content("preview/tests/checksums", lines.str());
}

TEST(Gltf, DesignFileAndOutputFileAreTheSameScene)
{
    for (const std::string example : {"examples/village/village.mr2", "examples/hamlet/hamlet.mrl"}) {
        FilesRead files_read;
        const std::filesystem::path output = std::filesystem::path(testing::TempDir()) / "example.ogl";
        std::ofstream(output, std::ios::binary) << read_source(example, files_read).text;
        const Loaded by_design = load(example, {}, files_read);
        const Loaded by_output =
            load(output.string(), {std::filesystem::path(example).parent_path().string()}, files_read);
        Gltf first = make_gltf(by_design, {});
        EXPECT_FALSE(first.nodes.at(0).kind.empty());
        EXPECT_LT(first.meshes.size(), first.nodes.size());
        for (GltfNode &node : first.nodes)
            node.kind = {}; // an output file does not tell it
        const std::string bytes = bytes_of(first);
        EXPECT_TRUE(bytes == bytes_of(make_gltf(by_output, {}))) << example;
        EXPECT_LT(bytes.size(), 200000u);
    }
}

} // namespace
