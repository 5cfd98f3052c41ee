// Tells when files that were read should be read again.
#pragma once

#include "files_read.h"

class Watcher {
  public:
    // Starts with files as they were noted: what has changed since counts.
    void watch(FilesRead files);

    // To be called again and again, about ten times a second. True when something differs from what was noted
    // and has stayed so since the last look: by then whoever writes is likely to be done.
    bool finds_change();

    static constexpr double seconds_between_looks = 0.1;

  private:
    FilesRead watched;
    std::vector<Stamp> noted, last_look;
};
