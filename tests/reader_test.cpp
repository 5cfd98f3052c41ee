// The readers of both design-file versions: what every kind of record does to the scene tables.
#include "design/reader.h"

#include "host/memory_files.h"
#include "support/cases.h"

namespace marlogl {

namespace {

// All that differs from an empty object, such as "1:type=20 1:P50=1 1:F3=[brick] 1:Q1=(100,-100)[  ][    ]".
std::string stored(const Scene &scene)
{
    const Object empty(scene.memory.get());
    std::string found;
    int k = 0;
    const auto add = [&](const std::string &what, const std::string &value) {
        found += (found.empty() ? "" : " ") + std::to_string(k) + ':' + what + '=' + value;
    };
    const auto text = [](std::string_view content) { return '[' + std::string(content) + ']'; };
    const auto add_text = [&](const std::string &what, std::string_view content, std::string_view initial) {
        if (content != initial)
            add(what, text(content));
    };
    add_text("scale", scene.scale_level, "00");
    for (const Object &object : scene.objects) {
        ++k;
        if (object.type != 0)
            add("type", std::to_string(object.type));
        add_text("name", object.name, "");
        add_text("x", object.x, "");
        add_text("y", object.y, "");
        for (int i = 0; i <= cells.last; ++i)
            if (object.parameters(i) != 0)
                add('P' + std::to_string(i), message_number(object.parameters(i)));
        for (int i = 0; i <= code_slots.last; ++i)
            add_text('K' + std::to_string(i), object.codes(i), empty.codes(i));
        for (int i = 0; i <= last_face_slot; ++i)
            add_text('F' + std::to_string(i), object.texts(i), "");
        for (int i = 0; i <= last_face_slot; ++i)
            add_text('\\' + std::to_string(i), object.colours(i), empty.colours(i));
        for (int i = 0; i <= point_numbers.last; ++i) {
            const auto [x, y] = object.points(i);
            const auto &[code, attribute] = object.point_texts(i);
            if (x != 0 || y != 0 || code != "  " || attribute != "    ")
                add('Q' + std::to_string(i),
                    '(' + std::to_string(x) + ',' + std::to_string(y) + ')' + text(code) + text(attribute));
        }
    }
    return found;
}

// What a file leaves in the tables.
std::string read(int version, const std::string &lines)
{
    MemoryFiles files;
    files.files["file"] = lines;
    return stored(read_design(files, "file", version));
}

TEST(Reader, StoresEveryRecord)
{
    constexpr const char *both = R"(
MAXI 2/T1/@1/:Y/V1.0/$7/x/ A4/a4/]/J => 0:scale=[  ]
J15 => 0:scale=[15]
J9 => 0:scale=[9 ]
J123 => 0:scale=[12]
E40/]1 8/]2-9/]37/L7.5/W1 => 
BScene/C1/P017/F28t/\28cc/K31ab/?00Y/Q001   1   2ab  cd => 
A 8 ft/B  A  name /C 10 m/D-10 => 1:type=8 1:name=[  A  name ] 1:x=[ 10 m] 1:y=[-10]
A0/BNone/A-3/A2.5/A3.5 => 1:name=[None] 2:type=-3 3:type=2 4:type=4
A8/P 1 2 5/P617/P610.25/P007/P2x9 => 1:type=8 1:P0=7 1:P1=25 1:P2=9 1:P61=0.25
A8/P1.56/P.54/P.64/P 3 => 1:type=8 1:P0=4 1:P1=4
A8/P50 7/Q001/P50 7/Q002/P590 => 1:type=8 1:P50=1
A3/P50 7/P591 => 1:type=3 1:P50=7 1:P59=1
A8/F03brick /F03Brick\/F29x/F99x => 1:type=8 1:F3=[Brick\]
A8/K05AB/K06A/K07ABC/K08/K32xx => 1:type=8 1:K5=[AB] 1:K6=[A ] 1:K7=[AB]
A8/\01001020030/\020123456789ABC => 1:type=8 1:\1=[001020030  ] 1:\2=[0123456789A]
A8/?01YES => 1:type=8
A8/Q0005100 -90AB  CDE => 1:type=8 1:P50=1 1:Q0=(5100,-90)[AB][  CD]
A8/Q180  .5 1.5/Q180   2/Q17 => 1:type=8 1:P50=3 1:Q180=(2,0)[  ][    ]
)";
    for (const int version : {1, 2})
        for_each_line(both, [version](const std::string &lines, const std::string &expected) {
            EXPECT_EQ(read(version, lines), expected) << lines;
        });
    EXPECT_EQ(read(2, "A8\nQ18151005100"), "1:type=8");
}

TEST(Reader, KnowsTheTypesThatStorePointsWith5000AndThoseThatDontCountThem)
{
    const std::string shifted[] = {" 2 3 4 7 17 20 21 23 ", " 1 5 18 20 21 22 "};
    for (const int version : {1, 2})
        for (int number = -1; number <= 30; ++number) {
            const std::string type = std::to_string(number);
            const int counted = number == (version == 1 ? 3 : 5) ? 0 : 1,
                      count = counted + (number == 3 ? 5 : 0);
            EXPECT_EQ(read(version, 'A' + type + "\nP50 5\nQ00151004900"),
                      (number == 0 ? "" : "1:type=" + type + ' ') +
                          (count == 0 ? "" : "1:P50=" + std::to_string(count) + ' ') +
                          (shifted[version - 1].find(' ' + type + ' ') != type.npos
                               ? "1:Q1=(100,-100)[  ][    ]"
                               : "1:Q1=(5100,4900)[  ][    ]"))
                << version;
        }
}

TEST(Reader, ConvertsTheAntennasOfStructuresBeforeVersion12)
{
    const std::string structure = "A11\nP36 9\nP37 9\nP41-3.5\nP45 8\nP47 1",
                      cells = " 1:P41=-3.5 1:P45=8 1:P47=1";
    const std::string converted = "1:type=11 1:P37=9" + cells + " 1:Q54=(-4,8)[  ][    ]";
    const std::string as_it_is = "1:type=11 1:P36=9 1:P37=9" + cells;
    for (const std::string version : {"", "V1.1\n", "V1.2\nV 1.19\n", "Vx\n"})
        EXPECT_EQ(read(1, version + structure), converted) << version;
    for (const std::string version : {"V1.2\n", "V2\n", "V1.1\nV1.2\n"})
        EXPECT_EQ(read(1, version + structure), as_it_is) << version;
    EXPECT_EQ(read(2, structure), as_it_is);
}

} // namespace

} // namespace marlogl
