// Tower: a lattice of horizontal and vertical members, as an OpenGL line block and as scenery commands, with
// lights.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

namespace {

// What the attribute of a point says.
struct Member {
    const Text<4> &attribute;

    bool in_line_block() const { return attribute(1) == 'Y' && horizontal(); }
    bool has_light() const { return attribute(3) == 'Y'; }
    bool horizontal() const { return attribute(4) == 'H'; }
    bool vertical() const { return attribute(4) == 'V'; }
};

Member member(double i)
{
    return {point_attr(i, current_object)};
}

struct Tower {
    double count;
    double width;
    ColourTable colours;
};

// Adds a point to the point list: its coordinate along x, its height and its depth.
void list_point(double i, double x)
{
    add_entry(List1, p0(x), "/", p0(point_y(i, current_object) + cell(58)), "@",
              p0(point_x(i, current_object)));
}

void list_left_end(double i, const Tower &tower)
{
    list_point(i, centred(tower.width).low);
}

void list_right_end(double i, const Tower &tower)
{
    list_point(i, centred(tower.width).high);
}

void list_vertical(double i)
{
    list_point(i, std::abs(static_cast<double>(point_x(i, current_object))));
}

// Adds a member to the code list: its run marker and its colour number.
void list_code(double i)
{
    add_entry(List2, columns(member(i).attribute, 2, 2), point_code(i, current_object).view());
}

struct ListedPoint {
    std::string_view x, height, depth;
};

ListedPoint listed_point(std::size_t entry)
{
    const std::string_view text = List1.text(entry);
    const std::size_t slash = text.find('/'), at = text.find('@');
    return {text.substr(0, slash), text.substr(slash + 1, at - slash - 1), text.substr(at + 1)};
}

void clear_lists()
{
    List1.clear();
    List2.clear();
}

// The colour that is in force in a section: the number of a new one is compared with the number in force,
// which is the replacement where that was used.
class SectionColour {
  public:
    explicit SectionColour(double replacement) : replacement_(replacement) {}

    /// Whether `number` changes the colour.
    bool change_to(double number)
    {
        if (number == number_)
            return false;
        first_ = number_ == unset;
        number_ = colour_number(number, replacement_);
        return true;
    }

    double number() const { return number_; }
    /// Whether the last change set the section's first colour.
    bool first() const { return first_; }

  private:
    static constexpr double unset = -999;

    double replacement_, number_ = unset;
    bool first_ = false;
};

void command_colour_line(const ColourEntry &entry)
{
    write_line("Dbx( 2E 00 ", hex(numeric_value(entry.red())), " EF ", hex(numeric_value(entry.green())), " ",
               hex(numeric_value(entry.blue())), " )  ");
}

void listed_vertex_line(std::size_t entry)
{
    const ListedPoint point = listed_point(entry);
    write_line("      glVertex3d( ", point.x, ", ", point.depth, ", ", point.height, " );");
}

void write_line_block(const Tower &tower)
{
    for (double i = 1; i <= tower.count; ++i) {
        if (!member(i).in_line_block())
            continue;
        list_left_end(i, tower);
        list_right_end(i, tower);
        for (int end = 0; end < 2; ++end)
            List2.add(point_code(i, current_object));
    }
    SectionColour colour(11);
    begin_lines_line();
    for (std::size_t j = 0; j < List2.count(); ++j) {
        if (colour.change_to(numeric_value(List2.text(j)))) {
            table_colour_line(tower.colours(colour.number()));
            if (!colour.first())
                move_line(static_cast<double>(j));
        }
        if (j % 2 == 1) {
            listed_vertex_line(j);
            listed_vertex_line(j - 1);
        }
    }
    gl_end_line();
    clear_lists();
}

// Moves and draws along the listed members. At a colour change where a run starts, the line is drawn to the
// point `back` entries before.
void write_runs(const Tower &tower, int back)
{
    SectionColour colour(1);
    for (std::size_t entry = 0; entry < List2.count(); ++entry) {
        const std::string_view code = List2.text(entry);
        const double j = static_cast<double>(entry);
        const bool changed = colour.change_to(numeric_value(code.substr(1)));
        if (code.front() == 'S' || entry == 0) {
            if (changed) {
                command_colour_line(tower.colours(colour.number()));
                if (!colour.first())
                    draw_line(j - back);
            }
            move_line(j);
        } else {
            if (changed) {
                draw_line(j);
                command_colour_line(tower.colours(colour.number()));
                move_line(j);
            }
            draw_line(j);
        }
    }
}

void write_horizontal_section(const Tower &tower)
{
    const auto k = p00(current_object);
    const auto w = general(tower.width);
    write_line("; Draw Horizontal structures");
    for (double i = 1; i <= tower.count; ++i) {
        if (member(i).horizontal()) {
            list_left_end(i, tower);
            list_code(i);
        }
    }
    if (tower.width > 0) {
        write_line("    Call( :tower", k, " )    ; Horizontal structure 1");
        write_line("    TransformCall( :tower", k, " ", w, " 0 0 0 0 0 0 0 0 )    ; Horizontal structure 2");
        write_line("Jump( :towerH", k, " )");
        write_line(":tower", k);
    }
    write_runs(tower, 0);
    if (tower.width > 0) {
        write_line("Return");
        write_line(":towerH", k);
    }
    clear_lists();
}

void write_vertical_section(const Tower &tower, bool has_lights)
{
    for (double i = 1; i <= tower.count; ++i) {
        if (member(i).vertical()) {
            list_vertical(i);
            list_code(i);
        }
    }
    if (List2.count() < 2)
        return;
    const auto k = p00(current_object);
    write_line("    Call( :towerV", k, " )    ; Vertical structure 1");
    if (tower.width > 0) {
        write_line("    TransformCall( :towerV", k, " 0 0 0 0 0 0 0  90 0 )    ; Vertical structure 2");
        write_line("    TransformCall( :towerV", k, " 0 0 0 0 0 0 0 180 0 )    ; Vertical structure 3");
        write_line("    TransformCall( :towerV", k, " 0 0 0 0 0 0 0 270 0 )    ; Vertical structure 4");
    }
    if (has_lights)
        write_line("Jump( :towerL", k, " )");
    write_line(":towerV", k);
    write_runs(tower, 1);
    if (has_lights) {
        write_line("Return");
        write_line(":towerL", k);
    }
}

void write_light_block(const Tower &tower)
{
    List1.clear();
    for (double i = 1; i <= tower.count; ++i) {
        if (!member(i).has_light())
            continue;
        if (member(i).vertical()) {
            list_vertical(i);
        } else {
            list_left_end(i, tower);
            if (tower.width > 0)
                list_right_end(i, tower);
        }
    }
    const auto k = p00(current_object);
    work_flag = false;
    for (std::size_t j = 0; j < List1.count(); ++j) {
        if (!work_flag) {
            write_line("IfVarAnd( :lights", k, " 28c 4 )");
            command_colour_line(
                tower.colours(colour_number(numeric_value(object_code(2, current_object)), 1)));
            work_flag = true;
        }
        const ListedPoint point = listed_point(j);
        write_line("Dot( ", point.x, " ", point.height, " ", point.depth, " )");
    }
    if (work_flag)
        write_line(":lights", k);
}

} // namespace

void save_tower()
{
    const double count = cell(50);
    if (count < 2)
        return;
    remember_texture("");
    const Tower tower{count, cell(1), load_colour_table()};
    bool has_line_block = false, has_vertical = false, has_horizontal = false, has_lights = false;
    for (double i = 1; i <= count; ++i) {
        const Member m = member(i);
        has_line_block |= m.in_line_block();
        has_vertical |= m.vertical();
        has_horizontal |= m.horizontal();
        has_lights |= m.has_light();
    }
    clear_lists();

    if (const double angle = cell(2); angle != 90)
        write_line("TransformCall( :Vangle", p00(current_object), " ", general(tower.width), " 0 0 0 0 ",
                   spaced(90 - angle), "  0 0 0 )    ; Rotate Vertical entire structure");
    if (has_line_block)
        write_line_block(tower);
    if (has_horizontal)
        write_horizontal_section(tower);
    if (has_vertical)
        write_vertical_section(tower, has_lights);
    if (has_lights)
        write_light_block(tower);
    clear_lists();
}

} // namespace marlogl
