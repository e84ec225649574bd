// The rest of one command of the kind: the run ends, and what is written for it can be read again.

#include "tests/fuzz/inmemoryrun.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string command = RECASTOR_FUZZ_COMMAND " ";
    command.append(reinterpret_cast<const char*>(data), size).append(".\n");
    if (recastor::MayStopTheProgram(command)) {
        return -1;
    }
    const auto result = recastor::ConvertInMemory(command, false);
    // A quote behind a backslash, in GPL, is more than the rules of words and literals know.
    const bool readable = result.output.find("\\\"") == std::string::npos;
    if (result.status == 0 && readable &&
        recastor::ConvertInMemory(result.output, false).status != 0) {
        std::abort();
    }
    return 0;
}
