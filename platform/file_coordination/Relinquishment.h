// SPDX-License-Identifier: MIT
// Relinquishment is the time for which the presenters of a file have given it up to one of their process;
// with its life ends that time. Thread: main.  Owner: the access to the file.
#pragma once

#include "platform/file_coordination/FilePresentation.h"

#include <memory>
#include <vector>

class Relinquishment {
public:
    enum class Party { Reader, Writer };

    /// Asks all presenters of the file but one. path: as the presenters name it.
    Relinquishment(const QByteArray &path, Party party, const FilePresenter *except);
    Relinquishment(const Relinquishment &) = delete;
    Relinquishment &operator=(const Relinquishment &) = delete;
    ~Relinquishment();

    /// Whether all have called the block by now.
    [[nodiscard]] bool isComplete() const;

private:
    struct Answers {
        size_t count = 0;
        bool isOver = false;
        std::vector<FilePresenter::Reacquirer> reacquirers;
    };

    std::vector<std::shared_ptr<FilePresentation>> m_presentations;
    std::shared_ptr<Answers> m_answers = std::make_shared<Answers>(); // a block may be called late
};
