// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FileCoordinator.h"

#include "platform/file_coordination/CoordinatedAccess.h"
#include "platform/file_coordination/FilePresentation.h"

QString causeText(const CoordinationError &error)
{
    switch (error.cause) {
    case CoordinationError::Cause::LockedByWriter:
        return QStringLiteral("is locked by a program that writes to it");
    case CoordinationError::Cause::NotRelinquished:
        break;
    }
    return QStringLiteral("is not relinquished by its presenter");
}

FilePresenter::~FilePresenter()
{
    FileCoordinator::removeFilePresenter(this);
}

void FileCoordinator::addFilePresenter(FilePresenter *presenter, Clock &clock)
{
    FilePresentations::instance().add(*presenter, clock);
}

void FileCoordinator::removeFilePresenter(const FilePresenter *presenter)
{
    FilePresentations::instance().remove(presenter);
}

void FileCoordinator::reportChangeAgain(const FilePresenter *presenter)
{
    if (const auto presentation = FilePresentations::instance().of(presenter))
        presentation->reportChange();
}

FileCoordinator::FileCoordinator(const FilePresenter *filePresenter, Clock &clock)
    : m_access(std::make_shared<CoordinatedAccess>(filePresenter, clock))
{
}

FileCoordinator::~FileCoordinator()
{
    m_access->abandon();
}

std::optional<CoordinationError> FileCoordinator::coordinateReadingItemAtURL(
    const QUrl &url, const Accessor &byAccessor)
{
    const std::shared_ptr<CoordinatedAccess> access =
        m_access; // an event may destroy this object during the access
    return access->read(url, byAccessor);
}

bool FileCoordinator::willRetry()
{
    return m_access->willRetry();
}

std::optional<CoordinationError> FileCoordinator::coordinateWritingItemAtURL(
    const QUrl &url, const Accessor &byAccessor)
{
    const std::shared_ptr<CoordinatedAccess> access = m_access;
    return access->write(url, byAccessor);
}
