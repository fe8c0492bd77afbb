// The test program's own definitions of a few calls of the C library take the place of those in the
// library, for all the code that is linked into it.
#include "faults/faulty_system.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>

namespace zandrell::faults {
namespace {

bool armed = false;
Fault wanted = Fault::None;
int wanted_call = 0;
int calls = 0;
bool disk_full = false;
const char* hit = "";

Fault Meets(const char* name) {
    if (!armed || ++calls != wanted_call) return Fault::None;
    hit = name;
    if (wanted == Fault::KillBefore) ::_exit(kKilled);
    return wanted;
}

template <class Call>
auto Perform(const char* name, int error, const Call& call) -> decltype(call()) {
    const Fault fault = Meets(name);
    if (fault == Fault::Fails || fault == Fault::CutShort) {
        errno = error;
        return -1;
    }
    const auto result = call();
    if (fault == Fault::KillAfter) ::_exit(kKilled);
    return result;
}

ssize_t WriteHalf(int handle, const void* bytes, size_t count) {
    disk_full = true;
    return ::syscall(SYS_write, handle, bytes, count / 2);
}

}  // namespace

void Arm(Fault fault, int call) {
    wanted = fault;
    wanted_call = call;
    calls = 0;
    disk_full = false;
    hit = "";
    armed = true;
}

int Disarm() {
    armed = false;
    return calls;
}

const char* CallHit() { return hit; }

}  // namespace zandrell::faults

using zandrell::faults::Fault;
using zandrell::faults::Perform;

extern "C" {

int open(const char* path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        std::va_list arguments;
        va_start(arguments, flags);
        mode = va_arg(arguments, mode_t);
        va_end(arguments);
    }
    return static_cast<int>(Perform(
        "open", EACCES, [&] { return ::syscall(SYS_openat, AT_FDCWD, path, flags, mode); }));
}

int mkstemps(char* pattern, int suffix) {
    using Call = int (*)(char*, int);
    static const auto real = reinterpret_cast<Call>(::dlsym(RTLD_NEXT, "mkstemps"));
    return Perform("mkstemps", ENOSPC, [&] { return real(pattern, suffix); });
}

ssize_t read(int handle, void* bytes, size_t count) {
    return Perform("read", EIO, [&] { return ::syscall(SYS_read, handle, bytes, count); });
}

ssize_t write(int handle, const void* bytes, size_t count) {
    using namespace zandrell::faults;
    if (armed && disk_full) {
        errno = ENOSPC;
        return -1;
    }
    const bool cut = armed && wanted == Fault::CutShort && calls + 1 == wanted_call;
    if (cut) {
        ++calls;
        hit = "write";
        return WriteHalf(handle, bytes, count);
    }
    return Perform("write", ENOSPC, [&] { return ::syscall(SYS_write, handle, bytes, count); });
}

int fsync(int handle) {
    return static_cast<int>(Perform("fsync", EIO, [&] { return ::syscall(SYS_fsync, handle); }));
}

int fchmod(int handle, mode_t mode) noexcept {
    return static_cast<int>(
        Perform("fchmod", EPERM, [&] { return ::syscall(SYS_fchmod, handle, mode); }));
}

int close(int handle) {
    // The descriptor is gone in any case, as on the systems that report an error here.
    return static_cast<int>(Perform("close", EIO, [&] { return ::syscall(SYS_close, handle); }));
}

int rename(const char* from, const char* to) noexcept {
    return static_cast<int>(Perform(
        "rename", EACCES, [&] { return ::syscall(SYS_renameat, AT_FDCWD, from, AT_FDCWD, to); }));
}

int unlink(const char* path) noexcept {
    return static_cast<int>(
        Perform("unlink", EACCES, [&] { return ::syscall(SYS_unlinkat, AT_FDCWD, path, 0); }));
}

}  // extern "C"
