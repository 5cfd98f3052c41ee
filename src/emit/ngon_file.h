// The temporary point file: the corners of an n-gon on their way from a drawing function to the polygon's
// lines. It is part of what a conversion leaves behind: an n-gon that is not drawn, for it has no texture or
// too many corners, stays on the disk for its author to look at. All the rest happens in memory.
#pragma once

#include "design/table.h"
#include "host/file_system.h"

#include <span>
#include <utility>

namespace marlogl {

/// A corner of an n-gon: its point number and its texture position in pixels.
struct Corner {
    double point, u, v;
};

/// How the lines of the file are laid out, to the blank.
enum class NgonLayout {
    cap,   ///< of extruded polygons and wheels
    gable, ///< of profiled-roof houses
};

/// The corners that were written last. While the conversion lasts they are kept in memory; the file holds
/// them afterwards, unless they were read: then it need not even come into being.
class NgonFile {
  public:
    static constexpr Range corners{1, 20, "corner of the polygon"};

    NgonFile(FileSystem &files, std::string path) : files_(files), path_(std::move(path)) {}
    /// Unless it was settled, a conversion has failed: settles it as far as that can be done.
    ~NgonFile();

    /// Empties the file, which the first call creates, unless that can wait. Errors: missing_file,
    /// input_output.
    void open(NgonLayout layout);

    /// Writes a corner. The point number is rounded to a whole one, halves away from zero, as its text shows
    /// it.
    void add(const Corner &corner);

    /// Reads the corners that were written since open, and deletes the file; they stay until open is called
    /// again. Errors: index for more than 20 corners; the file then stays as it is.
    std::span<const Corner> read();

    /// Brings the disk up to date. Errors: input_output.
    void settle();

  private:
    FileSystem &files_;
    std::string path_;
    bool is_created_ = false; // and empty
    bool can_wait_ = false;   // until the file has to stay
    NgonLayout layout_ = NgonLayout::cap;
    std::vector<Corner> written_;
    bool present_ = false; // whether a program that looked would find the file
};

} // namespace marlogl
