#include "archive/report/pageshell.h"

namespace recastor {

namespace {

/// Nothing is loaded from anywhere but the report's own folder. The chart library makes functions
/// of the expressions in its descriptions.
constexpr std::string_view kPolicy =
    "default-src 'none'; script-src 'self' file: 'unsafe-inline' 'unsafe-eval'; "
    "style-src 'self' file: 'unsafe-inline'; img-src data:";

} // namespace

std::string EscapedForHtml(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

std::string PageStart(std::string_view title, std::string_view head) {
    std::string page = "<!doctype html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width\">\n"
                       "<meta http-equiv=\"Content-Security-Policy\" content=\"";
    page.append(kPolicy).append("\">\n<title>").append(EscapedForHtml(title)).append("</title>\n");
    page.append(head).append("</head>\n<body>\n<a class=\"skip\" href=\"#content\">Skip to the "
                             "content</a>\n<main id=\"content\" tabindex=\"-1\">\n<noscript>This "
                             "report is shown by a script.</noscript>\n</main>\n"
                             "<script type=\"application/json\" id=\"report\">");
    return page;
}

std::string PageEnd(std::string_view script) {
    return "</script>\n" + std::string(script) + "\n</body>\n</html>\n";
}

} // namespace recastor
