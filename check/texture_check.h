// Whether the bitmaps that the output will ask for are there.
#pragma once

#include "checked_files.h"
#include "rules.h"

#include <functional>
#include <map>
#include <set>

namespace marlogl::check {

/// The folder of a path, with the separator at its end; empty for the current folder.
std::string folder_of(const std::string &path);

class TextureCheck {
  public:
    /// `folders` are those in which the bitmaps are looked for.
    TextureCheck(CheckedFiles &files, std::vector<std::string> folders);

    /// Looks for the bitmaps of an object. Each is told once. `say` gives what tells of a rule.
    template <typename SayOf> void check(const ObjectSeen &seen, SayOf say)
    {
        for (int slot = 1; slot <= last_face_slot; ++slot) {
            const bool used = uses_text(*seen.kind, slot) || (seen.face(slot) != nullptr && seen.is_on(slot));
            if (!used || !seen.is_named(slot))
                continue;
            const auto [rule, message] = fault_of(std::string(trimmed(seen.object.texts(slot))));
            if (!rule.empty())
                say(rule)(seen.line_of(seen.text_line(slot)), message);
        }
    }

  private:
    struct Fault {
        std::string_view rule; ///< empty for a bitmap that is there, or was told before
        std::string message;
    };
    Fault fault_of(const std::string &name);
    bool holds_bitmaps(const std::string &folder);

    CheckedFiles &files_;
    std::vector<std::string> folders_;
    std::map<std::string, bool> known_folders_;
    std::set<std::string> seen_;
};

} // namespace marlogl::check
