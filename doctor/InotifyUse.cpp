// SPDX-License-Identifier: MIT
#include "doctor/InotifyUse.h"

#include <QByteArray>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <fstream>
#include <functional>
#include <memory>
#include <string>

namespace {

struct FolderCloser {
    void operator()(DIR *folder) const { ::closedir(folder); }
};

qint64 numberIn(const char *file)
{
    std::ifstream stream(file);
    qint64 number = 0;
    return stream >> number ? number : 0;
}

void forEachEntry(const QByteArray &folder, const std::function<void(const QByteArray &name)> &call)
{
    const std::unique_ptr<DIR, FolderCloser> entries(::opendir(folder.constData()));
    if (!entries)
        return;
    while (const dirent *const entry = ::readdir(entries.get())) {
        if (std::isdigit(static_cast<unsigned char>(entry->d_name[0])))
            call(entry->d_name);
    }
}

bool isOwn(const QByteArray &process)
{
    struct stat status { };
    return ::stat(process.constData(), &status) == 0 && status.st_uid == ::geteuid();
}

bool isInotify(const QByteArray &descriptor)
{
    char target[32];
    const ssize_t length = ::readlink(descriptor.constData(), target, sizeof target);
    return length > 0 && QByteArrayView(target, length) == "anon_inode:inotify";
}

/// A line for each watch begins with "inotify ".
qint64 watchesIn(const QByteArray &information)
{
    std::ifstream stream(information.constData());
    qint64 watches = 0;
    for (std::string line; std::getline(stream, line);)
        watches += line.starts_with("inotify ") ? 1 : 0;
    return watches;
}

} // namespace

InotifyUse readInotifyUse()
{
    InotifyUse use;
    use.maxWatches = numberIn("/proc/sys/fs/inotify/max_user_watches");
    use.maxInstances = numberIn("/proc/sys/fs/inotify/max_user_instances");
    forEachEntry("/proc", [&use](const QByteArray &identifier) {
        const QByteArray process = "/proc/" + identifier;
        if (!isOwn(process))
            return;
        forEachEntry(process + "/fd", [&](const QByteArray &number) {
            if (!isInotify(process + "/fd/" + number))
                return;
            ++use.instances;
            use.watches += watchesIn(process + "/fdinfo/" + number);
        });
    });
    return use;
}
