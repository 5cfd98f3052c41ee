// Loading: from a file to all that there is to show and to tell.
#pragma once

#include "source.h"
#include "textures.h"

#include <string>
#include <vector>

struct Loaded {
    std::string file; // to which the lines of the problems belong
    Source source;    // without its text
    Scene scene;
    Textures textures;
    Problems problems, texture_problems;
};

// Reads an output file, or converts a design file, and finds its textures, also in the given folders. The
// problems of a converted file name the lines of its design file. Throws std::runtime_error when there is
// nothing to show.
Loaded load(const std::string &path, const std::vector<std::string> &texture_dirs, FilesRead &files_read);

// Throws std::runtime_error when the scene is an output file that lacks its end: somebody still writes it.
void require_whole(const Loaded &loaded);

// The object of the design file for an object of the scene; null when it is not known.
const DesignObject *design_object(const Loaded &loaded, const SceneObject &object);
