// Any file: the run ends, no line is lost, and the output has nothing left to convert.

#include "tests/fuzz/inmemoryrun.h"
#include "tests/fuzz/keptlines.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

[[noreturn]] void Fail(const char* what, const std::string& detail) {
    std::fprintf(stderr, "%s: %s\n", what, detail.c_str());
    std::abort();
}

/// The text without blanks and periods: each conversion drops the last of several periods at a
/// command's end, and the white space around it.
std::string WithoutEnds(std::string text) {
    std::erase_if(
        text, [](char c) { return std::string_view(" \t\r.").find(c) != std::string_view::npos; });
    return text;
}

/// A double quote in a chart's text stands behind a backslash in its GPL block, which the rules of
/// words and literals do not know: such an output cannot be read again.
bool HoldsEscapedQuote(const std::string& text) {
    return text.find("\\\"") != std::string::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    if (recastor::MayStopTheProgram(input)) {
        return -1;
    }
    const auto first = recastor::ConvertInMemory(input, RECASTOR_FUZZ_BATCH);
    if (first.status != 0) {
        return 0; // an error ended the run where it stands
    }
    if (const auto lost = recastor::FirstLostLine(input, first.output)) {
        Fail("a line is lost", *lost);
    }
    if (HoldsEscapedQuote(first.output)) {
        return 0;
    }
    const auto second = recastor::ConvertInMemory(first.output, RECASTOR_FUZZ_BATCH);
    if (WithoutEnds(second.output) != WithoutEnds(first.output)) {
        Fail("converting again changes the output", first.output + "\n=====\n" + second.output);
    }
    return 0;
}
