// The command line.
#pragma once

#include "first_look.h"
#include "render.h"

#include <optional>
#include <string>
#include <vector>

struct Options {
    std::string input;
    std::string output;       // empty: a window; "-": standard output
    bool gltf = false;        // the output is no picture but the scene itself
    bool solid_lines = false; // in that scene
    std::array<int, 2> resolution{1000, 600};
    FirstLook look;
    Appearance appearance;
    std::vector<std::string> texture_folders;
    bool watch = false;
    bool render = true;
    bool verbose = false;
};

// What mouse and keys do in the window.
inline constexpr const char *keys_help = R"(  drag         turn; with Shift or the right button: move
  wheel        come closer, at the pointer
  click        tell about this face; twice: look at it
  t f b i      from the top, front, back; isometric
  1 2 3 4 7 9  front, back, right, left, top, isometric
  5 p          with and without perspective
  r Enter      the first view again
  arrows + -   turn, come closer, go away
  g x n        grid, axes, names of objects
  e l          edges, light
  F5           load the file again
  F11          full screen
  F12 Ctrl+S   write a picture beside the file
  ? F1         these keys
  q Esc        leave)";

// Reads the command line. Nothing when the run ends here (help, version, wrong usage): then the message has
// been written and `exit_status` is set to 0 or 2.
std::optional<Options> parse_options(int argc, const char *const *argv, int &exit_status);
