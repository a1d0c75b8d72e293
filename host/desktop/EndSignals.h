#pragma once

#include <csignal>

/// The signals by which somebody asks the process to end.
namespace EndSignals {

constexpr int all[] = {SIGINT, SIGTERM, SIGHUP};

/// Has the handler take the signal once; a second one ends the process. Where it is ignored, as under nohup, it stays
/// so.
void take(int signal, void (*handler)(int));

/// Gives it back, where that handler would still take it.
void giveBack(int signal, void (*handler)(int));

}  // namespace EndSignals
