#pragma once

#include <string>

namespace zandrell::faults {

// What happens at one call of the system by which files are opened, read, written, flushed, closed,
// renamed or removed.
enum class Fault {
    None,
    Fails,       // the call does nothing and reports an error
    CutShort,    // a write stores half, and the disk is full from then on; other calls fail
    KillBefore,  // the process ends, as by a power cut, in front of the call
    KillAfter    // and behind it
};

inline constexpr int kKilled = 77;  // exit status of a process that was killed here

// From now on the calls are counted, and the one with this number (from 1) meets the fault.
void Arm(Fault fault, int call);
// The program's own calls are undisturbed again. Returns how many there were.
int Disarm();
// The name of the call that met the fault, for reports; empty: none did.
const char* CallHit();

}  // namespace zandrell::faults
