#pragma once

#include <csignal>

namespace zandrell {

// A file that grows beyond what its user may write is an error of the write, which is reported, and
// not the end of the program. Called once at the start.
inline void TakeFileLimitAsError() { std::signal(SIGXFSZ, SIG_IGN); }

}  // namespace zandrell
