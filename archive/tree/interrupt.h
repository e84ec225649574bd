/// Ctrl-C: the first asks a run to end when the files in hand are done, the second at once.
#pragma once

namespace recastor {

/// From now on SIGINT, SIGTERM and SIGHUP are counted instead of ending the process; one that the
/// process was started to ignore, as by nohup, is still ignored.
void CatchInterrupts();

/// How often one came.
int Interrupts();

} // namespace recastor
