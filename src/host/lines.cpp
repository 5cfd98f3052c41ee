#include "host/lines.h"

#include "base/run_error.h"

namespace marlogl {

LineReader::LineReader(FileSystem &files, const std::string &path, std::size_t capacity)
    : path_(path), file_(files.open(path)), capacity_(capacity),
      memory_(new CacheLine[capacity / sizeof(CacheLine)])
{
    if (!file_)
        throw RunError(Fault::missing_file, "cannot open " + quoted_path(path) + ": there is no such file");
    // A read may return less than there is: the mark is known only when all of it could be there.
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    while (end_ < mark.size()) {
        const std::size_t got = file_->read(buffer_ + end_, capacity - end_);
        if (got == 0)
            break;
        end_ += got;
    }
    if (std::string_view(buffer_, end_).starts_with(mark))
        next_ = mark.size();
}

bool LineReader::fill()
{
    next_ = 0;
    end_ = file_->read(buffer_, capacity_);
    return end_ > 0;
}

std::string_view LineReader::read_long_line(std::size_t most)
{
    if (at_end())
        throw RunError(Fault::past_end, "the file " + quoted_path(path_) + " ends where a line is expected");
    long_line_.clear();
    bool ended = false, last_is_cr = false; // a CR belongs to the line end only before an LF
    std::size_t length = 0;
    do {
        const std::string_view rest(buffer_ + next_, end_ - next_);
        const std::size_t stop = rest.find('\n');
        ended = stop != rest.npos;
        const std::string_view piece = rest.substr(0, stop);
        long_line_.append(piece.substr(0, most - long_line_.size()));
        length += piece.size();
        if (!piece.empty())
            last_is_cr = piece.back() == '\r';
        next_ += piece.size() + (ended ? 1 : 0);
    } while (!ended && fill());
    if (ended && last_is_cr)
        --length;
    return std::string_view(long_line_).substr(0, std::min(length, most));
}

} // namespace marlogl
