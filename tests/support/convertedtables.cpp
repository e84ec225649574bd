#include "tests/support/convertedtables.h"

#include <stdexcept>

namespace recastor {

std::vector<ConvertedTables> ConvertedTablesIn(const std::string& output) {
    const std::string begin = "COMMENT -- Begin CTABLES command.";
    const std::string end = "COMMENT -- End CTABLES command.";
    const std::string mark = "***** ";
    std::vector<ConvertedTables> found;
    for (std::size_t at = output.find(begin); at != std::string::npos;
         at = output.find(begin, at)) {
        ConvertedTables one;
        at = output.find('\n', at) + 1;
        const std::size_t last = output.find(end, at);
        if (last == std::string::npos) {
            throw std::invalid_argument("the last converted command has no end:\n" + output);
        }
        while (output.compare(at, mark.size(), mark) == 0) {
            const std::size_t lineEnd = output.find_first_of("\r\n", at);
            one.messages.push_back(output.substr(at + mark.size(), lineEnd - at - mark.size()));
            at = output.find('\n', at) + 1;
        }
        one.commands = output.substr(at, last - at);
        found.push_back(one);
        at = last;
    }
    return found;
}

} // namespace recastor
