/// Paths, which are any bytes, in forms that can be shown and written down.
#pragma once

#include <string>
#include <string_view>

namespace recastor {

/// The path as valid UTF-8 on one line, for people: every byte of a control character, or that is
/// no UTF-8, becomes "\x" and two hexadecimal digits.
std::string ShownPath(std::string_view path);

/// The path as a relative URI reference: every byte but ASCII letters, digits, "/", "-", "." and
/// "_" becomes "%" and two hexadecimal digits, so that no two paths share one.
std::string UriOfPath(std::string_view path);

/// The path that UriOfPath() made `uri` of.
std::string PathOfUri(std::string_view uri);

/// Whether `left` stands before `right` in a walk that enters each folder where its name stands
/// among its neighbours' in the order of bytes.
bool IsBeforeInWalk(std::string_view left, std::string_view right);

} // namespace recastor
