// SPDX-License-Identifier: MIT
#include "platform/pasteboard/WaylandClipboardOwner.h"

#include "platform/pasteboard/Selection.h"
#include "platform/pasteboard/SelectionTargets.h"
#include "platform/system/OwnedDescriptor.h"
#include "platform/wayland/SelectionInterfaces.h"

#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

constexpr int writeTimeout = 2000; // milliseconds, for each piece

/// Gives up on a reader that does not read.
void writeToPipe(int descriptor, const QByteArray &bytes)
{
    ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
    for (qsizetype position = 0; position < bytes.size();) {
        const ssize_t count =
            ::write(descriptor, bytes.constData() + position, static_cast<size_t>(bytes.size() - position));
        if (count > 0) {
            position += count;
            continue;
        }
        pollfd request{descriptor, POLLOUT, 0};
        const bool isFull = count < 0 && (errno == EAGAIN || errno == EINTR);
        if (!isFull || ::poll(&request, 1, writeTimeout) == 0)
            return;
    }
}

} // namespace

bool WaylandClipboardOwner::takeOver()
{
    constexpr auto access = WaylandSelection::Access::AnyProgram;
    if (!m_connection.isConnected()
        || !WaylandSelection::isOffered(m_connection, access, SelectionName::Clipboard))
        return false;
    m_clipboard.emplace(m_connection, access, SelectionName::Clipboard, ClipboardOwner::maxBytes);
    if (!m_clipboard->hasOwner())
        return false;
    const quint64 serialNumber = m_clipboard->serialNumber();
    const Result<Pasteboard, SelectionFailure> content =
        readSelection(SelectionName::Clipboard, SelectionContent::Text, ClipboardOwner::maxBytes);
    // Who copies something meanwhile remains the owner.
    if (!content || !m_clipboard->hasOwner() || m_clipboard->serialNumber() != serialNumber)
        return false;
    setForms(content.value().forms());
    setSource();
    return true;
}

void WaylandClipboardOwner::serve()
{
    (void)m_connection.waitFor([this] { return m_isReplaced; }, QDeadlineTimer(QDeadlineTimer::Forever));
}

void WaylandClipboardOwner::setForms(const Pasteboard::Forms &forms)
{
    for (const auto &[type, bytes] : forms) {
        for (const QByteArray &target : SelectionTargets::targetsToOffer(type))
            m_forms[target] = bytes;
    }
}

void WaylandClipboardOwner::setSource()
{
    m_source = m_clipboard->makeSource();
    WaylandConnection::follow(m_source, m_sourceHandler);
    for (const auto &[type, bytes] : m_forms)
        WaylandConnection::request(m_source, SelectionInterfaces::Offer, {{.s = type.constData()}});
    m_clipboard->setSource(m_source);
}

void WaylandClipboardOwner::handleSource(uint32_t opcode, const wl_argument *arguments)
{
    if (opcode == SelectionInterfaces::Cancelled)
        m_isReplaced = true;
    if (opcode != SelectionInterfaces::Send)
        return;
    const OwnedDescriptor pipe(arguments[1].h);
    const auto form = m_forms.find(arguments[0].s);
    if (form != m_forms.end())
        writeToPipe(pipe.get(), form->second);
}
