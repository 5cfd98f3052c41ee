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
    TextMemory larger;
    if (!memory_ || (flushes_ % 16 == 0 && block_ < most_block))
        larger = std::make_unique_for_overwrite<CacheLine[]>((2 * block_ + usual_need) / sizeof(CacheLine));
    const std::string_view rest = pending().substr(std::min(block_, pending().size()));
    next_ -= rest.size();
    write_all();
    if (larger) {
        larger.swap(memory_); // The rest is in the old one.
        block_ *= 2;
        next_ = buffer_ = memory_[0].text;
    }
    next_ = std::copy(rest.begin(), rest.end(), next_);
    end_ = buffer_ + block_ + usual_need;
}

void Output::write_all()
{
    const std::string_view lines = pending();
    ++flushes_;
    next_ = buffer_; // lines that are not taken now will never be
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
