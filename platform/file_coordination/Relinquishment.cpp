// SPDX-License-Identifier: MIT
#include "platform/file_coordination/Relinquishment.h"

#include "platform/file_coordination/FilePresentations.h"

Relinquishment::Relinquishment(const QByteArray &path, Party party, const FilePresenter *except)
{
    for (const std::shared_ptr<FilePresentation> &presentation : FilePresentations::instance().at(path)) {
        if (presentation->presenter() == except || presentation->hasEnded())
            continue;
        m_presentations.push_back(presentation);
        presentation->lend();
        const auto block = [answers = m_answers](const FilePresenter::Reacquirer &reacquirer) {
            ++answers->count;
            if (answers->isOver)
                reacquirer();
            else
                answers->reacquirers.push_back(reacquirer);
        };
        if (party == Party::Reader)
            presentation->presenter()->relinquishPresentedItemToReader(block);
        else
            presentation->presenter()->relinquishPresentedItemToWriter(block);
    }
}

Relinquishment::~Relinquishment()
{
    m_answers->isOver = true;
    for (const FilePresenter::Reacquirer &reacquirer : m_answers->reacquirers)
        reacquirer();
    for (const std::shared_ptr<FilePresentation> &presentation : m_presentations)
        presentation->takeBack();
}

bool Relinquishment::isComplete() const
{
    return m_answers->count >= m_presentations.size();
}
