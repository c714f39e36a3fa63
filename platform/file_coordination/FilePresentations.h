// SPDX-License-Identifier: MIT
// FilePresentations are the presenters of this process and what follows their files for them.
// Thread: main.  Owner: the process.
#pragma once

#include "platform/file_coordination/FilePresentation.h"

#include <memory>
#include <vector>

class FilePresentations {
public:
    static FilePresentations &instance();

    /// A presenter that is there already stays as it is.
    void add(FilePresenter &presenter, Clock &clock);
    void remove(const FilePresenter *presenter);

    /// Null where the presenter is not there.
    [[nodiscard]] std::shared_ptr<FilePresentation> of(const FilePresenter *presenter) const;
    /// Those of a file; the path names it.
    [[nodiscard]] std::vector<std::shared_ptr<FilePresentation>> at(const QByteArray &path) const;

private:
    std::vector<std::shared_ptr<FilePresentation>> m_presentations;
};
