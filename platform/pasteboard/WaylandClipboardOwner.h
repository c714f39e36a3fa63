// SPDX-License-Identifier: MIT
// WaylandClipboardOwner owns the clipboard of the Wayland compositor with a content that it took over from
// the former owner, and serves it until another program copies something. ClipboardOwner does the same on X.
// Thread: one.  Owner: a program that does nothing else, and that ignores SIGPIPE.
#pragma once

#include "platform/pasteboard/ClipboardOwner.h"
#include "platform/pasteboard/WaylandSelection.h"
#include "platform/wayland/WaylandConnection.h"

#include <map>
#include <optional>

class WaylandClipboardOwner {
public:
    WaylandClipboardOwner() = default;

    /// As ClipboardOwner::takeOver(). False also if there is no compositor, or if it lets only the focused
    /// program own the clipboard.
    [[nodiscard]] bool takeOver();

    /// Answers requests until another program owns the clipboard or the display is lost.
    void serve();

private:
    void setForms(const Pasteboard::Forms &forms);
    void setSource();
    void handleSource(uint32_t opcode, const wl_argument *arguments);

    WaylandConnection m_connection;
    std::map<QByteArray, QByteArray> m_forms; // by type
    WaylandConnection::EventHandler m_sourceHandler = [this](uint32_t opcode, const wl_argument *arguments) {
        handleSource(opcode, arguments);
    };
    std::optional<WaylandSelection> m_clipboard;
    WaylandConnection::Object m_source;
    bool m_isReplaced = false;
};
