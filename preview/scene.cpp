#include "scene.h"

#include "polygons.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace {

constexpr std::size_t deepest_stack = 32; // the depth that OpenGL promises

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
    Builder(std::string_view from, Problems &to) : text(from), problems(to)
    {
        // As many as the text can hold at most. What stays empty costs nothing, growing would cost twice.
        constexpr std::size_t shortest_vertex = std::string_view("glVertex3d(0,0,0);").size();
        const std::size_t most = text.size() / shortest_vertex + 1;
        scene.vertices.reserve(most + std::min(most, most_crossings));
        scene.corners.reserve(3 * most);
        scene.objects.emplace_back();
    }

    Scene build()
    {
        scene.counts = read_statements(text, problems, [this](const Statement &statement) {
            line = statement.line;
            follow_footer(statement);
            play(statement);
            follow_placement(statement.operation);
        });
        if (in_block) {
            problems.add(line, "glEnd is missing at the end of the file");
            end_block();
        }
        scene.objects.back().end_vertex = scene.vertices.size();
        scene.unbalanced_matrix_calls += stack.size();
        scene.is_whole = footer_lines == 4;
        const Bounds bounds = bounds_of(scene.vertices);
        scene.lowest = bounds.lowest;
        scene.highest = bounds.highest;
        return std::move(scene);
    }

  private:
    // The last four statements of a complete file: glPopMatrix and three that clear the texture matrix.
    void follow_footer(const Statement &statement)
    {
        const auto is = [&](Operation operation, Symbol symbol) {
            return statement.operation == operation && statement.symbol == symbol;
        };
        const bool goes_on = (footer_lines == 1 && is(Operation::matrix_mode, Symbol::texture)) ||
                             (footer_lines == 2 && is(Operation::load_identity, Symbol::other)) ||
                             (footer_lines == 3 && is(Operation::matrix_mode, Symbol::modelview));
        footer_lines = goes_on ? footer_lines + 1 : statement.operation == Operation::pop_matrix;
    }

    // Behind its name, an object is moved at most once and then turned at most once. All that comes later
    // belongs to what is drawn, or takes the placement back. Before the first object there is but the scale.
    void follow_placement(Operation operation)
    {
        const bool goes_on = operation == Operation::object ||
                             (operation == Operation::scale && scene.objects.size() == 1) ||
                             (operation == Operation::translate && placed_by == Operation::object) ||
                             (operation == Operation::rotate &&
                              (placed_by == Operation::object || placed_by == Operation::translate));
        placed_by = goes_on ? operation : Operation::end;
        if (goes_on)
            scene.objects.back().placement = current;
    }

    void play(const Statement &statement)
    {
        const auto [a, b, c, d] = statement.values;
        const bool belongs_into_block = statement.operation >= Operation::end;
        if (in_block && !belongs_into_block) {
            problems.add(line, "glEnd is missing before this statement");
            end_block();
        }
        switch (statement.operation) {
        case Operation::object:
            begin_object(static_cast<int>(std::clamp(a, 0.0, 1e6)), std::string(statement.name));
            break;
        case Operation::matrix_mode:
            in_modelview = statement.symbol == Symbol::modelview;
            break;
        case Operation::load_identity:
            if (in_modelview)
                current = {};
            break;
        case Operation::push_matrix:
            push();
            break;
        case Operation::pop_matrix:
            pop();
            break;
        case Operation::translate:
            multiply(translation({a, b, c}));
            break;
        case Operation::rotate:
            multiply(rotation(a, unit({b, c, d})));
            break;
        case Operation::scale:
            if (const double unit = current.x.x * a; scene.objects.size() == 1 && unit > 1e-6 && unit < 1e6)
                scene.unit = unit;
            multiply(scaling({a, b, c}));
            break;
        case Operation::bind_texture:
            bound_texture = statement.name;
            bound_texture_line = line;
            break;
        case Operation::enable:
        case Operation::disable:
            if (statement.symbol == Symbol::texture_2d)
                texture_enabled = statement.operation == Operation::enable;
            break;
        case Operation::begin:
            begin_block(statement.symbol);
            break;
        case Operation::end:
            if (in_block)
                end_block();
            else
                problems.add(line, "glEnd without glBegin");
            break;
        case Operation::colour:
            vertex.colour = {static_cast<std::uint8_t>(a), static_cast<std::uint8_t>(b),
                             static_cast<std::uint8_t>(c)};
            break;
        case Operation::normal:
            vertex.normal = in_floats(current.normal({a, b, c}));
            break;
        case Operation::tex_coord:
            vertex.s = in_float(a);
            vertex.t = in_float(b);
            has_tex_coords = true;
            break;
        case Operation::vertex:
            add_vertex({a, b, c});
            break;
        }
    }

    void begin_object(int number, std::string name)
    {
        scene.objects.back().end_vertex = scene.vertices.size();
        scene.objects.push_back({number, std::move(name), line, scene.vertices.size(), 0, current});
    }

    void multiply(const Placement &by)
    {
        if (in_modelview)
            current = current * by;
    }

    void push()
    {
        if (!in_modelview)
            return;
        if (stack.size() < deepest_stack)
            stack.push_back(current);
        else
            unbalanced("glPushMatrix: the matrix stack is full");
    }

    void pop()
    {
        if (!in_modelview)
            return;
        if (stack.empty()) {
            unbalanced("glPopMatrix without glPushMatrix");
            return;
        }
        current = stack.back();
        stack.pop_back();
    }

    void unbalanced(const char *what)
    {
        ++scene.unbalanced_matrix_calls;
        problems.add(line, what);
    }

    void begin_block(Symbol symbol)
    {
        if (symbol != Symbol::points && symbol != Symbol::lines && symbol != Symbol::polygon) {
            problems.add(line, "glBegin: only GL_POLYGON, GL_LINES and GL_POINTS can be shown");
            return;
        }
        primitive = symbol == Symbol::points  ? Primitive::points
                    : symbol == Symbol::lines ? Primitive::lines
                                              : Primitive::triangles;
        first = scene.vertices.size();
        vertex.normal = {};
        has_tex_coords = false;
        has_wild_vertices = false;
        in_block = true;
    }

    void add_vertex(Vec3 position)
    {
        if (!in_block) {
            problems.add(line, "glVertex3d outside of glBegin and glEnd");
            return;
        }
        vertex.position = current.point(position);
        if (is_usable(vertex.position))
            scene.vertices.push_back(vertex);
        else
            has_wild_vertices = true;
    }

    void end_block()
    {
        in_block = false;
        if (has_wild_vertices) {
            problems.add(line, "the block that ends here has coordinates too large to be shown");
            scene.vertices.resize(first);
        }
        keep_whole_primitives();
        if (scene.vertices.size() == first)
            return;
        std::uint32_t texture = Run::untextured;
        if (primitive == Primitive::triangles && has_tex_coords && texture_enabled && bound_texture_line > 0)
            texture = number_of_bound_texture();
        if (scene.runs.empty() || scene.runs.back().primitive != primitive ||
            scene.runs.back().texture != texture)
            scene.runs.push_back({primitive, texture, scene.corners.size(), 0});
        add_corners(texture);
        scene.runs.back().count = scene.corners.size() - scene.runs.back().first;
    }

    // OpenGL draws neither a polygon of two corners nor a line with one end.
    void keep_whole_primitives()
    {
        std::size_t count = scene.vertices.size() - first;
        switch (primitive) {
        case Primitive::points:
            scene.points += count;
            break;
        case Primitive::lines:
            count -= count % 2;
            scene.lines += count / 2;
            break;
        case Primitive::triangles:
            count = count < 3 ? 0 : count;
            break;
        }
        scene.vertices.resize(first + count);
    }

    void add_corners(std::uint32_t texture)
    {
        if (primitive != Primitive::triangles) {
            for (std::size_t i = first; i < scene.vertices.size(); ++i)
                scene.corners.push_back(static_cast<std::uint32_t>(i));
            return;
        }
        complete_normals();
        const auto object = static_cast<std::uint32_t>(scene.objects.size() - 1);
        const std::size_t first_corner = scene.corners.size();
        const auto outline_size = static_cast<std::uint32_t>(scene.vertices.size() - first);
        const Shape shape = cutter.cut(scene.vertices, first, scene.corners);
        scene.faces.push_back({line, object, texture, first_corner, scene.corners.size() - first_corner,
                               static_cast<std::uint32_t>(first), outline_size});
        if (shape == Shape::convex)
            return;
        if (++scene.concave_faces == 1)
            scene.first_concave_line = line;
        if (shape == Shape::crossing)
            problems.add(line, "the edges of the polygon that ends here cross each other");
        if (shape == Shape::long_concave)
            problems.add(line,
                         "the concave polygon that ends here is not cut into triangles; it has more than " +
                             std::to_string(most_corners_cut) + " corners");
    }

    // A face is lit from both sides: what counts is the line of its normal. Roads write theirs to the other
    // side than all other faces, and only with their last corner.
    void complete_normals()
    {
        Vertex *const corners = &scene.vertices[first];
        const std::size_t count = scene.vertices.size() - first;
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
        const auto number = static_cast<std::uint32_t>(scene.textures.size());
        const auto [known, is_new] = texture_numbers.try_emplace(bound_texture, number);
        if (is_new)
            scene.textures.push_back({std::string(bound_texture), bound_texture_line});
        return known->second;
    }

    std::string_view text;
    Problems &problems;
    Scene scene;
    PolygonCutter cutter;
    std::unordered_map<std::string_view, std::uint32_t> texture_numbers; // of those that are shown
    std::vector<Placement> stack;
    Placement current;
    Vertex vertex;
    std::string_view bound_texture;
    std::size_t first = 0; // vertex of the block
    Primitive primitive = Primitive::triangles;
    Operation placed_by = Operation::end; // the last statement of an object's placement, while it may go on
    std::uint32_t line = 0;
    std::uint32_t bound_texture_line = 0; // 0: no texture is bound
    int footer_lines = 0;
    bool in_modelview = true;
    bool texture_enabled = false;
    bool in_block = false;
    bool has_tex_coords = false;
    bool has_wild_vertices = false;
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
