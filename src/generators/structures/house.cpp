// Gabled house: a box of walls under two slopes, whose ridge runs along y.
#include "generators/figures.h"
#include "generators/generators.h"

namespace marlogl {

namespace {

enum Part { walls, gables, slopes };

//   1,5 ---9--- 2,6   ^ y     0-3 base, 4-7 eaves, 8-9 ridge
//    |     |     |    |
//   0,4 ---8--- 3,7   +--> x
constexpr struct {
    Part part;
    Face face; // slots: inside, outside; points as the outside pass writes them
} faces[] = {
    {walls,  {"base front", {{7, 25}, {1, 1}}, {3, 7, 4, 0}}          },
    {walls,  {"base left", {{9, 33}, {3, 9}}, {0, 4, 5, 1}}           },
    {walls,  {"base back", {{8, 29}, {2, 5}}, {1, 5, 6, 2}}           },
    {walls,  {"base right", {{10, 37}, {4, 13}}, {2, 6, 7, 3}}        },
    {gables, {"roof front", {{15, 55}, {13, 49}}, {7, 8, 4, no_point}}},
    {slopes, {"roof left", {{11, 41}, {5, 17}}, {8, 9, 5, 4}}         },
    {gables, {"roof back", {{16, 58}, {14, 52}}, {5, 9, 6, no_point}} },
    {slopes, {"roof right", {{12, 45}, {6, 21}}, {7, 6, 9, 8}}        },
};

} // namespace

void save_house()
{
    remember_texture("99999999");
    const double wall_height = cell(1), roof_height = cell(6);
    const Span x = centred(cell(2)), y = centred(cell(7));
    const double ground = cell(58), eaves = ground + wall_height, ridge = eaves + roof_height;

    record_rectangle(x, y, ground);
    record_rectangle(x, y, eaves);
    record(0, y.low, ridge);
    record(0, y.high, ridge);

    const bool present[] = {wall_height > 0, roof_height > 0, true};
    for (const Side side : {inside, outside}) {
        set_view_side(side);
        for (const auto &[part, face] : faces)
            if (present[part])
                write_face(side, face);
    }
}

} // namespace marlogl
