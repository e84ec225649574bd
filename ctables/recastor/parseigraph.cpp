#include "ctables/recastor/parseigraph.h"

#include "ctables/recastor/messages.h"
#include "ctables/recastor/printcommand.h"
#include "ctables/recastor/zelktokensequence.h"

#include <iostream>
#include <memory>

namespace recastor {

// No chart service is there yet that understands a command, so each is reported as one that
// cannot be converted.
void ParseIgraph(ZELKTokenSequence* tokens, std::ostream& output, std::int64_t /*lineOffset*/) {
    const std::unique_ptr<ZELKTokenSequence> owner(tokens);
    output << IDS_STRING_BEGIN_GGRAPH_COMMAND << '\n';
    PrintCommand(IDS_STRING_IGRAPH_ERROR, output, 0);
    output << IDS_STRING_END_GGRAPH_COMMAND << '\n';
    std::cout << IDS_CONVERSION_IGRAPH_FAIL;
}

} // namespace recastor
