// The reader: from the text of an output file to OpenGL statements. It knows no OpenGL and
// keeps no state between statements; what they mean together is the business of scene.h.
#pragma once

#include "problems.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>

enum class Operation : std::uint8_t {
    object, // announced by comments: its number and its name
    matrix_mode,
    load_identity,
    push_matrix,
    pop_matrix,
    translate,
    rotate,
    scale,
    bind_texture,
    enable,
    disable,
    begin,
    end, // this and all below stand between glBegin and glEnd
    colour,
    normal,
    tex_coord,
    vertex
};

enum class Symbol : std::uint8_t {
    modelview,
    texture,
    projection,
    texture_2d,
    points,
    lines,
    polygon,
    other
};

struct Statement {
    Operation operation;
    Symbol symbol = Symbol::other;            // of matrix_mode, enable, disable, begin
    std::uint32_t line = 0;                   // counted from 1
    std::string_view name = {};               // of bind_texture and object, a piece of the text
    std::array<double, 4> values{0, 0, 0, 0}; // as many as the statement has; the number of an object
};

struct Counts {
    std::size_t statements = 0;
    std::size_t skipped_lines = 0; // comments and scenery commands
    std::size_t objects = 0;       // comments that announce an object
};

// Reads a whole output file and hands each statement on at once, since a list of them would be several times
// as large as the text. Line ends are LF or CR LF; several statements may share a line. Any bytes are
// accepted: a statement that cannot be read is left out and told to `problems`.
Counts read_statements(std::string_view text, Problems &problems,
                       const std::function<void(const Statement &)> &take);
