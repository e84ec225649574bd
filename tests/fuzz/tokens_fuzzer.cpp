// Any text, as one command and as a file: the tokenizer, and the check that stands in for it on
// copied commands, end and agree; the search for the ends of commands comes to an end.

#include "ctables/recastor/commandstream.h"
#include "ctables/recastor/parseerror.h"
#include "ctables/recastor/tokenscan.h"
#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkmb/zelkmb.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <tuple>

namespace {

/// Line, column and kind of the error that `read` ends in; zeros when it ends well.
template <typename Read>
std::tuple<long, int, int> ErrorOf(const Read& read) {
    try {
        read();
    } catch (const recastor::ParseError& error) {
        long line = 0;
        int column = 0;
        error.GetLineAndCol(line, column);
        return {line, column, error.GetErrorID()};
    }
    return {0, 0, 0};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    recastor::EnableLocale();
    for (const bool batch : {false, true}) {
        bool ordinary = false;
        ErrorOf([&] {
            recastor::ZELKTokenSequence opening(text, batch, recastor::kTokensThatTellTheKind);
            ordinary = opening.TypeOfCommand() == recastor::kOrdinaryCommand;
        });
        const auto read = ErrorOf([&] {
            recastor::ZELKTokenSequence tokens(text, batch, 0);
            while (tokens.Next()) {
                tokens.LineNumber();
            }
        });
        if (ordinary && read != ErrorOf([&] { recastor::CheckTokens(text.c_str(), batch); })) {
            std::abort();
        }
        std::istringstream lines(text);
        recastor::CommandStream commands(lines, batch);
        ErrorOf([&] {
            while (!commands.NextCommand()) {
            }
        });
    }
    return 0;
}
