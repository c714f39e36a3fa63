// SPDX-License-Identifier: MIT
#include "platform/sandbox/Landlock.h"

#include <QtGlobal>

#include <linux/landlock.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// The kernel may be newer than the headers of the build machine: these are the values of linux/landlock.h in
// Linux 6.12.
struct RulesetAttributes {
    quint64 files = 0;
    quint64 network = 0; // from version 4 on
    quint64 scopes = 0; // from version 6 on
};

constexpr quint64 refer = 1ULL << 13; // version 2
constexpr quint64 truncateFile = 1ULL << 14; // version 3
constexpr quint64 ioctlOnDevice = 1ULL << 15; // version 5
constexpr quint64 bindTcp = 1ULL << 0; // version 4
constexpr quint64 connectTcp = 1ULL << 1; // version 4
constexpr quint64 abstractSockets = 1ULL << 0; // version 6
constexpr quint64 signalsToOtherProcesses = 1ULL << 1; // version 6

constexpr quint64 readFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr quint64 readFolder = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr quint64 filesOfVersion1 = (1ULL << 13) - 1;

RulesetAttributes allRights(int version)
{
    RulesetAttributes attributes;
    attributes.files = filesOfVersion1;
    if (version >= 2)
        attributes.files |= refer;
    if (version >= 3)
        attributes.files |= truncateFile;
    if (version >= 4)
        attributes.network = bindTcp | connectTcp;
    if (version >= 5)
        attributes.files |= ioctlOnDevice;
    if (version >= 6)
        attributes.scopes = abstractSockets | signalsToOtherProcesses;
    return attributes;
}

size_t attributesSize(int version)
{
    if (version >= 6)
        return sizeof(RulesetAttributes);
    return version >= 4 ? offsetof(RulesetAttributes, scopes) : offsetof(RulesetAttributes, network);
}

int newRuleset(int version)
{
    if (version == 0)
        return -1;
    const RulesetAttributes attributes = allRights(version);
    return static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, attributesSize(version), 0));
}

} // namespace

int Landlock::kernelVersion()
{
    const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    return version > 0 ? static_cast<int>(version) : 0;
}

Landlock::Landlock()
    : m_version(kernelVersion())
    , m_ruleset(newRuleset(m_version))
{
}

void Landlock::allowReading(const QByteArray &path)
{
    if (!m_ruleset)
        return;
    const OwnedDescriptor file(::open(path.constData(), O_PATH | O_CLOEXEC));
    struct stat status = {};
    if (file && ::fstat(file.get(), &status) == 0) {
        landlock_path_beneath_attr rule = {};
        rule.allowed_access = S_ISDIR(status.st_mode) ? readFolder : readFile;
        rule.parent_fd = file.get();
        // A rule that fails only refuses more.
        ::syscall(SYS_landlock_add_rule, m_ruleset.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
    }
}

int Landlock::enforce()
{
    if (!m_ruleset || ::syscall(SYS_landlock_restrict_self, m_ruleset.get(), 0) != 0)
        return 0;
    return m_version;
}
