// Puts together the faces of an object.
#pragma once

#include "facts.h"

namespace marlogl::check {

class Faces {
  public:
    /// A face as the manual's tables have it, outside and inside. A slot 0 is none.
    struct Row {
        const char *name;
        int corners;
        int outside, outside_position, inside, inside_position;
    };

    explicit Faces(const Object &object) : object_(object) {}

    double cell(int n) const { return object_.parameters(n); }

    /// A face whose positions follow each other from `first` on.
    void add(int slot, std::string name, int first, int corners, int twin = 0);
    void add(const Row &row);
    template <std::size_t Size> void add(const Row (&rows)[Size])
    {
        for (const Row &row : rows)
            add(row);
    }
    /// `count` faces whose slots and positions follow each other.
    void add_row(int count, const char *name, int slot, int first, int corners);
    /// The cap of an extruded polygon; the attributes of points name the corners of its triangles.
    void add_cap(const Row &cap);

    std::vector<Face> take() { return std::move(faces_); }

  private:
    bool names_corner(std::string_view codes, std::size_t corner) const;

    const Object &object_;
    std::vector<Face> faces_;
};

} // namespace marlogl::check
