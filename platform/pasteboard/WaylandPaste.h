// SPDX-License-Identifier: MIT
// WaylandPaste reads a selection with wl-paste(1), for compositors that hide selections from X clients: they
// have a protocol through which that program reads selections without a window. Used inside this folder only.
// Thread: any; one at a time.  Owner: readSelection().
#pragma once

#include "platform/pasteboard/Selection.h"
#include "platform/pasteboard/SelectionSource.h"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

class WaylandPaste final : public SelectionSource {
public:
    /// maxBytes: of all contents together.
    WaylandPaste(SelectionName name, quint64 maxBytes);

    /// Whether there is a compositor and wl-paste is installed.
    [[nodiscard]] bool isAvailable() const { return !m_program.isEmpty(); }

    [[nodiscard]] bool hasOwner() override;
    Result<QByteArrayList, Failure> targets() override;
    Result<Content, Failure> convert(const QByteArray &target) override;

private:
    Result<QByteArray, Failure> run(const QByteArrayList &options);
    Result<QByteArray, Failure> readOutput(int descriptor);

    const QByteArray m_program; // a path; empty if not available
    const QByteArrayList m_selection; // the options that choose it
    std::optional<Result<QByteArrayList, Failure>> m_targets; // once they are known
    quint64 m_bytesLeft; // of maxBytes
};
