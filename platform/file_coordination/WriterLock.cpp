// SPDX-License-Identifier: MIT
#include "platform/file_coordination/WriterLock.h"

#include "platform/system/OwnedDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

bool isLockedByWriter(const QByteArray &path)
{
    struct stat status;
    if (::stat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    const OwnedDescriptor file(::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file)
        return false;
    // fcntl(2) can be asked who is in the way; flock(2) only by trying.
    struct flock request { };
    request.l_type = F_RDLCK;
    request.l_whence = SEEK_SET;
    if (::fcntl(file.get(), F_OFD_GETLK, &request) == 0 && request.l_type != F_UNLCK)
        return true;
    if (::flock(file.get(), LOCK_SH | LOCK_NB) != 0)
        return errno == EWOULDBLOCK;
    ::flock(file.get(), LOCK_UN);
    return false;
}
