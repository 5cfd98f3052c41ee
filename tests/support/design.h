// Design files for tests, and their conversion in memory.
#pragma once

#include "base/run_error.h"
#include "host/memory_files.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace marlogl {

/// What a run finds: the run configuration and the other files, by their paths ("program" is the program's
/// folder).
struct Given {
    std::string design_path = "scene.mr2";
    std::string design;
    std::optional<std::string> configuration = {}; // none: the usual one for design_path
    std::optional<std::string> colour_table = std::string();
};

/// The files that a run finds.
MemoryFiles files_of(const Given &given);

/// A design file of a version, as text, and a colour table of 60 colours.
Given given(int version, const std::string &design);

/// A design file, written line by line as an author would.
class Design {
  public:
    explicit Design(int version = 2) : version_(version) {}

    Design &line(const std::string &text);
    /// Opens the next object.
    Design &object(int type, const std::string &name = "");
    /// Parameters by cell.
    Design &params(std::initializer_list<std::pair<int, double>> cells);
    /// Makes the faces of slots `first` to `last` textured by one bitmap.
    Design &textured(int first, int last, const std::string &name);
    /// A point as it stands in the file: for some types 5000 is to be added by the caller.
    Design &point(int number, int x, int y, const std::string &code = "", const std::string &attribute = "");
    Design &at(double x, double y, double angle = 0);

    int version() const { return version_; }
    const std::string &text() const { return text_; }

  private:
    int version_;
    std::string text_;
};

/// What a conversion left.
struct Converted {
    std::optional<RunError> error;
    bool has_output = false;
    std::string output;
    std::optional<std::string> point_file;

    /// The lines of the output without their ends.
    std::vector<std::string> lines() const;
    /// The lines between header (with the comment lines of the first object) and footer.
    std::vector<std::string> body() const;
};

/// Converts, and checks what holds for every input: lines end in CR LF, no number is
/// negative zero, nan or inf, a begin is ended before the next, and every placement is undone.
Converted convert(const Design &design);
Converted convert(const Given &given);
Converted convert(MemoryFiles &files);

/// A colour table of `lines` lines, entry i being the colour (i, i, i).
std::string colour_table(int lines = 60);

/// The polygons of an output: their corners in the order of writing.
struct Point3 {
    double x, y, z;
    friend bool operator==(const Point3 &, const Point3 &) = default;
};
using Polygon = std::vector<Point3>;
std::vector<Polygon> polygons(const Converted &converted);

} // namespace marlogl
