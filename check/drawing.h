// Draws objects as the converter does, one after the other, and looks at what comes out.
#pragma once

#include "checked_files.h"
#include "seen.h"

#include "design/configuration.h"
#include "emit/pen.h"

#include <utility>

namespace marlogl::check {

class Drawings {
  public:
    /// Without a colour table all colours are there.
    Drawings(CheckedFiles &files, const Scene &scene, int version, const std::string &colour_table);

    /// Draws an object whose type is not 0; `fault` becomes what has stopped it.
    Drawn draw(int number, std::string &fault);

    /// Why the colour table can't be read, once an object has needed it; the next call gives nothing.
    std::string take_table_fault() { return std::exchange(table_fault_, {}); }

    /// The colour table; null when it is not known.
    const ColourTable *colours() const { return table_is_real_ && table_ ? &*table_ : nullptr; }

  private:
    std::string draw_once(int number, std::string &text);

    CheckedFiles &files_;
    const Scene &scene_;
    int version_;
    Configuration configuration_;
    std::string table_path_, table_fault_;
    bool table_is_real_;
    // What outlives an object and can stop the next one.
    Vertices vertices_;
    std::optional<ColourTable> table_;
    bool textures_before_ = false;
};

} // namespace marlogl::check
