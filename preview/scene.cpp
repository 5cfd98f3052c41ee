#include "scene.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::size_t deepest_stack = 32; // the depth that OpenGL promises

bool is_usable(Vec3 point)
{
    const auto fits = [](double value) { return std::abs(value) <= largest_coordinate; }; // false for NaN
    return fits(point.x) && fits(point.y) && fits(point.z);
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
    Builder(const Statements &from, Problems &to) : statements(from), problems(to)
    {
        scene.objects = from.objects;
        scene.skipped_lines = from.skipped_lines;
        texture_numbers.resize(from.textures.size(), Block::untextured);
    }

    Scene build()
    {
        for (const Statement &statement : statements.list) {
            line = statement.line;
            play(statement);
        }
        if (in_block) {
            problems.add(line, "glEnd is missing at the end of the file");
            end_block();
        }
        scene.unbalanced_matrix_calls += stack.size();
        measure();
        return std::move(scene);
    }

  private:
    void play(const Statement &statement)
    {
        const auto [a, b, c, d] = statement.values;
        const bool belongs_into_block = statement.operation >= Operation::end;
        if (in_block && !belongs_into_block) {
            problems.add(line, "glEnd is missing before this statement");
            end_block();
        }
        switch (statement.operation) {
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
            multiply(scaling({a, b, c}));
            break;
        case Operation::bind_texture:
            bound_texture = statement.texture;
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
            vertex.normal = current.normal({a, b, c});
            break;
        case Operation::tex_coord:
            vertex.s = a;
            vertex.t = b;
            has_tex_coords = true;
            break;
        case Operation::vertex:
            add_vertex({a, b, c});
            break;
        }
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
        block = {};
        block.primitive = symbol == Symbol::points  ? Primitive::points
                          : symbol == Symbol::lines ? Primitive::lines
                                                    : Primitive::polygon;
        block.first = scene.vertices.size();
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
        block.count = scene.vertices.size() - block.first;
        if (has_wild_vertices) {
            problems.add(line, "the block that ends here has coordinates too large to be shown");
            block.count = 0;
        }
        keep_whole_primitives();
        scene.vertices.resize(block.first + block.count);
        if (block.count == 0)
            return;
        if (block.primitive == Primitive::polygon) {
            complete_normals();
            if (has_tex_coords && texture_enabled && bound_texture != Block::untextured)
                block.texture = texture_number(bound_texture);
        }
        scene.blocks.push_back(block);
    }

    // OpenGL draws neither a polygon of two corners nor a line with one end.
    void keep_whole_primitives()
    {
        switch (block.primitive) {
        case Primitive::points:
            scene.points += block.count;
            break;
        case Primitive::lines:
            block.count -= block.count % 2;
            scene.lines += block.count / 2;
            break;
        case Primitive::polygon:
            block.count = block.count < 3 ? 0 : block.count;
            scene.faces += block.count > 0;
            break;
        }
    }

    // A face is lit from both sides: what counts is the line of its normal. Roads write theirs to the other
    // side than all other faces, and only with their last corner.
    void complete_normals()
    {
        Vertex *const corners = &scene.vertices[block.first];
        const Vec3 own = normal_of_corners(corners, block.count);
        for (std::size_t i = 0; i < block.count; ++i) {
            Vec3 &normal = corners[i].normal;
            if (length(normal) == 0)
                normal = own;
            else if (dot(normal, own) < 0)
                normal = normal * -1;
        }
    }

    std::uint32_t texture_number(std::uint32_t name)
    {
        std::uint32_t &number = texture_numbers[name];
        if (number == Block::untextured) {
            number = static_cast<std::uint32_t>(scene.textures.size());
            scene.textures.push_back(statements.textures[name]);
        }
        return number;
    }

    void measure()
    {
        if (scene.vertices.empty())
            return;
        scene.lowest = scene.highest = scene.vertices.front().position;
        for (const Vertex &each : scene.vertices) {
            const Vec3 p = each.position;
            scene.lowest = {std::min(scene.lowest.x, p.x), std::min(scene.lowest.y, p.y),
                            std::min(scene.lowest.z, p.z)};
            scene.highest = {std::max(scene.highest.x, p.x), std::max(scene.highest.y, p.y),
                             std::max(scene.highest.z, p.z)};
        }
    }

    const Statements &statements;
    Problems &problems;
    Scene scene;
    std::vector<std::uint32_t> texture_numbers; // from names of the file to names that are shown
    std::vector<Placement> stack;
    Placement current;
    Block block;
    Vertex vertex;
    std::uint32_t line = 0;
    std::uint32_t bound_texture = Block::untextured;
    bool in_modelview = true;
    bool texture_enabled = false;
    bool in_block = false;
    bool has_tex_coords = false;
    bool has_wild_vertices = false;
};

} // namespace

Scene build_scene(const Statements &statements, Problems &problems)
{
    return Builder(statements, problems).build();
}
