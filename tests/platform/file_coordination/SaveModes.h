// SPDX-License-Identifier: MIT
// The ways in which programs save a document, done by hand, with a pause wherever another process may get in
// between. Thread: any.
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
