#include "tests/fuzz/inmemoryrun.h"

#include "ctables/recastor/commandline.h"
#include "platform/zelkmb/zelkmb.h"
#include "tests/support/memoryfile.h"

#include <algorithm>
#include <iostream>

namespace recastor {

namespace {

bool Contains(std::string_view text, std::string_view lowerCaseWord) {
    const auto equals = [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b; };
    return std::search(text.begin(), text.end(), lowerCaseWord.begin(), lowerCaseWord.end(),
                       equals) != text.end();
}

} // namespace

InMemoryResult ConvertInMemory(std::string_view input, bool batch) {
    std::cout.setstate(std::ios::badbit);
    std::cerr.setstate(std::ios::badbit);
    const MemoryFile source(input);
    const MemoryFile target("");
    EnableLocale();
    InMemoryResult result;
    result.status = RunConversion({batch, source.Name(), target.Name()});
    result.output = target.Content();
    std::cerr.clear();
    return result;
}

bool MayStopTheProgram(std::string_view input) {
    return Contains(input, "bla") && Contains(input, "zer");
}

} // namespace recastor
