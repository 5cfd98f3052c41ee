// Tower: a lattice of horizontal and vertical members, as an OpenGL line block and as scenery commands, with
// lights.
#include "generators/figures.h"

namespace marlogl {

namespace {

struct Tower {
    Pen &pen;
    double width;
    Span across = centred(width);
    const ColourTable &colours = pen.to.colours();
};

// A point of the design file is a member of the lattice, one end of it in the middle of the tower's width.
struct Member {
    const Point &point;
    const PointText &text;

    bool in_line_block() const { return text.attribute(1) == 'Y' && horizontal(); }
    bool starts_run() const { return text.attribute(2) == 'S'; }
    bool has_light() const { return text.attribute(3) == 'Y'; }
    bool horizontal() const { return text.attribute(4) == 'H'; }
    bool vertical() const { return text.attribute(4) == 'V'; }
    double colour() const { return numeric_value(text.colour); }
};

using Members = std::vector<Member>;

// An end of a member.
struct End {
    double x, height, depth;
};

End end_at(const Tower &tower, const Member &member, double x)
{
    return {x, member.point.y + tower.pen.cell(58), static_cast<double>(member.point.x)};
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

void command_colour_line(Output &out, const TableColour &colour)
{
    out.line("Dbx( 2E 00 ", hex(numeric_value(colour.red)), " EF ", hex(numeric_value(colour.green)), " ",
             hex(numeric_value(colour.blue)), " )  ");
}

void draw_line_block(const Tower &tower, const Members &members)
{
    Output &out = tower.pen.out();
    SectionColour colour(11);
    out.line(begin_lines);
    int end = 0; // both ends of a member count
    for (const Member &member : members) {
        if (!member.in_line_block())
            continue;
        // A number that is replaced differs from the one in force, also at the second end.
        for (int i = 0; i < 2; ++i, ++end)
            if (colour.change_to(member.colour())) {
                colour_line(out, tower.colours(colour.number()));
                if (!colour.first())
                    move_line(out, end);
            }
        for (const double x : {tower.across.high, tower.across.low}) {
            const End at = end_at(tower, member, x);
            vertex_line(out, at.x, at.depth, at.height);
        }
    }
    out.line(end_block);
}

// Moves and draws along members. At a colour change where a run starts, the line is drawn to the point `back`
// members before.
void write_runs(const Tower &tower, const Members &members, int back)
{
    Output &out = tower.pen.out();
    SectionColour colour(1);
    for (int j = 0; const Member &member : members) {
        const bool changed = colour.change_to(member.colour());
        if (member.starts_run() || j == 0) {
            if (changed) {
                command_colour_line(out, tower.colours(colour.number()));
                if (!colour.first())
                    draw_line(out, j - back);
            }
            move_line(out, j);
        } else {
            if (changed) {
                draw_line(out, j);
                command_colour_line(out, tower.colours(colour.number()));
                move_line(out, j);
            }
            draw_line(out, j);
        }
        ++j;
    }
}

void write_horizontal_section(const Tower &tower, const Members &members)
{
    Output &out = tower.pen.out();
    const auto k = p00(tower.pen.number);
    const auto w = general(tower.width);
    out.line("; Draw Horizontal structures");
    if (tower.width > 0) {
        out.line("    Call( :tower", k, " )    ; Horizontal structure 1");
        out.line("    TransformCall( :tower", k, " ", w, " 0 0 0 0 0 0 0 0 )    ; Horizontal structure 2");
        out.line("Jump( :towerH", k, " )");
        out.line(":tower", k);
    }
    write_runs(tower, members, 0);
    if (tower.width > 0) {
        out.line("Return");
        out.line(":towerH", k);
    }
}

void write_vertical_section(const Tower &tower, const Members &members, bool has_lights)
{
    if (members.size() < 2)
        return;
    Output &out = tower.pen.out();
    const auto k = p00(tower.pen.number);
    out.line("    Call( :towerV", k, " )    ; Vertical structure 1");
    if (tower.width > 0) {
        out.line("    TransformCall( :towerV", k, " 0 0 0 0 0 0 0  90 0 )    ; Vertical structure 2");
        out.line("    TransformCall( :towerV", k, " 0 0 0 0 0 0 0 180 0 )    ; Vertical structure 3");
        out.line("    TransformCall( :towerV", k, " 0 0 0 0 0 0 0 270 0 )    ; Vertical structure 4");
    }
    if (has_lights)
        out.line("Jump( :towerL", k, " )");
    out.line(":towerV", k);
    write_runs(tower, members, 1);
    if (has_lights) {
        out.line("Return");
        out.line(":towerL", k);
    }
}

void write_light_block(const Tower &tower, const Members &members)
{
    Output &out = tower.pen.out();
    const auto k = p00(tower.pen.number);
    const auto light = [&](const End &at) {
        out.line("Dot( ", p0(at.x), " ", p0(at.height), " ", p0(at.depth), " )");
    };
    out.line("IfVarAnd( :lights", k, " 28c 4 )");
    command_colour_line(out, tower.colours(colour_number(numeric_value(tower.pen.object.codes(2)), 1)));
    for (const Member &member : members) {
        if (!member.has_light())
            continue;
        if (member.vertical()) {
            light(end_at(tower, member, std::abs(static_cast<double>(member.point.x))));
        } else {
            light(end_at(tower, member, tower.across.low));
            if (tower.width > 0)
                light(end_at(tower, member, tower.across.high));
        }
    }
    out.line(":lights", k);
}

} // namespace

void draw_tower(Pen &pen)
{
    const double count = pen.cell(point_count_cell);
    if (count < 2)
        return;
    const Tower tower{pen, pen.cell(1)};
    Members members, horizontal, vertical;
    bool has_line_block = false, has_lights = false;
    for (double i = 1; i <= count; ++i) {
        const Member member{pen.object.points(i), pen.object.point_texts(i)};
        members.push_back(member);
        if (member.horizontal())
            horizontal.push_back(member);
        if (member.vertical())
            vertical.push_back(member);
        has_line_block |= member.in_line_block();
        has_lights |= member.has_light();
    }

    if (const double angle = pen.cell(2); angle != 90)
        pen.out().line("TransformCall( :Vangle", p00(pen.number), " ", general(tower.width), " 0 0 0 0 ",
                       spaced(90 - angle), "  0 0 0 )    ; Rotate Vertical entire structure");
    if (has_line_block)
        draw_line_block(tower, members);
    if (!horizontal.empty())
        write_horizontal_section(tower, horizontal);
    write_vertical_section(tower, vertical, has_lights);
    if (has_lights)
        write_light_block(tower, members);
}

} // namespace marlogl
