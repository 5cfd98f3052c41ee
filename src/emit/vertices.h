// The vertices of an object: recorded by its drawing function, named by point number in its faces and lines.
#pragma once

#include "design/table.h"
#include "emit/output.h"

namespace marlogl {

struct Vertex {
    double x, y, z;
};

/// Point number n (from 0, in the order of recording) lives in row n + 1. Rows are never cleared: those above
/// the count keep the points of earlier objects.
class Vertices {
  public:
    Vertices() { rows_.reserve(rows.size()); }
    Vertices(Vertices &&) = default;
    Vertices &operator=(Vertices &&) = default;

    /// Begins to count from 0 again.
    void restart() { count_ = 0; }

    int count() const { return count_; }

    /// Takes the next row for a point as it is. Errors: index for more than 300 points.
    void append(const Vertex &point)
    {
        Row &row = row_of(++count_);
        row.at = point;
        row.line.forget();
    }

    /// Errors: index when `point` is outside -1 to 299 (rounded after 1 was added: halves go to the even
    /// row). Point -1 is row 0, which is never recorded and lies at the origin.
    template <typename Number> const Vertex &operator()(Number point) { return row_of(point + 1).at; }

    /// Appends the vertex line of a point, which `write` appends. Errors: index, those of `write`.
    template <typename Number, typename Write> void line(Output &out, Number point, Write write)
    {
        Row &row = row_of(point + 1);
        out.lines(row.line, [&] { write(out, row.at); });
    }

    /// Whether the way from point i by j to k, seen in the x-y or the x-z plane, turns clockwise or not at
    /// all. A number that names no row makes the differences that it takes part in 0.
    bool turns_clockwise_xy(double i, double j, double k);
    bool turns_clockwise_xz(double i, double j, double k);

  private:
    Vertex difference(double from, double to);

    struct Row {
        Vertex at{0, 0, 0};
        KeptLines<64> line = {}; // a face or more at each corner writes it
    };
    static constexpr Range rows{0, 300, "vertex table row"};

    template <typename Number> Row &row_of(Number number)
    {
        const std::size_t place = any_place(rows, number);
        return place < known_ ? rows_[place] : new_row(place_in(rows, number));
    }
    [[gnu::noinline]] Row &new_row(std::size_t place)
    {
        rows_.resize(known_ = place + 1);
        return rows_[place];
    }

    std::vector<Row> rows_; // There is room for all, so that they stay where they are.
    std::size_t known_ = 0; // how many there are, which the rows would have to divide for
    int count_ = 0;
};

} // namespace marlogl
