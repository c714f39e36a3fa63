// SPDX-License-Identifier: MIT
#include "platform/sandbox/SystemCallFilter.h"

#include <fcntl.h>
#include <linux/sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

namespace {

constexpr uint32_t notPermitted = SCMP_ACT_ERRNO(EPERM);
constexpr uint32_t notImplemented = SCMP_ACT_ERRNO(ENOSYS);

#ifdef __s390__
constexpr unsigned cloneFlags = 1;
#else
constexpr unsigned cloneFlags = 0;
#endif

// A rule that fails leaves the others in force.
void answer(void *context, uint32_t action, const char *name, std::initializer_list<scmp_arg_cmp> conditions)
{
    const int number = seccomp_syscall_resolve_name(name);
    if (context && number != __NR_SCMP_ERROR) {
        seccomp_rule_add_array(
            context, action, number, static_cast<unsigned>(conditions.size()), conditions.begin());
    }
}

scmp_arg_cmp maskedEquals(unsigned argument, uint64_t mask, uint64_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

scmp_arg_cmp differsFrom(unsigned argument, uint64_t value)
{
    return {argument, SCMP_CMP_NE, value, 0};
}

} // namespace

SystemCallFilter::SystemCallFilter()
    : m_context(seccomp_init(SCMP_ACT_ALLOW))
{
    if (!m_context)
        return;
    // Calls with the numbers of another architecture would bypass the filter; the default of libseccomp
    // kills.
    seccomp_attr_set(m_context, SCMP_FLTATR_ACT_BADARCH, notImplemented);
    seccomp_attr_set(m_context, SCMP_FLTATR_CTL_TSYNC, 1);
}

SystemCallFilter::~SystemCallFilter()
{
    if (m_context)
        seccomp_release(m_context);
}

void SystemCallFilter::refuse(Names names)
{
    for (const char *name : names)
        answer(m_context, notPermitted, name, {});
}

void SystemCallFilter::refuseNewProcesses()
{
    refuse({"fork", "vfork"});
    answer(m_context, notPermitted, "clone", {maskedEquals(cloneFlags, CLONE_THREAD, 0)});
    answer(m_context, notImplemented, "clone3", {});
}

void SystemCallFilter::refuseOpeningToWrite()
{
    refuse({"creat"});
    // A filter cannot see the flags of openat2().
    answer(m_context, notImplemented, "openat2", {});
    const auto refuseFlag = [this](uint64_t mask, uint64_t value) {
        answer(m_context, notPermitted, "open", {maskedEquals(1, mask, value)});
        answer(m_context, notPermitted, "openat", {maskedEquals(2, mask, value)});
    };
    refuseFlag(O_ACCMODE, O_WRONLY);
    refuseFlag(O_ACCMODE, O_RDWR);
    refuseFlag(O_CREAT, O_CREAT);
    refuseFlag(O_TRUNC, O_TRUNC);
}

void SystemCallFilter::refuseSignalsToOthers()
{
    const auto self = static_cast<uint64_t>(::getpid());
    for (const char *name : {"kill", "tgkill", "rt_sigqueueinfo", "rt_tgsigqueueinfo"})
        answer(m_context, notPermitted, name, {differsFrom(0, self)});
    // The first names a thread of any process, the second a process by a descriptor.
    refuse({"tkill", "pidfd_send_signal"});
}

void SystemCallFilter::refuseNewLimits()
{
    refuse({"setrlimit"});
    answer(m_context, notPermitted, "prlimit64", {differsFrom(2, 0)});
}

void SystemCallFilter::refuseTyping()
{
    answer(m_context, notPermitted, "ioctl", {maskedEquals(1, 0xFFFFFFFF, TIOCSTI)});
    answer(m_context, notPermitted, "ioctl", {maskedEquals(1, 0xFFFFFFFF, TIOCLINUX)});
}

bool SystemCallFilter::load()
{
    return m_context && seccomp_load(m_context) == 0;
}
