// Scenes without a fault, in which the examples of the rules are small changes.
#pragma once

#include <string_view>

namespace marlogl::check::examples {

/// The file that holds them, but for those of version 1.
inline constexpr std::string_view scene = "scene.mr2";

inline constexpr std::string_view house = R"(A23
BOld barn
P01 13
P02 36
P06 14
P07 30
K01Y
F01front
Q001   0 255
Q002   0   0
Q003 255   0
Q004 255 255
)";

inline constexpr std::string_view two_houses = R"(A23
BOld barn
P01 13
P02 36
P07 30
K01Y
F01front
Q001   0 255
Q002   0   0
Q003 255   0
Q004 255 255
A23
BNew barn
C90
K3001
)";

inline constexpr std::string_view box = R"(V1.2
A11
BBox
P01 30
P02 20
P03 30
P04 20
P05 30
P06 20
P07 30
P08 20
P09 14
P21 5000
K01Y
F01front
Q001   0 255
Q002   0   0
Q003 255   0
Q004 255 255
)";

inline constexpr std::string_view roof = R"(A9
BRoof
P01 28
P02 36
P03 14
P07 16
P11 2000
K07Y
F07tiles
Q025   0 255
Q026 128   0
Q027 255 255
)";

inline constexpr std::string_view sign = R"(A4
BInn sign
P01 18
P02 18
P03 21
P04 6
P08 1
K01Y
F01inn
Q001   0 255
Q002   0   0
Q003 255   0
Q004 255 255
)";

inline constexpr std::string_view meadow = R"(A18
BMeadow
P02 2
P11 3
K22Y
F22grass
Q00149504950
Q00250504950
Q00350505050
Q02149504950
Q02250504950
Q02350505050
Q14150007550
Q14275507550
Q14375505000
)";

inline constexpr std::string_view triangles = R"(A18
BMeadow
P02 2
P04 1
P11 3
K22Y
F22grass
Q00149504950  123
Q00250504950
Q00350505050
Q02149504950
Q02250504950
Q02350505050
Q14150007550
Q14275507550
Q14375505000
)";

inline constexpr std::string_view wheel = R"(A19
BMill wheel
P01 24
P02 20
P03 6
P04 1
P11 12
K01Y
F01rim
Q001   0   0
Q002   0 255
Q003 255 255
Q004 255   0
)";

inline constexpr std::string_view flag = R"(A13
BFlag
P01 14
P02 9
P58 24
K01Y
F01flag
Q001   0
Q002   0
Q003 255
Q004 255
)";

inline constexpr std::string_view fence = R"(A20
BFence
P01 5
K0107
Q00149804986     P
Q00250004986     L
Q00350004986     P
)";

inline constexpr std::string_view road = R"(A21
BLane
P01 148
P02 16
P13 255
P14 1530
P17 255
P18 1530
F01asphalt
F02stone
Q00149265000 6Y
Q00250745000 6Y
)";

inline constexpr std::string_view tower = R"(A22
BLadder
P01 10
P02 90
Q0015000500003YS H
Q0025000500603Y  H
)";

inline constexpr std::string_view mast = R"(A6
BMast
P03 12
P04 12
P06 7
\01  224000000
\02  240240240
)";

inline constexpr std::string_view configuration = R"(scene.mr2
scene.out
255255255
224224224
)";

inline constexpr std::string_view colour_table = R"(01 black          000 000 000
02 white          255 255 255
03 red            224 000 000
04 green          000 224 000
05 blue           000 000 224
06 grey           192 192 192
07 brown          160 120 100
)";

} // namespace marlogl::check::examples
