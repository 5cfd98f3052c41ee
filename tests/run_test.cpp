// Whole runs: what is found and made, what frames and places the objects, and what a run leaves behind.
#include "run/configuration.h"
#include "run/convert.h"
#include "support/cases.h"
#include "support/design.h"

namespace marlogl {

namespace {

std::string framed(const std::string &scale, const std::string &objects)
{
    const std::string reset =
        "glMatrixMode( GL_TEXTURE );\r\nglLoadIdentity();\r\nglMatrixMode( GL_MODELVIEW );\r\n";
    return reset + "glPushMatrix();\r\nglScalef( " + scale + ", " + scale + ", " + scale + " );\r\n" +
           objects + "glPopMatrix();\r\n" + reset;
}

std::string announced(const std::string &number, const std::string &name)
{
    const std::string comment = "//" + std::string(50, ' ') + "*** ";
    return comment + "Sequence " + number + "\r\n" + comment + name + "\r\n";
}

// Configuration, then the path of the design file, that of the output, and whether it is converted.
TEST(Run, TakesItsPathsFromTheConfiguration)
{
    const std::string table = R"(
scene.mr2/scene.out//- => scene.mr2 scene.ogl yes
  scene.MRL / out.txt  //-/fifth line => scene.MRL out.ogl yes
TOWNS\Scene.Mr2/A\B\town//- => towns/scene.mr2 A/B/togl yes
x.mr2/ogl//- => x.mr2 ogl yes
mr2/abc//- => mr2 ogl yes
scene.mr3/scene.out//- => scene.mr3 scene.ogl no
r2/scene.out//- => r2 scene.ogl no
none.txt/scene.out//- => scene.mr2 scene.ogl no
)";
    for_each_line(table, [](const std::string &configuration, const std::string &expected) {
        const std::vector<std::string> parts = split(expected, " ");
        MemoryFiles memory;
        memory.files["program/marlogl.DAT"] = configuration;
        memory.files[parts[0]] = "\n";
        memory.files[parts[1]] = "old";
        EXPECT_FALSE(convert(memory).error) << configuration;
        EXPECT_EQ(memory.files.at(parts[1]), parts[2] == "yes" ? framed("0.3048", "") : "") << configuration;
        EXPECT_EQ(memory.files.size(), 3u) << configuration;
    });
}

TEST(Run, TakesItsColoursFromTheConfiguration)
{
    for_each_case("200100050=200, 100, 050|20010005=200, 100, 005|200100050 =200, 100, 50 |"
                  " 10 20 30= 10,  20,  30|200 100 050=200,  10, 050|7=7, , 7|=, , ",
                  [](const std::string &line, const std::string &components) {
                      MemoryFiles files;
                      files.files["MarlOgl.dat"] = "scene.mr2\nx.out\n007008009\n" + line + '\n';
                      const Configuration configuration = read_configuration(files);
                      EXPECT_EQ(configuration.colour_outside, "007, 008, 009");
                      EXPECT_EQ(configuration.colour_inside, components);
                  });
}

TEST(Run, ScalesTheSceneByItsLevel)
{
    for_each_case(
        "15=0.6096|14=1.2192|13=2.4384|12=4.8769|11=9.7537|10=19.5074|9=39.0149|09=39.0149|8=0.3048|"
        "16=0.3048|00=0.3048|=0.3048|1=0.3048|159=0.6096|1 5=0.3048|9.=39.0149|.9=0.3048",
        [](const std::string &level, const std::string &factor) {
            EXPECT_EQ(convert(given(2, 'J' + level + '\n')).output, framed(factor, "")) << level;
        });
}

// The lines between the comments of the first object and the footer, and "/" between them.
TEST(Run, PlacesAnObjectAndUndoesIt)
{
    const std::string table = R"(
2A3/C12.6 => glTranslated( 13, 0, 0 );/glTranslated( -13, 0, 0 );
2A99/P61 90 => glRotated( -90,0 ,0 , 1 );/glRotated( 90,0 ,0 , 1 );
2A-3/C-.4 ft/D 2x/P6145.5
    => glTranslated( 0, 2, 0 );/glRotated( -46,0 ,0 , 1 );/glRotated( 46,0 ,0 , 1 );/glTranslated( 0, -2, 0 );
1A8/C-7/D8/P61.4
    => glTranslated( -7, 8, 0 );/glRotated( 0 ,0 ,0 , 1 );/glRotated( 0 ,0 ,0 , 1 );/glTranslated( 7, -8, 0 );
2P6145/C9/A24/C0/Dnorth/P61 0 => 
)";
    for_each_line(table, [](const std::string &design, const std::string &lines) {
        EXPECT_EQ(convert(given(design[0] - '0', design.substr(1))).body(), lines) << design;
    });
}

TEST(Run, AnnouncesObjectsThatHaveAType)
{
    std::string design = "A3\nBGone \nA0\nBskipped\nC1\nP61 1\nA99\nA-5\nB\xE9t\xE9\n", objects;
    objects = announced("01", "Gone ") + announced("03", "") + announced("04", "\xE9t\xE9");
    EXPECT_EQ(convert(given(1, design)).output, framed("0.3048", objects));
    for (int k = 5; k <= 70; ++k) {
        design += "A3\n";
        objects += announced(k < 10 ? '0' + std::to_string(k) : std::to_string(k), "");
    }
    EXPECT_EQ(convert(given(2, design)).output, framed("0.3048", objects));
    EXPECT_EQ(convert(given(2, design + "Blast\nA3\nC1")).output.size(),
              framed("0.3048", objects).size() + 4);
}

TEST(Run, DrawsAnInstanceAtItsOwnPlace)
{
    const auto drawn = [](const std::string &reference) {
        const std::string text = convert(given(1, "A9\nC50\nA8\nC1\nP61 3\nK30" + reference + "\nA0")).output;
        const std::size_t turned = text.rfind("glRotated( -3 "), back = text.rfind("glRotated( 3 ");
        return text.substr(turned, back - turned).find("192, 192, 192") != text.npos;
    };
    for (const std::string pole : {"01", "1", " 1", "1."})
        EXPECT_TRUE(drawn(pole)) << pole;
    for (const std::string nothing : {"  ", "00", ".9", "02", "03", "70", "71", "-1", "x1"})
        EXPECT_FALSE(drawn(nothing)) << nothing;
    std::string between;
    for (int k = 2; k <= 69; ++k)
        between += "A0\n";
    EXPECT_NE(convert(given(1, "A8\nK3070\n" + between + "A9")).body().find("glColor3ub( 192"),
              std::string::npos);
}

// A square prism of one unit's height; "Y" textures its lower or its upper cap, which are n-gons.
std::string prism(const std::string &lower, const std::string &upper, const std::string &corners = "4")
{
    std::string design =
        "A18\nBPond\nP021\nP11" + corners + "\nF21x\nF22x\nK21" + lower + "\nK22" + upper + '\n';
    for (const int before : {0, 20})
        for (const char *corner : {"150005000", "250005010", "350105010", "450105000"})
            design += "Q" + text_of(p00(before / 10)) + (corner + std::string("\n"));
    for (const char *position : {"12150015002", "12250025004", "12350035006", "12450045008"})
        design += std::string("Q") + position + "\nQ14" + (position + 2) + '\n';
    return design;
}

// What a run leaves in the place of the point file ("gone": nothing), and how the message of its error ends.
void expect_left(const std::string &design, const std::string &left, const std::string &error = "",
                 const std::string &path = "scene.mr2")
{
    for (const bool old : {false, true}) {
        MemoryFiles memory;
        memory.files["program/MarlOgl.dat"] = path + "\nscene.out\n\n\n";
        memory.files[path] = design;
        if (old)
            memory.files["program/tempofil.%%%"] = "old";
        const Converted converted = convert(memory);
        EXPECT_EQ(converted.point_file.value_or("gone"), left != "as before" ? left
                                                         : old               ? "old"
                                                                             : "gone")
            << design;
        EXPECT_TRUE(std::string(converted.error ? converted.error->what() : "").ends_with(error)) << design;
        EXPECT_EQ(converted.error.has_value(), !error.empty()) << design;
    }
}

TEST(Run, LeavesTheTemporaryPointFileOfItsLastPolygonUnlessItWasRead)
{
    const std::string lower = "   0  1 2\r\n   1  2 4\r\n   2  3 6\r\n   3  4 8\r\n";
    const std::string upper = "   7  4 8\r\n   6  3 6\r\n   5  2 4\r\n   4  1 2\r\n";
    std::string many = lower, wheel;
    for (int k = 4; k <= 19; ++k)
        many += "   " + std::to_string(k) + "  0 0\r\n";
    for (int k = 0; k <= 129; ++k)
        wheel += "   " + std::to_string(k) + "  0 255\r\n";
    const std::string cone = "A11\nP01 5\n", broken = "A3\nC1e999",
                      cause = "the number \"1e999\" is too large";
    std::string gable;
    for (const char *point : {"15", "16", "17", "18", "19", "20", "21", "6", "5"})
        gable += std::string("    ") + point + "   0  255\r\n";
    expect_left(cone, "as before");
    expect_left("A5\nP01 9\n", gable, "", "scene.mrl");
    expect_left(prism("Y", "Y") + cone, "gone");
    expect_left(cone + prism("Y", "N") + cone, upper);
    expect_left(cone + prism("N", "Y"), "gone");
    expect_left(prism("N", "N") + prism("Y", "Y"), "gone");
    expect_left(prism("Y", "Y") + prism("N", "N"), upper);
    expect_left(cone + broken, "as before", cause);
    expect_left(prism("N", "N") + broken, upper, cause);
    expect_left(prism("Y", "Y") + broken, "gone", cause);
    expect_left(prism("Y", "Y", "20"), "gone");
    expect_left(prism("Y", "Y", "21"), many + "   20  1 2\r\n",
                "corner of the polygon 21 is outside 1 to 20");
    expect_left("A19\nP11 131\n", wheel, "point 181 is outside 0 to 180");
}

// Files in memory of which one operation fails, whichever it is.
class FailingFiles : public MemoryFiles {
  public:
    int operations = 0, failing = 0;

    std::unique_ptr<InputFile> open(const std::string &path) override
    {
        pass();
        return MemoryFiles::open(path);
    }
    std::unique_ptr<OutputFile> create(const std::string &path) override
    {
        pass();
        return std::make_unique<Failing>(*this, MemoryFiles::create(path));
    }
    void remove(const std::string &path) override
    {
        pass();
        MemoryFiles::remove(path);
    }

  private:
    struct Failing : OutputFile {
        FailingFiles &files;
        std::unique_ptr<OutputFile> file;

        Failing(FailingFiles &in, std::unique_ptr<OutputFile> opened) : files(in), file(std::move(opened)) {}
        void write(std::string_view text) override
        {
            files.pass();
            file->write(text);
        }
        void close() override
        {
            files.pass();
            file->close();
        }
        void abandon(std::string_view text) noexcept override { file->abandon(text); }
    };

    void pass()
    {
        if (++operations == failing)
            throw RunError(Fault::input_output, "operation " + std::to_string(failing));
    }
};

TEST(Run, NoticesEveryOperationThatFails)
{
    for (const std::string &design : {prism("Y", "Y"), prism("Y", "N"), std::string("A20\nQ001   1   1")})
        for (int failing = 1, operations = 99; failing <= operations; ++failing) {
            FailingFiles files;
            static_cast<MemoryFiles &>(files) = files_of(given(2, design));
            files.failing = failing;
            const std::string error = error_of([&] { marlogl::convert(files, read_configuration(files)); });
            operations = files.operations;
            EXPECT_EQ(error, failing <= operations && files.operations >= failing
                                 ? "input/output: operation " + std::to_string(failing)
                                 : "no error");
        }
}

TEST(Run, WritesLinesOfAnyLength)
{
    constexpr std::size_t most = Output::most_in_buffer;
    for (const std::size_t length : {most / 3, most - 400, most - 56, most - 55, most, 3 * most}) {
        std::string design, output;
        for (int object = 11; object <= 70; ++object) {
            const std::string name(length + static_cast<std::size_t>(object % 7), 'n');
            design += "A3\nB" + name + '\n';
            output += announced(std::to_string(object), name);
        }
        for (int object = 10; object >= 1; --object) {
            design = "A3\nBy\n" + design;
            output = announced((object < 10 ? "0" : "") + std::to_string(object), "y") + output;
        }
        EXPECT_TRUE(convert(given(2, design)).output == framed("0.3048", output)) << length;
    }
}

} // namespace

} // namespace marlogl
