// Remarks that look as if a record was meant.
#pragma once

#include "design/records.h"

#include <string>

namespace marlogl::check {

/// The record that a remark would be with a capital key, or without the blanks or the byte-order mark in
/// front of it. Empty when it would hardly be one: a remark seldom looks like that.
std::string lost_record(Line remark);

bool all_digits(std::string_view text);

} // namespace marlogl::check
