// Lines of text files, files that are found by any spelling, and the operating system's own files.
#include "host/lines.h"
#include "host/memory_files.h"
#include "host/paths.h"
#include "run/configuration.h"
#include "support/cases.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <sys/wait.h>

namespace marlogl {

namespace {

constexpr std::size_t all_at_once = 1 << 30;

// A file whose reads give no more than so many bytes, as those of a pipe or a network.
struct SlowFile : InputFile {
    std::unique_ptr<InputFile> file;
    std::size_t most;

    SlowFile(std::unique_ptr<InputFile> whole, std::size_t most_per_read)
        : file(std::move(whole)), most(most_per_read)
    {
    }
    std::size_t read(char *buffer, std::size_t size) override
    {
        return file->read(buffer, std::min(size, most));
    }
};

struct SlowFiles : MemoryFiles {
    std::size_t most_per_read = 0;

    std::unique_ptr<InputFile> open(const std::string &path) override
    {
        return std::make_unique<SlowFile>(MemoryFiles::open(path), most_per_read);
    }
};

// The lines of a file, with "," between them; a read gives `most_per_read` bytes at a time.
std::string lines_of(const std::string &content, std::size_t most_per_read,
                     std::size_t most = LineReader::whole_line)
{
    SlowFiles files;
    files.files["file"] = content;
    files.most_per_read = most_per_read;
    LineReader reader(files, "file");
    std::string lines(reader.read_line(most));
    while (!reader.at_end())
        lines.append(",").append(reader.read_line(most));
    return lines;
}

TEST(Lines, EndAtCrLfAtLfAndAtTheEndOfTheFile)
{
    const std::string mark = "\xEF\xBB\xBF", half_mark = "\xEF\xBB";
    for_each_case(
        "a\r\nb\nc=a,b,c|a\r\n=a|\n=|\r\n\r\n=,|a\n\nb\n=a,,b|a\rb\r\r\nc\r=a\rb\r,c\r|a\x1A\nb=a\x1A,b|" +
            mark + "a\n" + mark + "b=a," + mark + "b|" + mark + "\n=|" + half_mark + '=' + half_mark + '|' +
            half_mark + "\nc=" + half_mark + ",c",
        [](const std::string &content, const std::string &lines) {
            for (const std::size_t at_a_time : {std::size_t{1}, std::size_t{2}, all_at_once})
                EXPECT_EQ(lines_of(content, at_a_time), lines) << quoted(content) << at_a_time;
        });
    for (const std::size_t at_a_time : {std::size_t{1}, all_at_once})
        EXPECT_EQ(lines_of("abcd\nab\r\nabc\r\nabcd", at_a_time, 3), "abc,ab,abc,abc");
}

TEST(Lines, CrossTheEndOfTheBuffer)
{
    constexpr std::size_t buffer = 16384;
    const std::string ends[][2] = {{"\r\n", ","}, {"\n", ","}, {"\r", "\r"}, {"\r\r\n", "\r,"}, {"", ""}};
    for (std::size_t length = buffer - 3; length <= buffer + 3; ++length)
        for (const std::string &first : {std::string(), std::string("first"), std::string(2 * buffer, 'f')})
            for (const auto &[end, shown] : ends) {
                const std::string line(length, 'x'), content = first + '\n' + line + end + "last";
                for (const std::size_t at_a_time : {std::size_t{1000}, all_at_once})
                    EXPECT_TRUE(lines_of(content, at_a_time) == first + ',' + line + shown + "last")
                        << first.size() << ' ' << length << quoted(end) << at_a_time;
                EXPECT_EQ(lines_of(line + end, all_at_once, 4), "xxxx");
            }
}

TEST(Lines, AreMissingInAnEmptyFile)
{
    for (const char *content : {"", "\xEF\xBB\xBF"})
        EXPECT_EQ(error_of([&] { lines_of(content, 1); }),
                  "past end: the file \"file\" ends where a line is expected");
    MemoryFiles files;
    EXPECT_EQ(error_of([&] { LineReader(files, "no/file"); }),
              "missing file: cannot open \"no/file\": there is no such file");
}

TEST(Paths, AreFoundByAnySpelling)
{
    MemoryFiles files;
    for (const char *path :
         {"Town/Scene.MR2", "TOWN/other.mr2", "a/x", "b", "B", "c", "C1/z", "c1/Y", "/root/F"})
        files.files[path];
    for_each_case("Town/Scene.MR2=Town/Scene.MR2|town/SCENE.mr2=Town/Scene.MR2|town/other.MR2=TOWN/other.mr2|"
                  "Town/Other.mr2=TOWN/other.mr2|A//X=a//x|b=b|B=B|C1/y=c1/Y|c1/Z=C1/z|/ROOT/f=/root/F|"
                  "town/none=town/none|none/Scene.MR2=none/Scene.MR2|=",
                  [&](const std::string &spelled, const std::string &found) {
                      EXPECT_EQ(find_file(files, spelled).path, found) << spelled;
                  });
    files.files.erase("b");
    files.files["bA"], files.files["Ba"];
    EXPECT_EQ(find_file(files, "b").path, "B");
    EXPECT_EQ(find_file(files, "ba").path, "Ba"); // the first in byte order
    EXPECT_EQ(native_path("a\\b/c\\"), "a/b/c/");
}

TEST(Paths, OfTheProgramLeadToTheConfiguration)
{
    for_each_case("program/MarlOgl.dat=program|program/marlogl.DAT=program|MarlOgl.dat=.|MARLOGL.DAT=.",
                  [](const std::string &present, const std::string &folder) {
                      MemoryFiles files;
                      files.files[present] = "\n\n\n\n";
                      EXPECT_EQ(read_configuration(files).folder, folder) << present;
                  });
}

// A folder of the operating system, empty at first and gone at the end.
class OperatingSystem : public testing::Test {
  protected:
    OperatingSystem()
    {
        std::string name = testing::TempDir() + "marlogl-XXXXXX";
        folder = mkdtemp(name.data());
    }
    ~OperatingSystem() override { std::filesystem::remove_all(folder); }

    std::string path(const std::string &name) const { return folder + '/' + name; }

    void put(const std::string &name, const std::string &content) const
    {
        std::ofstream(path(name), std::ios::binary) << content;
    }

    std::string get(const std::string &name) const
    {
        std::ostringstream content;
        content << std::ifstream(path(name), std::ios::binary).rdbuf();
        return content.str();
    }

    std::string folder;
    const std::unique_ptr<FileSystem> system = system_files();
    FileSystem &files = *system;
};

TEST_F(OperatingSystem, HoldsFiles)
{
    put("Old.txt", "an old content");
    EXPECT_EQ(find_file(files, path("oLD.TXT")).path, path("Old.txt"));
    const auto output = files.create(path("Old.txt"));
    output->write("a\r\n");
    output->write("b\r\n");
    output->close();
    EXPECT_EQ(get("Old.txt"), "a\r\nb\r\n");
    EXPECT_EQ(LineReader(files, path("Old.txt")).read_line(), "a");

    std::filesystem::create_hard_link(path("Old.txt"), path("link"));
    put("other", "");
    EXPECT_EQ(files.identity(path("Old.txt")), files.identity(path("link")));
    EXPECT_NE(files.identity(path("Old.txt")), files.identity(path("other")));
    EXPECT_EQ(files.identity(path("none")), "");
    std::vector<std::string> names = files.names_in(folder);
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"Old.txt", "link", "other"}));
    EXPECT_TRUE(files.names_in(path("none")).empty());

    files.remove(path("link"));
    EXPECT_FALSE(files.exists(path("link")));
    EXPECT_EQ(files.open(path("link")), nullptr);
    EXPECT_EQ(files.open(path("other/below")), nullptr);
    const std::string missing = ": No such file or directory", is_folder = ": Is a directory";
    EXPECT_EQ(error_of([&] { files.remove(path("link")); }),
              "input/output: cannot delete " + quoted_path(path("link")) + missing);
    EXPECT_EQ(error_of([&] { files.create(path("none/x")); }),
              "missing file: cannot create " + quoted_path(path("none/x")) + missing);
    EXPECT_EQ(error_of([&] { files.create(folder); }),
              "input/output: cannot create " + quoted_path(folder) + is_folder);
    EXPECT_EQ(error_of([&] { LineReader reader(files, folder); }),
              "input/output: cannot read " + quoted_path(folder) + is_folder);
}

// The program itself: copied, so that nothing but the test's own files lies beside it.
class Program : public OperatingSystem {
  protected:
    Program()
    {
        std::filesystem::create_directories(path("program"));
        std::filesystem::copy_file(MARLOGL_PROGRAM, path("program/MarlOgl"));
        put("bad.mr2", "J15\r\nP62\r\n");
        put("good.mr2", "J15\r\n");
    }

    // Runs a command of the shell; exit status, first line of standard output, standard error, lines of the
    // output. The test's folder stands as "$PWD".
    std::string run(const std::string &command)
    {
        const int status = std::system(
            ("cd " + folder + "; PATH=program:$PATH FULL=/dev/full; { " + command + "; } >out 2>err")
                .c_str());
        const auto first_line = [&](const std::string &name) {
            std::string line = get(name).substr(0, get(name).find('\n'));
            for (std::size_t at; (at = line.find(folder)) != line.npos;)
                line.replace(at, folder.size(), "$PWD");
            return line;
        };
        const std::string written = get("scene.ogl");
        return std::to_string(WEXITSTATUS(status)) + '|' + first_line("out") + '|' + first_line("err") + '|' +
               std::to_string(std::count(written.begin(), written.end(), '\n'));
    }
};

TEST_F(Program, TellsWhatItDid)
{
    put("program/MarlOgl.dat", "Scene.mr2\r\nscene.out\r\n200100050\r\n050100200\r\n");
    for_each_line(
        R"(
MarlOgl => 1||MarlOgl: cannot open "Scene.mr2": there is no such file|0
MarlOgl 2>&- => 1|||0
MarlOgl x => 2||usage: MarlOgl [--help | --version]|0
MarlOgl --help --version => 2||usage: MarlOgl [--help | --version]|0
MarlOgl --help => 0|usage: MarlOgl [--help | --version]||0
MarlOgl --version => 0|MarlOgl )" MARLOGL_VERSION R"(||0
MarlOgl --version >&- => 0|||0
MarlOgl --version >$FULL => 1||MarlOgl: cannot write to standard output|0
cp bad.mr2 scene.MR2; MarlOgl
    => 1||MarlOgl: scene.MR2:2: record "P62": parameter cell 62 is outside 0 to 61|0
cp good.mr2 scene.MR2; MarlOgl => 0|||9
MarlOgl >&- 2>&- => 0|||9
rm scene.ogl; ln -s scene.MR2 scene.ogl; MarlOgl
    => 1||MarlOgl: the output file "scene.ogl" is the design file itself|1
)",
        [this](const std::string &command, const std::string &expected) {
            EXPECT_EQ(run(command), expected) << command;
        });
}

TEST_F(Program, TellsWhatItsConfigurationCannotMean)
{
    const std::string missing = "1||MarlOgl: there is no MarlOgl.dat (the run configuration, which names the "
                                "design file and the output) ";
    EXPECT_EQ(run("MarlOgl"), missing + "in \"$PWD/program\" or in the current folder \"$PWD\"|0");
    EXPECT_EQ(run("cd program; ./MarlOgl"),
              missing + "beside the program, in the current folder \"$PWD/program\"|0");
    put("MARLOGL.dat", "good.mr2\nscene.out\nwhite\n000000000 \n");
    EXPECT_EQ(run("MarlOgl"), "0||MarlOgl: warning: ./MARLOGL.dat: line 3: the colour \"white\" is not nine "
                              "digits; line 4: the colour \"000000000 \" is not nine digits|9");
    put("program/MarlOgl.dat", "scene.ogl\nscene.out\n\n\n");
    EXPECT_EQ(run("MarlOgl"), "1||MarlOgl: the output file \"scene.ogl\" is the design file itself|9");
    EXPECT_EQ(run("rm scene.ogl; MarlOgl"), "0||MarlOgl: warning: the design file \"scene.ogl\" is not "
                                            "converted: its name ends in neither MRL nor MR2|0");
}

} // namespace

} // namespace marlogl
