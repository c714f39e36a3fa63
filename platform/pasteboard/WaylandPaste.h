// SPDX-License-Identifier: MIT
// WaylandPaste takes a selection by wl-paste(1): the compositors that keep selections from X clients have a
// protocol by which that program reads them without a window.
// Thread: one.  Owner: readSelection(). Used inside this folder only.
#pragma once

#include "platform/pasteboard/Selection.h"
#include "platform/pasteboard/SelectionSource.h"

#include <QString>
#include <QStringList>

#include <optional>

class WaylandPaste final : public SelectionSource {
public:
    /// largest: bytes of all contents together.
    WaylandPaste(SelectionName name, quint64 largest);

    /// Whether there is a compositor, and that program.
    [[nodiscard]] bool isAvailable() const { return !m_program.isEmpty(); }

    [[nodiscard]] bool hasOwner() override;
    Result<QByteArrayList, Failure> targets() override;
    Result<Content, Failure> convert(const QByteArray &target) override;

private:
    Result<QByteArray, Failure> run(const QStringList &words);

    const QString m_program;
    const QStringList m_selection; // the words for it
    std::optional<Result<QByteArrayList, Failure>> m_targets; // once they are known
    quint64 m_left; // of the bytes that may come
};
