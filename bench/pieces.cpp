// What the pieces of a conversion cost: number texts, a face, a pass of each reader, every generator. The
// examples, which hold every kind, are read into memory; the output is counted and thrown away.
#include "design/reader.h"
#include "design/scene.h"
#include "dispatch/dispatch.h"
#include "emit/faces.h"
#include "emit/output.h"
#include "emit/point_file.h"
#include "emit/vertex_table.h"
#include "host/paths.h"
#include "run/run.h"
#include "support/memory_files.h"

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

  private:
    std::size_t &count_;
};

class CountingFiles : public MemoryFiles {
  public:
    std::size_t written = 0;

    std::unique_ptr<OutputFile> create(const std::string &) override
    {
        return std::make_unique<CountedOutput>(written);
    }
    void remove(const std::string &) override {}
};

CountingFiles files;

struct Example {
    int version;
    std::string name;
    void (*read)();
};

const Example examples[] = {
    {1, "hamlet/hamlet.mrl",   Load_MRL1},
    {2, "village/village.mr2", Load_MRL2},
};

std::string content(const std::string &example_file)
{
    std::ifstream file(MARLOGL_EXAMPLES "/" + example_file, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void read(const Example &example)
{
    reset();
    input_path = example.name;
    example.read();
}

// Runs `write` over and over with an open output, and says how many bytes a second that makes.
template <typename Write> void measure_output(benchmark::State &state, Write write)
{
    open_output("scene.ogl");
    files.written = 0;
    for ([[maybe_unused]] auto _ : state)
        write();
    close_output();
    point_file::settle();
    state.SetBytesProcessed(static_cast<std::int64_t>(files.written));
}

template <typename NumberText>
void number_text(benchmark::State &state, NumberText (*text)(double), double first)
{
    char line[output::most_of_number];
    double value = first;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(output::put(line, text(value)));
        benchmark::ClobberMemory();
    }
}

void register_number_texts()
{
    const auto two_decimals = [](double x) { return fnform2(p6(x)); };
    const auto four_decimals = [](double x) { return fnform4(p6(x)); };
    const auto add = [](const char *name, auto text, double value) {
        benchmark::RegisterBenchmark(
            name, [text, value](benchmark::State &state) { number_text(state, +text, value); });
    };
    add("number/0/three digits", p0, -123);
    add("number/0/six digits", p0, 123456);
    add("number/0/with a fraction", p0, 123.4);
    add("number/0.00/of a normal", two_decimals, -0.70710678);
    add("number/0.00/near a tie", two_decimals, 0.7049995);
    add("number/0.0000", four_decimals, 0.3048);
    add("number/texture/inside", fntexu, 128);
    add("number/texture/repeated", fntexu, 510);
    add("number/general", general, 0.1);
}

void face(benchmark::State &state)
{
    reset();
    current_object = 1;
    object_code(1, 1) = "Y";
    object_text(1, 1) = "brick";
    for (const double x : {0, 100})
        for (const double z : {0, 100})
            record_point(x, 50, z);
    measure_output(state, [] { write4a("", 1, 0, 1, 3, 2, 1, ""); });
}

void reader(benchmark::State &state, const Example &example)
{
    for ([[maybe_unused]] auto _ : state)
        read(example);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(files.files[example.name].size()));
}

void generator(benchmark::State &state, const Example &example, int object)
{
    read(example);
    measure_output(state, [&] {
        vertex_count = 0;
        vertex_copy_count = 0;
        (example.version == 1 ? Save_MARL1 : Save_MARL2)(object);
    });
}

// The first object of every kind.
void register_generators(const Example &example)
{
    read(example);
    std::set<std::string> seen;
    for (int object = 1; object <= objects.last; ++object) {
        const std::string kind = generator_name(example.version, object_type(object));
        if (!kind.empty() && instance_of(object) == object && seen.insert(kind).second)
            benchmark::RegisterBenchmark(
                ("version " + std::to_string(example.version) + '/' + kind).c_str(),
                [&example, object](benchmark::State &state) { generator(state, example, object); });
    }
}

void register_all()
{
    files.files["program/MarlOgl.dat"] = "";
    files.files["program/appl/colors.tab"] = content("village/appl/colors.tab");
    locate_program();
    register_number_texts();
    benchmark::RegisterBenchmark("face", face);
    for (const Example &example : examples) {
        files.files[example.name] = content(example.name);
        benchmark::RegisterBenchmark(("version " + std::to_string(example.version) + "/reader").c_str(),
                                     [&example](benchmark::State &state) { reader(state, example); });
        register_generators(example);
    }
}

} // namespace

} // namespace marlogl

int main(int argument_count, char **arguments)
{
    marlogl::use_file_system(&marlogl::files);
    benchmark::Initialize(&argument_count, arguments);
    if (benchmark::ReportUnrecognizedArguments(argument_count, arguments))
        return 2;
    marlogl::register_all();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
