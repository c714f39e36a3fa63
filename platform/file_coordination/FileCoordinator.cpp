// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FileCoordinator.h"

#include "platform/file_coordination/CoordinatedAccess.h"
#include "platform/file_coordination/FilePresentations.h"

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

void FileCoordinator::tellChangeAgain(const FilePresenter *presenter)
{
    if (const auto presentation = FilePresentations::instance().of(presenter))
        presentation->tellChange();
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
    const std::shared_ptr<CoordinatedAccess> access = m_access; // outlives this object if it must
    return access->read(url, byAccessor);
}

bool FileCoordinator::triesAgain()
{
    return m_access->triesAgain();
}

std::optional<CoordinationError> FileCoordinator::coordinateWritingItemAtURL(
    const QUrl &url, const Accessor &byAccessor)
{
    const std::shared_ptr<CoordinatedAccess> access = m_access;
    return access->write(url, byAccessor);
}
