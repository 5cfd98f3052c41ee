// Outputs in short, for files that people compare: a textured face on one line.
#pragma once

#include <string>
#include <string_view>

namespace marlogl {

/// `output` with each textured face folded into one line, such as
///   face brick.bmp I n0.00 1.00 0.00 255 0 @18 -15 0 ...
/// which says its texture, the kind of its colour line (I inside, O outside, - none), its normal where that
/// stands, and for each corner the texture position in pixels and, behind "@", the point. Every other line
/// stays as it is, and so does a face that is written in any other way: different outputs never fold into the
/// same text.
std::string folded(std::string_view output);

} // namespace marlogl
