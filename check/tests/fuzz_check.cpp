// Fuzz target: a design file is checked and converted in memory. A byte chooses the version; the rest is the
// file. Whatever stops the conversion is an error of the checker.
#include "support.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace marlogl::check;
    if (size == 0)
        return 0;
    const std::string name = data[0] & 1 ? "scene.mrl" : "scene.mr2";
    const std::string design(reinterpret_cast<const char *>(data) + 1, size - 1);
    Files files = usual_files();
    files[name] = design;
    const std::vector<FileReport> reports = check(files, name);
    std::ostringstream out;
    write_text(out, reports, true);
    write_json(out, reports);
    const std::string fault = conversion_fault(name, design);
    if (!fault.empty() && total(reports)(Severity::error) == 0) {
        std::fprintf(stderr, "not told: %s\n", fault.c_str());
        std::abort();
    }
    return 0;
}
