#include "drawing.h"

#include "base/run_error.h"

namespace marlogl::check {

namespace {

ColourTable white_table()
{
    ColourTable table;
    table.fill({"255", "255", "255"});
    return table;
}

// The message without the place in front of it: the report says which object it is.
std::string without_place(std::string_view message, const std::string &name)
{
    const std::size_t after_name = message.find(name);
    const std::size_t place = message.find("): ", after_name == message.npos ? 0 : after_name + name.size());
    return std::string(place == message.npos ? message : message.substr(place + 3));
}

} // namespace

Drawings::Drawings(CheckedFiles &files, const Scene &scene, int version, const std::string &colour_table)
    : files_(files), scene_(scene), version_(version), table_path_(colour_table),
      table_is_real_(!colour_table.empty())
{
    if (!table_is_real_)
        table_ = white_table();
}

// Returns what has stopped the drawing.
std::string Drawings::draw_once(int number, std::string &text)
{
    std::string fault;
    files_.written = &text;
    {
        Drawing drawing{files_, configuration_, table_path_, Output(files_, std::string(CheckedFiles::drawn)),
                        NgonFile(files_, "points")};
        drawing.vertices = std::move(vertices_);
        drawing.colour_table = table_;
        try {
            draw_object(drawing, scene_, number, version_);
        } catch (const RunError &error) {
            fault = error.what();
            if (!drawing.colour_table &&
                (error.fault == Fault::missing_file || error.fault == Fault::past_end ||
                 error.fault == Fault::input_output))
                table_fault_ = without_place(
                    fault, marlogl::quoted(scene_.objects[static_cast<std::size_t>(number - 1)].name));
        }
        vertices_ = std::move(drawing.vertices);
        table_ = drawing.colour_table;
    }
    files_.written = nullptr;
    return fault;
}

Drawn Drawings::draw(int number, std::string &fault)
{
    std::string text;
    fault = draw_once(number, text);
    if (!table_fault_.empty() && table_is_real_) {
        table_is_real_ = false;
        table_ = white_table();
        text.clear();
        fault = draw_once(number, text);
    }
    Drawn drawn;
    drawn.stopped = !fault.empty();
    fault = without_place(fault, marlogl::quoted(scene_.objects[static_cast<std::size_t>(number - 1)].name));
    // The first two lines are comments, and hold the name.
    const std::size_t body = text.find("\r\n", text.find("\r\n") + 2);
    const auto holds = [&](const char *statement) { return text.find(statement, body) != text.npos; };
    drawn.textures = holds("\r\nBindTexture( ");
    drawn.anything =
        holds("      glVertex3d( ") || holds("\r\nDbx( ") || holds("\r\nDot( ") || holds("Call( :");
    drawn.lines =
        drawn.anything && (holds("glBegin( GL_LINES )") || holds("glBegin( GL_POINTS )") || !drawn.textures);
    drawn.after_textures = textures_before_;
    textures_before_ |= drawn.textures;
    return drawn;
}

} // namespace marlogl::check
