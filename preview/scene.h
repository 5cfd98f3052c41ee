// The scene: statements played through a matrix stack, as points, lines and triangles in world coordinates.
#pragma once

#include "geometry.h"
#include "statements.h"

#include <span>

// Coordinates beyond this are left out: they would not survive the floats of OpenGL.
inline constexpr double largest_coordinate = 1e15;

struct Vertex {
    Vec3 position;
    std::array<float, 3> normal{}; // of length 1, or zero where the face has no area
    float s = 0, t = 0;
    std::array<std::uint8_t, 3> colour{255, 255, 255};
};

enum class Primitive : std::uint8_t { points, lines, triangles };

// What is drawn in one go: neighbours in the file that look alike.
struct Run {
    static constexpr std::uint32_t untextured = 0xffffffff;

    Primitive primitive = Primitive::triangles;
    std::uint32_t texture = untextured; // index into Scene::textures
    std::size_t first = 0, count = 0;   // a range of Scene::corners
};

// A polygon of the file.
struct Face {
    std::uint32_t line = 0;                  // of its end
    std::uint32_t object = 0;                // index into Scene::objects
    std::uint32_t texture = Run::untextured; // as in Run
    std::size_t first = 0, count = 0;        // its triangles: a range of Scene::corners
    std::uint32_t outline = 0;               // its corners as they were written: a range of Scene::vertices
    std::uint32_t outline_size = 0;
};

// What the file announces as an object, and all that comes before the next one.
struct SceneObject {
    int number = 0; // 0 for what comes before the first object
    std::string name;
    std::uint32_t line = 0;                       // where it is announced
    std::size_t first_vertex = 0, end_vertex = 0; // a range of Scene::vertices
    Placement placement = {};                     // from the object's own coordinates into those of the scene
};

// A texture as the output file names it, in the bytes of the file.
struct TextureName {
    std::string name;
    std::uint32_t line; // of the BindTexture of the first face that shows it
};

struct Scene {
    std::vector<Vertex> vertices;
    std::vector<std::uint32_t> corners; // indices of vertices: points, pairs for lines, triples for triangles
    std::vector<Run> runs;              // in the order of the file
    std::vector<TextureName> textures;  // every name that a run shows, once
    std::vector<Face> faces;            // in the order of the file
    std::vector<SceneObject> objects;   // in the order of the file; at least one
    Counts counts;                      // of what was read
    std::size_t lines = 0, points = 0;
    std::size_t concave_faces = 0;
    std::uint32_t first_concave_line = 0;
    std::size_t unbalanced_matrix_calls = 0; // pops without a push, and pushes never popped
    bool is_whole = false;                   // it ends with the footer that every complete file has
    double unit = 1;                         // a unit of the design file, in those of the scene
    Vec3 lowest, highest;                    // the bounds; both zero without vertices

    Vec3 centre() const { return (lowest + highest) * 0.5; }
};

struct Bounds {
    Vec3 lowest, highest;
};

// Both corners are zero without vertices.
Bounds bounds_of(std::span<const Vertex> vertices);

// Reads an output file and plays its statements. What OpenGL would refuse (a vertex outside a block, a pop
// from an empty stack, a coordinate too large) is left out and told to `problems`; a missing glEnd is put in.
//
// A polygon is textured when it holds texture coordinates and a texture is bound and enabled; lines and
// points never are. The normals of a polygon point away from the viewer who sees its corners run
// counter-clockwise; corners without a normal get one from the shape. Concave polygons are cut into triangles
// that fill them; one whose edges cross is a problem.
Scene read_scene(std::string_view text, Problems &problems);
