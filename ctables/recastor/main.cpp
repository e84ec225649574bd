// recastor: rewrites the TABLES and IGRAPH commands of a syntax file.

#include "ctables/recastor/commandline.h"
#include "platform/zelkbase/heapsettings.h"
#include "platform/zelkmb/zelkmb.h"

#include <iostream>

int main(int argc, char* argv[]) {
    recastor::KeepFreedMemory();
    recastor::EnableLocale();
    const auto request = recastor::ReadArguments(argc, argv);
    if (!request) {
        std::cerr << recastor::Usage(argc > 0 ? argv[0] : "") << '\n';
        return 1;
    }
    return recastor::RunConversion(*request);
}
