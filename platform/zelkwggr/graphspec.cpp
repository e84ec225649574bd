#include "platform/zelkwggr/graphspec.h"

namespace recastor {

void GraphSpec::SetOutputLabel(const std::string& label) {
    m_outputLabel = label;
}

} // namespace recastor
