// The errors that end a run, and the words that the message of one gathers on its way out.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace marlogl {

enum class Fault { index, overflow, missing_file, past_end, division, negative_length, input_output };

/// A run-time error: its kind, and the bare fact as text. The reading loop and the object loop put the place
/// in front of the fact and throw it on.
class RunError : public std::runtime_error {
  public:
    RunError(Fault kind, const std::string &fact) : std::runtime_error(fact), fault(kind) {}

    /// The same error with `place` and ": " before its fact.
    RunError at(const std::string &place) const { return {fault, place + ": " + what()}; }

    Fault fault;
};

/// `text` in double quotes, fit for one line of a message: cut after `most` bytes ("..." says so), control
/// characters shown as "?".
std::string quoted(std::string_view text, std::size_t most = 40);

/// A path in double quotes, whole unless no system would take it.
inline std::string quoted_path(std::string_view path)
{
    return quoted(path, 4096);
}

} // namespace marlogl
