// Reads a design file as the converter does, but goes on behind what stops it, and checks every line.
#pragma once

#include "report.h"
#include "seen.h"

#include "host/lines.h"

namespace marlogl::check {

/// A design file after it was read.
struct DesignSeen {
    Scene scene = {};
    std::vector<ObjectLines> lines = {};
    double file_version = 0; ///< times ten
    bool is_text = true;     ///< its lines end, and hold no NUL byte
    /// Objects in whose lines errors or warnings were found.
    std::vector<bool> complained = {};
};

/// Errors: input_output.
void read_design(LineReader &file, int version, DesignSeen &seen, FileReport &report);

/// Says what `rule` has found, and whether it was about an object.
class SayTo : public Say {
  public:
    SayTo(FileReport &report, const Rule &rule, int object, std::vector<bool> *complained = nullptr)
        : report_(report), rule_(rule), object_(object), complained_(complained)
    {
    }
    using Say::operator();
    void operator()(LineNumber line, Columns columns, const Message &message) const override;

  private:
    FileReport &report_;
    const Rule &rule_;
    int object_;
    std::vector<bool> *complained_;
};

/// The rule of a name, which exists.
const Rule &rule(std::string_view name);

} // namespace marlogl::check
