// SPDX-License-Identifier: MIT
// SaveModes saves a document in the ways of different programs, with a pause between the steps in which
// another process may act.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>

class SaveModes {
public:
    /// Called between two steps of a save.
    using Pause = std::function<void()>;

    static QStringList names();
    /// Saves the contents under the path, which holds a file already. False where a step fails.
    [[nodiscard]] static bool save(
        const QString &name, const QString &path, const QByteArray &contents, const Pause &pause);
};
