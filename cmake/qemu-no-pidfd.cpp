// Preloaded into test programs run under qemu user emulation. qemu 7.2
// refuses clone(CLONE_PIDFD), but passes the kernel's waitid(P_PIDFD)
// through, so Qt's QProcess concludes that pidfds work and then cannot
// start any process. Failing that probe makes Qt fall back to fork().
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#ifndef P_PIDFD
#define P_PIDFD 3
#endif

extern "C" long syscall(long number, ...)
{
    va_list ap;
    va_start(ap, number);
    long a[6];
    for (long &v : a)
        v = va_arg(ap, long);
    va_end(ap);
    if (number == SYS_waitid && a[0] == P_PIDFD) {
        errno = EINVAL;
        return -1;
    }
    using Real = long (*)(long, ...);
    static const Real real = reinterpret_cast<Real>(dlsym(RTLD_NEXT, "syscall"));
    return real(number, a[0], a[1], a[2], a[3], a[4], a[5]);
}

// Programs the test starts (the build machine's own sh, cp, ...) must not
// inherit a preload of the other architecture.
__attribute__((constructor)) static void dropPreload()
{
    unsetenv("LD_PRELOAD");
}
