// SPDX-License-Identifier: MIT
// Runs a program as on a kernel without Landlock, without filters of system calls, or without both.
// Arguments: "landlock", "seccomp" or "both"; the program's path; its arguments.
#include <linux/seccomp.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

int main(int, char **arguments)
{
    const std::string_view missing = arguments[1];
    void *const filter = seccomp_init(SCMP_ACT_ALLOW);
    seccomp_attr_set(filter, SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_ALLOW);
    const auto answer = [filter](int call, int number) {
        seccomp_rule_add(filter, SCMP_ACT_ERRNO(static_cast<uint32_t>(number)), call, 0);
    };
    if (missing != "seccomp") {
        for (const char *name : {"landlock_create_ruleset", "landlock_add_rule", "landlock_restrict_self"})
            answer(seccomp_syscall_resolve_name(name), ENOSYS);
    }
    if (missing != "landlock") {
        answer(SCMP_SYS(seccomp), EINVAL);
        const scmp_arg_cmp setsFilter{.arg = 0, .op = SCMP_CMP_EQ, .datum_a = PR_SET_SECCOMP, .datum_b = 0};
        seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1, &setsFilter);
    }
    if (seccomp_load(filter) != 0)
        return 126;
    ::execv(arguments[2], arguments + 2);
    return 127;
}
