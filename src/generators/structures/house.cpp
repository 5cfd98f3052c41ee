// Gabled house: a box of walls under two slopes, whose ridge runs along y.
#include "generators/figures.h"

namespace marlogl {

namespace {

enum Part { walls, gables, slopes };

//   1,5 ---9--- 2,6   ^ y     0-3 base, 4-7 eaves, 8-9 ridge
//    |     |     |    |
//   0,4 ---8--- 3,7   +--> x
constexpr struct {
    Part part;
    Face face; // slots: inside, outside; points as the outside pass draws them
} faces[] = {
    {walls,  {{{7, 25}, {1, 1}}, {3, 7, 4, 0}}          }, // front
    {walls,  {{{9, 33}, {3, 9}}, {0, 4, 5, 1}}          }, // left
    {walls,  {{{8, 29}, {2, 5}}, {1, 5, 6, 2}}          }, // back
    {walls,  {{{10, 37}, {4, 13}}, {2, 6, 7, 3}}        }, // right
    {gables, {{{15, 55}, {13, 49}}, {7, 8, 4, no_point}}}, // front
    {slopes, {{{11, 41}, {5, 17}}, {8, 9, 5, 4}}        }, // left
    {gables, {{{16, 58}, {14, 52}}, {5, 9, 6, no_point}}}, // back
    {slopes, {{{12, 45}, {6, 21}}, {7, 6, 9, 8}}        }, // right
};

} // namespace

void draw_gabled_house(Pen &pen)
{
    const double wall_height = pen.cell(1), roof_height = pen.cell(6);
    const Span x = centred(pen.cell(2)), y = centred(pen.cell(7));
    const double ground = pen.cell(58), eaves = ground + wall_height, ridge = eaves + roof_height;

    record_rectangle(pen, x, y, ground);
    record_rectangle(pen, x, y, eaves);
    pen.record(0, y.low, ridge);
    pen.record(0, y.high, ridge);

    const bool present[] = {wall_height > 0, roof_height > 0, true};
    for (const Side side : {inside, outside}) {
        pen.choose_side(side);
        for (const auto &[part, face] : faces)
            if (present[part])
                draw_face(pen, side, face);
    }
}

} // namespace marlogl
