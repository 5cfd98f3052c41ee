// A window in which one walks through the scene.
#pragma once

#include "viewer.h"

// Shows the scene until the user leaves. Throws std::runtime_error without a display.
// With options.watch it reads the files again when they have changed since they were noted.
void show_window(const Options &options, Loaded loaded, FilesRead files_read);
