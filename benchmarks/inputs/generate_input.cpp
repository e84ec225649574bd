// generate-input KIND BYTES SEED: writes an input for benchmarks to standard output.
// generate-input product TERMS 0: the same for the command that multiplies out to TERMS terms.

#include "benchmarks/inputs/inputs.h"

#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace recastor {

namespace {

/// In blocks, so that memory does not grow with the size.
void WriteInput(std::string_view kind, std::size_t bytes, std::uint64_t seed) {
    constexpr std::size_t kBlock = 1 << 16;
    InputGenerator generator(kind, seed);
    std::string block;
    while (bytes > 0 && std::cout) {
        block.clear();
        while (block.size() < std::min(bytes, kBlock)) {
            generator.AppendCommand(block);
        }
        std::cout << block;
        bytes -= std::min(bytes, block.size());
    }
}

int Main(int argc, const char* const* argv) {
    constexpr int kArguments = 4;
    if (argc != kArguments) {
        std::cerr << "usage: generate-input KIND BYTES SEED\nkinds: product";
        for (const std::string_view kind : InputKinds()) {
            std::cerr << ' ' << kind;
        }
        std::cerr << '\n';
        return EXIT_FAILURE;
    }
    const std::string_view kind = argv[1];
    const std::size_t size = std::stoull(argv[2]);
    if (kind == "product") {
        std::cout << GenerateProduct(size);
    } else {
        WriteInput(kind, size, std::stoull(argv[3]));
    }
    return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

} // namespace recastor

int main(int argc, char** argv) {
    try {
        return recastor::Main(argc, argv);
    } catch (const std::logic_error& error) {
        std::cerr << "generate-input: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
