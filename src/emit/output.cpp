#include "emit/output.h"

#include <algorithm>
#include <utility>

namespace marlogl {

Output::Output(FileSystem &files, const std::string &path) : file_(files.create(path)) {}

Output::~Output()
{
    if (file_)
        file_->abandon(pending());
}

// What is beyond a block stays. That is no more than the usual need, so behind it there is room for any line
// that is built in the buffer.
void Output::flush()
{
    std::unique_ptr<char[]> larger;
    if (flushes_ % 16 == 15 && block_ < most_block)
        larger = std::make_unique_for_overwrite<char[]>(2 * block_ + usual_need);
    const std::string_view rest = pending().substr(std::min(block_, pending().size()));
    next_ -= rest.size();
    write_all();
    if (larger) {
        larger.swap(buffer_);
        block_ *= 2;
        next_ = buffer_.get();
    }
    next_ = std::copy(rest.begin(), rest.end(), next_);
    end_ = buffer_.get() + block_ + usual_need;
}

void Output::write_all()
{
    const std::string_view lines = pending();
    ++flushes_;
    next_ = buffer_.get(); // lines that are not taken now will never be
    if (!lines.empty())
        file_->write(lines);
}

void Output::close()
{
    write_all();
    const std::unique_ptr<OutputFile> closing = std::move(file_);
    closing->close();
}

} // namespace marlogl
