// The scene: statements played through a matrix stack, as blocks of vertices in world coordinates.
#pragma once

#include "geometry.h"
#include "statements.h"

// Coordinates beyond this are left out: they would not survive the floats of OpenGL.
inline constexpr double largest_coordinate = 1e15;

struct Vertex {
    Vec3 position;
    Vec3 normal; // of length 1, or zero where the face has no area
    double s = 0, t = 0;
    std::array<std::uint8_t, 3> colour{255, 255, 255};
};

enum class Primitive : std::uint8_t { points, lines, polygon };

// What stood between one glBegin and its glEnd.
struct Block {
    static constexpr std::uint32_t untextured = 0xffffffff;

    Primitive primitive = Primitive::polygon;
    std::uint32_t texture = untextured; // index into Scene::textures
    std::size_t first = 0, count = 0;   // a range of Scene::vertices
};

struct Scene {
    std::vector<Vertex> vertices;
    std::vector<Block> blocks;         // in the order of the file
    std::vector<std::string> textures; // every name that a block shows, once
    std::size_t objects = 0, faces = 0, lines = 0, points = 0;
    std::size_t skipped_lines = 0;
    std::size_t unbalanced_matrix_calls = 0; // pops without a push, and pushes never popped
    Vec3 lowest, highest;                    // the bounds; both zero without vertices

    Vec3 centre() const { return (lowest + highest) * 0.5; }
};

// Plays the statements. What OpenGL would refuse (a vertex outside a block, a pop from an empty stack, a
// coordinate too large) is left out and told to `problems`; a missing glEnd is put in.
//
// A polygon is textured when it holds texture coordinates and a texture is bound and enabled; lines and
// points never are. The normals of a polygon point away from the viewer who sees its corners run
// counter-clockwise; corners without a normal get one from the shape.
Scene build_scene(const Statements &statements, Problems &problems);
