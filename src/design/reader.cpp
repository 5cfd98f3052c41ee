#include "design/reader.h"

#include "design/records.h"
#include "host/lines.h"
#include "host/paths.h"

namespace marlogl {

namespace {

void read_records(Reading &reading, LineReader &file, int version)
{
    int number = 0;
    do {
        const Line line = file.read_line();
        ++number;
        const Record *record = find_record(line);
        const Store store = record != nullptr ? record->stores[version - 1] : nullptr;
        if (store == nullptr)
            continue;
        try {
            store(reading, line);
        } catch (const RunError &error) {
            throw error.at(file.path() + ':' + std::to_string(number) + ": record " + quoted(line, 20));
        }
    } while (!reading.ended && !file.at_end());
}

} // namespace

Scene read_design(FileSystem &files, const std::string &path, int version)
{
    Scene scene;
    scene.objects.reserve(most_objects); // objects stay where they are
    Reading reading{scene, point_rules[version - 1]};
    LineReader file(files, find_file(files, native_path(path)).path);
    read_records(reading, file, version);
    end_reading(reading, path, version);
    return scene;
}

} // namespace marlogl
