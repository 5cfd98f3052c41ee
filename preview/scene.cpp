#include "scene.h"

#include "matrix_stack.h"
#include "polygons.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace {

bool is_usable(Vec3 point)
{
    const auto fits = [](double value) { return std::abs(value) <= largest_coordinate; }; // false for NaN
    return fits(point.x) && fits(point.y) && fits(point.z);
}

Vec3 in_doubles(const std::array<float, 3> &v)
{
    return {v[0], v[1], v[2]};
}

float in_float(double value)
{
    constexpr double most = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -most, most));
}

// In this output the normal points away from a viewer who sees the corners run counter-clockwise.
Vec3 normal_of_corners(const Vertex *corners, std::size_t count)
{
    Vec3 towards_viewer;
    for (std::size_t i = 1; i + 1 < count; ++i)
        towards_viewer = towards_viewer + cross(corners[i].position - corners[0].position,
                                                corners[i + 1].position - corners[0].position);
    return unit(towards_viewer) * -1;
}

class Builder {
  public:
    Builder(std::string_view from, Problems &to) : text_(from), problems_(to)
    {
        // As many as the text can hold at most. What stays empty costs nothing, growing would cost twice.
        constexpr std::size_t shortest_vertex = std::string_view("glVertex3d(0,0,0);").size();
        const std::size_t most = text_.size() / shortest_vertex + 1;
        scene_.vertices.reserve(most + std::min(most, most_crossings));
        scene_.corners.reserve(3 * most);
        scene_.objects.emplace_back();
    }

    Scene build()
    {
        scene_.counts = read_statements(text_, problems_, [this](const Statement &statement) {
            line_ = statement.line;
            follow_footer(statement);
            play(statement);
            follow_placement(statement.operation);
        });
        if (in_block_) {
            problems_.add(line_, "glEnd is missing at the end of the file");
            end_block();
        }
        scene_.objects.back().end_vertex = scene_.vertices.size();
        scene_.unbalanced_matrix_calls += matrices_.depth();
        scene_.is_whole = footer_lines_ == 4;
        const Bounds bounds = bounds_of(scene_.vertices);
        scene_.lowest = bounds.lowest;
        scene_.highest = bounds.highest;
        return std::move(scene_);
    }

  private:
    // The last four statements of a complete file: glPopMatrix and three that clear the texture matrix.
    void follow_footer(const Statement &statement)
    {
        const auto is = [&](Operation operation, Symbol symbol) {
            return statement.operation == operation && statement.symbol == symbol;
        };
        const bool goes_on = (footer_lines_ == 1 && is(Operation::matrix_mode, Symbol::texture)) ||
                             (footer_lines_ == 2 && is(Operation::load_identity, Symbol::other)) ||
                             (footer_lines_ == 3 && is(Operation::matrix_mode, Symbol::modelview));
        footer_lines_ = goes_on ? footer_lines_ + 1 : statement.operation == Operation::pop_matrix;
    }

    // Behind its name, an object is moved at most once and then turned at most once. All that comes later
    // belongs to what is drawn, or takes the placement back. Before the first object there is but the scale.
    void follow_placement(Operation operation)
    {
        const bool goes_on = operation == Operation::object ||
                             (operation == Operation::scale && scene_.objects.size() == 1) ||
                             (operation == Operation::translate && placed_by_ == Operation::object) ||
                             (operation == Operation::rotate &&
                              (placed_by_ == Operation::object || placed_by_ == Operation::translate));
        placed_by_ = goes_on ? operation : Operation::end;
        if (goes_on)
            scene_.objects.back().placement = matrices_.current();
    }

    void play(const Statement &statement)
    {
        const auto [a, b, c, d] = statement.values;
        const bool belongs_into_block = statement.operation >= Operation::end;
        if (in_block_ && !belongs_into_block) {
            problems_.add(line_, "glEnd is missing before this statement");
            end_block();
        }
        switch (statement.operation) {
        case Operation::object:
            begin_object(static_cast<int>(std::clamp(a, 0.0, 1e6)), std::string(statement.name));
            break;
        case Operation::matrix_mode:
        case Operation::load_identity:
        case Operation::push_matrix:
        case Operation::pop_matrix:
        case Operation::translate:
        case Operation::rotate:
            place(statement);
            break;
        case Operation::scale:
            if (const double unit = matrices_.current().x.x * a;
                scene_.objects.size() == 1 && unit > 1e-6 && unit < 1e6)
                scene_.unit = unit;
            place(statement);
            break;
        case Operation::bind_texture:
            bound_texture_ = statement.name;
            bound_texture_line_ = line_;
            break;
        case Operation::enable:
        case Operation::disable:
            if (statement.symbol == Symbol::texture_2d)
                texture_enabled_ = statement.operation == Operation::enable;
            break;
        case Operation::begin:
            begin_block(statement.symbol);
            break;
        case Operation::end:
            if (in_block_)
                end_block();
            else
                problems_.add(line_, "glEnd without glBegin");
            break;
        case Operation::colour:
            vertex_.colour = {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b),
                              static_cast<std::uint8_t>(c)};
            break;
        case Operation::normal:
            vertex_.normal = in_floats(matrices_.current().normal({a, b, c}));
            break;
        case Operation::tex_coord:
            vertex_.s = in_float(a);
            vertex_.t = in_float(b);
            has_tex_coords_ = true;
            break;
        case Operation::vertex:
            add_vertex({a, b, c});
            break;
        }
    }

    void begin_object(int number, std::string name)
    {
        scene_.objects.back().end_vertex = scene_.vertices.size();
        scene_.objects.push_back(
            {number, std::move(name), line_, scene_.vertices.size(), 0, matrices_.current()});
    }

    void place(const Statement &statement)
    {
        if (const char *const refusal = matrices_.play(statement)) {
            ++scene_.unbalanced_matrix_calls;
            problems_.add(line_, refusal);
        }
    }

    void begin_block(Symbol symbol)
    {
        if (symbol != Symbol::points && symbol != Symbol::lines && symbol != Symbol::polygon) {
            problems_.add(line_, "glBegin: only GL_POLYGON, GL_LINES and GL_POINTS can be shown");
            return;
        }
        primitive_ = symbol == Symbol::points  ? Primitive::points
                     : symbol == Symbol::lines ? Primitive::lines
                                               : Primitive::triangles;
        first_ = scene_.vertices.size();
        vertex_.normal = {};
        has_tex_coords_ = false;
        has_wild_vertices_ = false;
        in_block_ = true;
    }

    void add_vertex(Vec3 position)
    {
        if (!in_block_) {
            problems_.add(line_, "glVertex3d outside of glBegin and glEnd");
            return;
        }
        vertex_.position = matrices_.current().point(position);
        if (is_usable(vertex_.position))
            scene_.vertices.push_back(vertex_);
        else
            has_wild_vertices_ = true;
    }

    void end_block()
    {
        in_block_ = false;
        if (has_wild_vertices_) {
            problems_.add(line_, "the block that ends here has coordinates too large to be shown");
            scene_.vertices.resize(first_);
        }
        keep_whole_primitives();
        if (scene_.vertices.size() == first_)
            return;
        std::uint32_t texture = Run::untextured;
        if (primitive_ == Primitive::triangles && has_tex_coords_ && texture_enabled_ &&
            bound_texture_line_ > 0)
            texture = number_of_bound_texture();
        if (scene_.runs.empty() || scene_.runs.back().primitive != primitive_ ||
            scene_.runs.back().texture != texture)
            scene_.runs.push_back({primitive_, texture, scene_.corners.size(), 0});
        add_corners(texture);
        scene_.runs.back().count = scene_.corners.size() - scene_.runs.back().first;
    }

    // OpenGL draws neither a polygon of two corners nor a line with one end.
    void keep_whole_primitives()
    {
        std::size_t count = scene_.vertices.size() - first_;
        switch (primitive_) {
        case Primitive::points:
            scene_.points += count;
            break;
        case Primitive::lines:
            count -= count % 2;
            scene_.lines += count / 2;
            break;
        case Primitive::triangles:
            count = count < 3 ? 0 : count;
            break;
        }
        scene_.vertices.resize(first_ + count);
    }

    void add_corners(std::uint32_t texture)
    {
        if (primitive_ != Primitive::triangles) {
            for (std::size_t i = first_; i < scene_.vertices.size(); ++i)
                scene_.corners.push_back(static_cast<std::uint32_t>(i));
            return;
        }
        complete_normals();
        const auto object = static_cast<std::uint32_t>(scene_.objects.size() - 1);
        const std::size_t first_corner = scene_.corners.size();
        const auto outline_size = static_cast<std::uint32_t>(scene_.vertices.size() - first_);
        const Shape shape = cutter_.cut(scene_.vertices, first_, scene_.corners);
        scene_.faces.push_back({line_, object, texture, first_corner, scene_.corners.size() - first_corner,
                                static_cast<std::uint32_t>(first_), outline_size});
        if (shape == Shape::convex)
            return;
        if (++scene_.concave_faces == 1)
            scene_.first_concave_line = line_;
        if (shape == Shape::crossing)
            problems_.add(line_, "the edges of the polygon that ends here cross each other");
        if (shape == Shape::long_concave)
            problems_.add(line_,
                          "the concave polygon that ends here is not cut into triangles; it has more than " +
                              std::to_string(most_corners_cut) + " corners");
    }

    // A face is lit from both sides: what counts is the line of its normal. Roads write theirs to the other
    // side than all other faces, and only with their last corner.
    void complete_normals()
    {
        Vertex *const corners = &scene_.vertices[first_];
        const std::size_t count = scene_.vertices.size() - first_;
        const Vec3 own = normal_of_corners(corners, count);
        for (std::size_t i = 0; i < count; ++i) {
            const Vec3 normal = in_doubles(corners[i].normal);
            if (length(normal) == 0)
                corners[i].normal = in_floats(own);
            else if (dot(normal, own) < 0)
                corners[i].normal = in_floats(normal * -1);
        }
    }

    std::uint32_t number_of_bound_texture()
    {
        const auto number = static_cast<std::uint32_t>(scene_.textures.size());
        const auto [known, is_new] = texture_numbers_.try_emplace(bound_texture_, number);
        if (is_new)
            scene_.textures.push_back({std::string(bound_texture_), bound_texture_line_});
        return known->second;
    }

    std::string_view text_;
    Problems &problems_;
    Scene scene_;
    PolygonCutter cutter_;
    std::unordered_map<std::string_view, std::uint32_t> texture_numbers_; // of those that are shown
    MatrixStack matrices_;
    Vertex vertex_;
    std::string_view bound_texture_;
    std::size_t first_ = 0; // vertex of the block
    Primitive primitive_ = Primitive::triangles;
    Operation placed_by_ = Operation::end; // the last statement of an object's placement, while it may go on
    std::uint32_t line_ = 0;
    std::uint32_t bound_texture_line_ = 0; // 0: no texture is bound
    int footer_lines_ = 0;
    bool texture_enabled_ = false;
    bool in_block_ = false;
    bool has_tex_coords_ = false;
    bool has_wild_vertices_ = false;
};

} // namespace

Bounds bounds_of(std::span<const Vertex> vertices)
{
    if (vertices.empty())
        return {};
    Bounds bounds{vertices.front().position, vertices.front().position};
    for (const Vertex &vertex : vertices)
        for (const auto axis : {&Vec3::x, &Vec3::y, &Vec3::z}) {
            bounds.lowest.*axis = std::min(bounds.lowest.*axis, vertex.position.*axis);
            bounds.highest.*axis = std::max(bounds.highest.*axis, vertex.position.*axis);
        }
    return bounds;
}

Scene read_scene(std::string_view text, Problems &problems)
{
    return Builder(text, problems).build();
}
