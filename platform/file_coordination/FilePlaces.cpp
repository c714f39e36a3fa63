// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FilePlaces.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

// f_type of statfs(2).
constexpr std::array<quint32, 18> unnoticingFileSystems{
    0x6969, // NFS
    0xff534d42, // CIFS
    0xfe534d42, // SMB 2
    0x517b, // SMB
    0x65735546, // FUSE
    0x01021997, // 9P
    0x00c36400, // Ceph
    0x5346414f, // AFS
    0x6b414653, // kAFS
    0x73757245, // Coda
    0x564c, // NCP
    0x0bd00bd0, // Lustre
    0x01161970, // GFS2
    0x7461636f, // OCFS2
    0x786f4256, // vboxsf
    0xbacbacbc, // vmhgfs
    0x9fa0, // proc
    0x62656572, // sysfs
};

} // namespace

bool isInTrash(const QByteArray &path)
{
    const QByteArray homeTrash =
        QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) + "/Trash/";
    const QByteArray user = QByteArray::number(::getuid());
    return path.startsWith(homeTrash) || path.contains("/.Trash-" + user + '/')
        || path.contains("/.Trash/" + user + '/');
}

bool changesUnnoticed(const QByteArray &path)
{
    struct statfs status;
    if (::statfs(path.constData(), &status) != 0)
        return false;
    const auto type = static_cast<quint32>(status.f_type);
    return std::find(unnoticingFileSystems.begin(), unnoticingFileSystems.end(), type)
        != unnoticingFileSystems.end();
}
