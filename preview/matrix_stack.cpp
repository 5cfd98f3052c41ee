#include "matrix_stack.h"

const char *MatrixStack::play(const Statement &statement)
{
    constexpr std::size_t deepest = 32; // the depth that OpenGL promises
    const auto [a, b, c, d] = statement.values;
    if (statement.operation == Operation::matrix_mode)
        in_modelview_ = statement.symbol == Symbol::modelview;
    if (!in_modelview_)
        return nullptr;
    switch (statement.operation) {
    case Operation::load_identity:
        current_ = {};
        break;
    case Operation::push_matrix:
        if (pushed_.size() == deepest)
            return "glPushMatrix: the matrix stack is full";
        pushed_.push_back(current_);
        break;
    case Operation::pop_matrix:
        if (pushed_.empty())
            return "glPopMatrix without glPushMatrix";
        current_ = pushed_.back();
        pushed_.pop_back();
        break;
    case Operation::translate:
        current_ = current_ * translation({a, b, c});
        break;
    case Operation::rotate:
        current_ = current_ * rotation(a, unit({b, c, d}));
        break;
    case Operation::scale:
        current_ = current_ * scaling({a, b, c});
        break;
    default:
        break;
    }
    return nullptr;
}
