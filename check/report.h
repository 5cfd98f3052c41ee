// What the rules have found in the files of a call.
#pragma once

#include "rules.h"

#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace marlogl::check {

struct Finding {
    LineNumber line;
    Columns columns;
    const Rule *rule;
    std::string message;
    int object; ///< 0 for none
};

/// How many findings of each severity there are.
struct Counts {
    int of[3] = {};

    int operator()(Severity severity) const { return of[static_cast<int>(severity)]; }
};

/// What was found in one file.
class FileReport {
  public:
    FileReport(std::string file, const std::set<const Rule *> &disabled)
        : file_(std::move(file)), disabled_(&disabled)
    {
    }

    /// Switches a rule off from a line on.
    void ignore(const Rule &rule, LineNumber from) { ignored_.try_emplace(&rule, from); }
    void add(const Rule &rule, LineNumber line, Columns columns, std::string message, int object);
    /// What the object of a number is called: its name in quotes and its kind.
    void describe(std::vector<std::string> objects) { objects_ = std::move(objects); }
    void sort();

    const std::string &file() const { return file_; }
    const std::vector<Finding> &findings() const { return findings_; }
    /// Also of those that are not kept: of a rule that fires everywhere, the first thousand are enough.
    const Counts &counts() const { return counts_; }
    std::string object_of(const Finding &finding) const;

  private:
    std::string file_;
    const std::set<const Rule *> *disabled_;
    std::map<const Rule *, LineNumber> ignored_;
    std::map<const Rule *, int> told_;
    std::vector<Finding> findings_;
    std::vector<std::string> objects_;
    Counts counts_;
};

/// Writes the findings as compilers do.
void write_text(std::ostream &out, const std::vector<FileReport> &reports, bool colours);

/// Writes the findings as an array of objects.
void write_json(std::ostream &out, const std::vector<FileReport> &reports);

/// "2 errors, 1 warning, 0 notes in 1 file".
std::string summary(const std::vector<FileReport> &reports);

Counts total(const std::vector<FileReport> &reports);

/// Writes the names of all rules with their severities and texts.
void write_rules(std::ostream &out);

/// Writes what a rule is for, and its example.
void write_explanation(std::ostream &out, const Rule &rule);

} // namespace marlogl::check
