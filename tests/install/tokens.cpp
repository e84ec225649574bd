// Prints the tokens of a command with nothing but the installed library.

#include "ctables/recastor/zelktokensequence.h"
#include "platform/zelkmb/zelkmb.h"

#include <iostream>

int main() {
    recastor::EnableLocale();
    recastor::ZELKTokenSequence tokens("TABLES /TABLE sex BY 'region'\n", false, 0);
    while (tokens.Next()) {
        tokens.Print(std::cout);
    }
}
