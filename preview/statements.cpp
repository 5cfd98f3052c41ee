#include "statements.h"

#include "cursor.h"

#include <algorithm>

namespace {

enum class Arguments : std::uint8_t { none, numbers, bytes, symbol, text };

struct Form {
    std::string_view name;
    Operation operation;
    Arguments arguments;
    std::size_t count;
};

// The commonest statements stand first: the search goes from top to bottom.
constexpr Form forms[] = {
    {"glVertex3d",     Operation::vertex,        Arguments::numbers, 3},
    {"glTexCoord2f",   Operation::tex_coord,     Arguments::numbers, 2},
    {"glNormal3d",     Operation::normal,        Arguments::numbers, 3},
    {"glColor3ub",     Operation::colour,        Arguments::bytes,   3},
    {"glBegin",        Operation::begin,         Arguments::symbol,  1},
    {"glEnd",          Operation::end,           Arguments::none,    0},
    {"BindTexture",    Operation::bind_texture,  Arguments::text,    1},
    {"glEnable",       Operation::enable,        Arguments::symbol,  1},
    {"glDisable",      Operation::disable,       Arguments::symbol,  1},
    {"glTranslated",   Operation::translate,     Arguments::numbers, 3},
    {"glRotated",      Operation::rotate,        Arguments::numbers, 4},
    {"glScalef",       Operation::scale,         Arguments::numbers, 3},
    {"glPushMatrix",   Operation::push_matrix,   Arguments::none,    0},
    {"glPopMatrix",    Operation::pop_matrix,    Arguments::none,    0},
    {"glLoadIdentity", Operation::load_identity, Arguments::none,    0},
    {"glMatrixMode",   Operation::matrix_mode,   Arguments::symbol,  1},
    {"glVertex3f",     Operation::vertex,        Arguments::numbers, 3},
    {"glTexCoord2d",   Operation::tex_coord,     Arguments::numbers, 2},
    {"glNormal3f",     Operation::normal,        Arguments::numbers, 3},
    {"glTranslatef",   Operation::translate,     Arguments::numbers, 3},
    {"glRotatef",      Operation::rotate,        Arguments::numbers, 4},
    {"glScaled",       Operation::scale,         Arguments::numbers, 3},
};

struct SymbolName {
    std::string_view name;
    Symbol symbol;
};

constexpr SymbolName symbols[] = {
    {"GL_POLYGON",    Symbol::polygon   },
    {"GL_LINES",      Symbol::lines     },
    {"GL_POINTS",     Symbol::points    },
    {"GL_TEXTURE_2D", Symbol::texture_2d},
    {"GL_MODELVIEW",  Symbol::modelview },
    {"GL_TEXTURE",    Symbol::texture   },
    {"GL_PROJECTION", Symbol::projection},
};

constexpr std::string_view scenery_commands[] = {"Call",     "TransformCall", "Jump", "Return",  "MoveToPt",
                                                 "DrawToPt", "Dbx",           "Dot",  "IfVarAnd"};

class Reader {
  public:
    Reader(Problems &to, const std::function<void(const Statement &)> &on) : problems_(to), take_(on) {}

    Counts counts;

    void read_line(std::string_view line)
    {
        ++line_number_;
        Cursor cursor(line);
        if (cursor.at_end())
            return;
        if (cursor.starts_with("//")) {
            read_comment(cursor);
            return;
        }
        if (cursor.starts_with(":") || cursor.starts_with(";")) {
            ++counts.skipped_lines;
            return;
        }
        while (!cursor.at_end() && !cursor.starts_with("//"))
            if (!read_statement(cursor))
                return;
    }

  private:
    // An object is announced by two comments: its number and its name. The name may look like a number.
    void read_comment(Cursor cursor)
    {
        ++counts.skipped_lines;
        constexpr std::string_view mark = "*** ", sequence = "*** Sequence ";
        cursor.take('/');
        cursor.take('/');
        const std::string_view comment = cursor.remainder();
        if (!name_follows_ && comment.starts_with(sequence)) {
            ++counts.objects;
            announced_.line = line_number_;
            announced_.values = {};
            Cursor(comment.substr(sequence.size())).number(announced_.values[0]);
            name_follows_ = true;
        } else if (name_follows_) {
            announced_.name = comment.substr(std::min(mark.size(), comment.size()));
            name_follows_ = false;
            take_(announced_);
        }
    }

    // False when the rest of the line makes no sense any more.
    bool read_statement(Cursor &cursor)
    {
        const std::string_view name = cursor.word();
        const auto *const form = std::find_if(std::begin(forms), std::end(forms),
                                              [&](const Form &candidate) { return candidate.name == name; });
        if (form == std::end(forms)) {
            if (std::find(std::begin(scenery_commands), std::end(scenery_commands), name) !=
                std::end(scenery_commands))
                ++counts.skipped_lines;
            else
                problems_.add(line_number_, "no statement is known that starts like this");
            return false;
        }
        name_follows_ = false;
        Statement statement{form->operation};
        statement.line = line_number_;
        if (!cursor.take('('))
            return damaged(*form, "( is missing");
        if (!read_arguments(cursor, *form, statement))
            return false;
        if (!cursor.take(')') || !cursor.take(';'))
            return damaged(*form, ") or ; is missing");
        ++counts.statements;
        take_(statement);
        return true;
    }

    bool read_arguments(Cursor &cursor, const Form &form, Statement &statement)
    {
        for (std::size_t i = 0; i < form.count; ++i) {
            if (i > 0 && !cursor.take(','))
                return damaged(form, "a comma is missing");
            if (!read_argument(cursor, form.arguments, i, statement))
                return damaged(form, "argument " + std::to_string(i + 1) + " cannot be read");
        }
        return true;
    }

    bool read_argument(Cursor &cursor, Arguments kind, std::size_t i, Statement &statement)
    {
        switch (kind) {
        case Arguments::none:
            return true;
        case Arguments::numbers:
            return cursor.number(statement.values[i]);
        case Arguments::bytes:
            return cursor.byte(statement.values[i]);
        case Arguments::symbol:
            return read_symbol(cursor.word(), statement);
        case Arguments::text:
            return cursor.quoted(statement.name);
        }
        return false;
    }

    static bool read_symbol(std::string_view name, Statement &statement)
    {
        for (const SymbolName &candidate : symbols)
            if (candidate.name == name)
                statement.symbol = candidate.symbol;
        return name.starts_with("GL_");
    }

    bool damaged(const Form &form, std::string_view what)
    {
        problems_.add(line_number_, std::string(form.name) + ": " + std::string(what));
        return false;
    }

    Problems &problems_;
    const std::function<void(const Statement &)> &take_;
    std::uint32_t line_number_ = 0;
    Statement announced_{Operation::object};
    bool name_follows_ = false;
};

} // namespace

Counts read_statements(std::string_view text, Problems &problems,
                       const std::function<void(const Statement &)> &take)
{
    Reader reader(problems, take);
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        reader.read_line(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return reader.counts;
}
