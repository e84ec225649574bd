/// What all pages of the HTML report share.
#pragma once

#include <string>
#include <string_view>

namespace recastor {

/// The text with the characters that mean something in HTML as references.
std::string EscapedForHtml(std::string_view text);

/// A document up to the element that carries the page's data, which is left open. `head` is HTML.
std::string PageStart(std::string_view title, std::string_view head);

/// What follows the data. `script` is a whole script element.
std::string PageEnd(std::string_view script);

} // namespace recastor
