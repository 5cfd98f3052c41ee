#include "emit/ngon_file.h"

#include "emit/output.h"

namespace marlogl {

namespace {

// `x` as a text with the pattern "0" shows it.
double as_written(double x)
{
    if (x == std::trunc(x))
        return x;
    char text[output::most_of_number];
    const char *end = output::put(text, p0(x));
    return numeric_value({text, static_cast<std::size_t>(end - text)});
}

char *put_corner(char *at, NgonLayout layout, const Corner &corner)
{
    using namespace output;
    const auto [point, u, v] = corner;
    if (layout == NgonLayout::gable)
        return put_line(put(put(at, "    "), p0(point)), "  ", spaced(u), " ", spaced(v));
    return put_line(put(put(at, "   "), p0(point)), "  ", p0(u), " ", p0(v));
}

} // namespace

NgonFile::~NgonFile()
{
    try {
        settle();
    } catch (const std::exception &) { // the conversion has failed for another reason
    }
}

void NgonFile::open(NgonLayout layout)
{
    if (!is_created_ && !can_wait_) {
        can_wait_ = files_.can_create(path_);
        if (!can_wait_)
            files_.create(path_)->close();
        is_created_ = !can_wait_;
    }
    layout_ = layout;
    written_.clear();
    present_ = true;
}

void NgonFile::add(const Corner &corner)
{
    written_.push_back({as_written(corner.point), corner.u, corner.v});
}

std::span<const Corner> NgonFile::read()
{
    if (written_.size() > corners.last)
        raise_outside(corners.last + 1, corners);
    present_ = false;
    return written_;
}

void NgonFile::settle()
{
    const bool was_created = std::exchange(is_created_, false);
    if (std::exchange(present_, false)) {
        const std::unique_ptr<OutputFile> file = files_.create(path_);
        // It takes no more memory: that may be what is missing.
        char line[4 * output::most_of_number];
        for (const Corner &corner : written_) {
            const char *end = put_corner(line, layout_, corner);
            file->write({line, static_cast<std::size_t>(end - line)});
        }
        file->close();
    } else if (was_created) {
        files_.remove(path_);
    }
}

} // namespace marlogl
