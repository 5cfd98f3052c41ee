// What the user is told about a file.
#pragma once

#include "scene.h"

#include <ostream>

// One warning for each problem and each missing texture.
void write_warnings(std::ostream &to, const std::string &file, const Problems &problems,
                    const std::vector<std::string> &missing_textures);

// The table of --verbose.
void write_report(std::ostream &to, const Scene &scene, const Problems &problems,
                  const std::vector<std::string> &missing_textures);
