#include "watcher.h"

#include <utility>

void Watcher::watch(FilesRead files)
{
    watched = std::move(files);
    noted = last_look = watched.noted();
}

bool Watcher::finds_change()
{
    std::vector<Stamp> look = watched.now();
    const bool agrees = look == last_look, differs = look != noted;
    last_look = std::move(look);
    return agrees && differs;
}
