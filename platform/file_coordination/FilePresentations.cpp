// SPDX-License-Identifier: MIT
#include "platform/file_coordination/FilePresentations.h"

#include <algorithm>

FilePresentations &FilePresentations::instance()
{
    // Never destroyed: presenters that live as long as the process take their leave at its very end.
    static auto *const presentations = new FilePresentations;
    return *presentations;
}

void FilePresentations::add(FilePresenter &presenter, Clock &clock)
{
    if (of(&presenter))
        return;
    m_presentations.push_back(std::make_shared<FilePresentation>(presenter, clock));
    m_presentations.back()->begin();
}

void FilePresentations::remove(const FilePresenter *presenter)
{
    const auto found = std::find_if(m_presentations.begin(), m_presentations.end(),
        [&](const auto &presentation) { return presentation->presenter() == presenter; });
    if (found == m_presentations.end())
        return;
    (*found)->end();
    m_presentations.erase(found);
}

std::shared_ptr<FilePresentation> FilePresentations::of(const FilePresenter *presenter) const
{
    for (const std::shared_ptr<FilePresentation> &presentation : m_presentations) {
        if (presentation->presenter() == presenter)
            return presentation;
    }
    return nullptr;
}

std::vector<std::shared_ptr<FilePresentation>> FilePresentations::at(const QByteArray &path) const
{
    std::vector<std::shared_ptr<FilePresentation>> found;
    for (const std::shared_ptr<FilePresentation> &presentation : m_presentations) {
        if (!presentation->hasEnded() && presentation->path() == path)
            found.push_back(presentation);
    }
    return found;
}
