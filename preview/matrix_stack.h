// The modelview matrix of OpenGL with its stack.
#pragma once

#include "geometry.h"
#include "statements.h"

#include <vector>

class MatrixStack {
  public:
    const Placement &current() const { return current_; }

    // How many matrices were pushed and not popped.
    std::size_t depth() const { return pushed_.size(); }

    // Takes a statement about matrices; those for other matrices are without effect. Returns what is wrong
    // when OpenGL would refuse it, else null.
    const char *play(const Statement &statement);

  private:
    std::vector<Placement> pushed_;
    Placement current_;
    bool in_modelview_ = true;
};
