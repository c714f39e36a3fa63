// SPDX-License-Identifier: MIT
#include "platform/sandbox/SystemCallFilter.h"

#include <seccomp.h>

#include <cerrno>
#include <memory>

namespace {

constexpr uint32_t notImplemented = SCMP_ACT_ERRNO(ENOSYS);

using Filter = std::unique_ptr<void, void (*)(scmp_filter_ctx)>;

// A call whose rule fails stays refused.
void allow(const Filter &filter, const AllowedCall &call)
{
    const int number = seccomp_syscall_resolve_name(call.name);
    if (number == __NR_SCMP_ERROR)
        return;
    const scmp_arg_cmp condition{call.argument, SCMP_CMP_MASKED_EQ, call.mask, call.value};
    seccomp_rule_add_array(filter.get(), SCMP_ACT_ALLOW, number, call.mask == 0 ? 0 : 1, &condition);
}

} // namespace

bool restrictSystemCalls(const std::vector<AllowedCall> &allowed)
{
    const Filter filter(seccomp_init(notImplemented), seccomp_release);
    if (!filter)
        return false;
    // The default of libseccomp kills.
    if (seccomp_attr_set(filter.get(), SCMP_FLTATR_ACT_BADARCH, notImplemented) != 0
        || seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) != 0)
        return false;
    for (const AllowedCall &call : allowed)
        allow(filter, call);
    return seccomp_load(filter.get()) == 0;
}
