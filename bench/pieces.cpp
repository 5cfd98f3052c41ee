// What the pieces of a conversion cost: number texts, reading a design file, drawing each kind of object. The
// examples, which hold every kind, are read into memory; the output is counted and thrown away.
#include "design/reader.h"
#include "dispatch/dispatch.h"
#include "host/memory_files.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <set>

namespace marlogl {

namespace {

class CountedOutput : public OutputFile {
  public:
    explicit CountedOutput(std::size_t &count) : count_(count) {}

    void write(std::string_view text) override { count_ += text.size(); }
    void close() override {}
    void abandon(std::string_view) noexcept override {}

  private:
    std::size_t &count_;
};

// Holds an example's design file "scene" and its colour table.
class ExampleFiles : public MemoryFiles {
  public:
    std::size_t written = 0;

    explicit ExampleFiles(const std::string &folder, const std::string &design)
    {
        const auto content = [&](const std::string &name) {
            std::ifstream file(MARLOGL_EXAMPLES "/" + folder + '/' + name, std::ios::binary);
            return std::string(std::istreambuf_iterator<char>(file), {});
        };
        files = {
            {"scene",      content(design)           },
            {"colors.tab", content("appl/colors.tab")}
        };
    }

    std::unique_ptr<OutputFile> create(const std::string &) override
    {
        return std::make_unique<CountedOutput>(written);
    }
    void remove(const std::string &) override {}
};

template <typename NumberText>
void add_number_text(const char *name, NumberText (*text)(double), double number)
{
    benchmark::RegisterBenchmark(name, [text, number](benchmark::State &state) {
        char line[output::most_of_number];
        double value = number;
        for ([[maybe_unused]] auto _ : state) {
            benchmark::DoNotOptimize(value);
            benchmark::DoNotOptimize(output::put(line, text(value)));
            benchmark::ClobberMemory();
        }
    });
}

void add_number_texts()
{
    constexpr auto two_decimals = +[](double x) { return p2(x); };
    add_number_text("number/0/three digits", p0, -123);
    add_number_text("number/0/six digits", p0, 123456);
    add_number_text("number/0/with a fraction", p0, 123.4);
    add_number_text("number/0.00/of a normal", two_decimals, -0.70710678);
    add_number_text("number/0.00/near a tie", two_decimals, 0.7049995);
    add_number_text("number/texture/inside", texture_u, 128);
    add_number_text("number/texture/repeated", texture_u, 510);
    add_number_text("number/general", general, 0.1);
}

void read_scene(benchmark::State &state, const ExampleFiles &example, int version)
{
    ExampleFiles files = example;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(read_design(files, "scene", version));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(files.files["scene"].size()));
}

void draw(benchmark::State &state, const ExampleFiles &example, int version, int number)
{
    ExampleFiles files = example;
    const Configuration configuration{"", "", "255, 255, 255", "255, 255, 255"};
    const Scene scene = read_design(files, "scene", version);
    Drawing drawing{files, configuration, "colors.tab", Output(files, "out"), NgonFile(files, "points")};
    for ([[maybe_unused]] auto _ : state)
        draw_object(drawing, scene, number, version);
    drawing.out.close();
    state.SetBytesProcessed(static_cast<std::int64_t>(files.written));
}

// The reading of an example, and its first object of every kind.
void add_example(const std::string &folder, const std::string &design, int version)
{
    const std::string name = "version " + std::to_string(version) + '/';
    ExampleFiles files(folder, design);
    benchmark::RegisterBenchmark((name + "reader").c_str(), read_scene, files, version);
    const Scene scene = read_design(files, "scene", version);
    std::set<std::string_view> seen;
    for (int number = 1; const Object &object : scene.objects) {
        const Kind *kind = find_kind(version, object.type);
        if (kind != nullptr && source_of(scene, number) == number && seen.insert(kind->name).second)
            benchmark::RegisterBenchmark((name + std::string(kind->name)).c_str(), draw, files, version,
                                         number);
        ++number;
    }
}

} // namespace

} // namespace marlogl

int main(int argument_count, char **arguments)
{
    benchmark::Initialize(&argument_count, arguments);
    if (benchmark::ReportUnrecognizedArguments(argument_count, arguments))
        return 2;
    marlogl::add_number_texts();
    marlogl::add_example("hamlet", "hamlet.mrl", 1);
    marlogl::add_example("village", "village.mr2", 2);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
