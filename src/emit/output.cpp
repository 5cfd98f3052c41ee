#include "emit/output.h"

#include <utility>

namespace marlogl {

Output::Output(FileSystem &files, const std::string &path) : file_(files.create(path)) {}

Output::~Output()
{
    if (file_)
        file_->abandon(pending());
}

void Output::flush()
{
    const std::string_view lines = pending();
    ++flushes_;
    next_ = buffer_.get(); // lines that are not taken now will never be
    if (!lines.empty())
        file_->write(lines);
}

void Output::write_long(std::string_view line)
{
    flush();
    file_->write(line);
}

void Output::close()
{
    flush();
    const std::unique_ptr<OutputFile> closing = std::move(file_);
    closing->close();
}

} // namespace marlogl
