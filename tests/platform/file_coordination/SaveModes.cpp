// SPDX-License-Identifier: MIT
#include "tests/platform/file_coordination/SaveModes.h"

#include "platform/system/OwnedDescriptor.h"

#include <QFile>
#include <QSaveFile>

#include <cstring>
#include <fcntl.h>
#include <iterator>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using Pause = SaveModes::Pause;

bool writeTo(const QString &path, QIODevice::OpenMode mode, const QByteArray &contents, const Pause &pause)
{
    QFile file(path);
    if (!file.open(mode | QIODevice::Unbuffered))
        return false;
    pause();
    const qsizetype half = contents.size() / 2;
    file.write(contents.first(half));
    pause();
    file.write(contents.sliced(half));
    pause();
    return file.error() == QFileDevice::NoError;
}

bool write(const QString &path, const QByteArray &contents, const Pause &pause)
{
    return writeTo(path, QIODevice::WriteOnly, contents, pause);
}

bool rename(const QString &from, const QString &to)
{
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool inPlace(const QString &path, const QByteArray &contents, const Pause &pause)
{
    return write(path, contents, pause);
}

bool overTheOldContents(const QString &path, const QByteArray &contents, const Pause &pause)
{
    return writeTo(path, QIODevice::ReadWrite, contents, pause) && QFile::resize(path, contents.size());
}

bool truncatedFirst(const QString &path, const QByteArray &contents, const Pause &pause)
{
    if (!QFile::resize(path, 0))
        return false;
    pause();
    return write(path, contents, pause);
}

bool renamedOver(const QString &path, const QByteArray &contents, const Pause &pause)
{
    return write(path + QStringLiteral(".new"), contents, pause)
        && rename(path + QStringLiteral(".new"), path);
}

bool oldRenamedAway(const QString &path, const QByteArray &contents, const Pause &pause)
{
    if (!rename(path, path + u'~'))
        return false;
    pause();
    return write(path, contents, pause);
}

bool oldRenamedAwayNewRenamedIn(const QString &path, const QByteArray &contents, const Pause &pause)
{
    if (!write(path + QStringLiteral(".new"), contents, pause) || !rename(path, path + u'~'))
        return false;
    pause();
    return rename(path + QStringLiteral(".new"), path) && QFile::remove(path + u'~');
}

bool deletedAndCreated(const QString &path, const QByteArray &contents, const Pause &pause)
{
    if (!QFile::remove(path))
        return false;
    pause();
    return write(path, contents, pause);
}

bool saveFile(const QString &path, const QByteArray &contents, const Pause &pause)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(contents);
    pause();
    return file.commit();
}

bool mapped(const QString &path, const QByteArray &contents, const Pause &pause)
{
    QFile file(path);
    const auto size = static_cast<size_t>(contents.size());
    if (contents.isEmpty() || !file.open(QIODevice::ReadWrite) || !file.resize(contents.size()))
        return false;
    void *memory = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file.handle(), 0);
    if (memory == MAP_FAILED)
        return false;
    pause();
    std::memcpy(memory, contents.constData(), size);
    return ::munmap(memory, size) == 0;
}

bool throughAnotherName(const QString &path, const QByteArray &contents, const Pause &pause)
{
    const QString other = path + QStringLiteral(".link");
    if (::link(QFile::encodeName(path).constData(), QFile::encodeName(other).constData()) != 0)
        return false;
    return write(other, contents, pause) && QFile::remove(other);
}

/// The lock is kept, as word processors do for as long as they show the document, until the next save in this
/// mode; POSIX drops it also when the program closes the file in any other.
bool renamedOverAndLocked(const QString &path, const QByteArray &contents, const Pause &pause)
{
    static OwnedDescriptor kept;
    if (!renamedOver(path, contents, pause))
        return false;
    pause();
    kept = OwnedDescriptor(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC));
    struct flock lock { };
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return ::fcntl(kept.get(), F_SETLK, &lock) == 0;
}

struct Mode {
    const char *name;
    bool (*save)(const QString &path, const QByteArray &contents, const Pause &pause);
};

constexpr Mode modes[] = {
    {"in-place", inPlace},
    {"over-the-old-contents", overTheOldContents},
    {"truncated-first", truncatedFirst},
    {"renamed-over", renamedOver},
    {"renamed-over-and-locked", renamedOverAndLocked},
    {"old-renamed-away", oldRenamedAway},
    {"old-renamed-away-new-renamed-in", oldRenamedAwayNewRenamedIn},
    {"deleted-and-created", deletedAndCreated},
    {"QSaveFile", saveFile},
    {"mapped", mapped},
    {"through-another-name", throughAnotherName},
};

} // namespace

QStringList SaveModes::names()
{
    QStringList names;
    for (const Mode &mode : modes)
        names << QString::fromLatin1(mode.name);
    return names;
}

bool SaveModes::save(const QString &name, const QString &path, const QByteArray &contents, const Pause &pause)
{
    const Mode *mode = std::begin(modes);
    while (mode != std::end(modes) && name != QLatin1String(mode->name))
        ++mode;
    return mode != std::end(modes) && mode->save(path, contents, pause);
}
