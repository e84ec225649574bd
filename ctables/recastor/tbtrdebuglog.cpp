#include "ctables/recastor/tbtrdebuglog.h"

#include <iostream>

namespace recastor {

TbTrDebugLog TbTrDebugLog::g_debugLog;

TbTrDebugLog::TbTrDebugLog() : std::ostream(std::cerr.rdbuf()) {}

TbTrDebugLog& TbTrDebugLog::GetDebugLog() {
    return g_debugLog;
}

} // namespace recastor
