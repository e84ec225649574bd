/// The TABLES parser's diagnostic log, for developers.
#pragma once

#include <ostream>

namespace recastor {

/// An output stream onto standard error with a switch. It starts off, and nothing in the program
/// turns it on; every writer asks IsLoggingOn() first.
class TbTrDebugLog : public std::ostream {
public:
    TbTrDebugLog();

    void StartLogging() { m_loggingOn = true; }
    void StopLogging() { m_loggingOn = false; }
    bool IsLoggingOn() const { return m_loggingOn; }
    std::ostream& GetStream() { return *this; }

    static TbTrDebugLog& GetDebugLog();

private:
    static TbTrDebugLog g_debugLog;

    bool m_loggingOn = false;
};

} // namespace recastor
