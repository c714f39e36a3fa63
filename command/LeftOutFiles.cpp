// SPDX-License-Identifier: MIT
#include "command/LeftOutFiles.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"
#include "command/NamedDocument.h"
#include "platform/session_bus/UserNotification.h"

void LeftOutFiles::add(const QByteArray &name, const QString &cause)
{
    reportDocumentFailure(name, cause);
    if (++m_count == 1)
        m_first = CommandText::tr("%1: %2.").arg(
            QString::fromUtf8(printableName(name)), QString::fromUtf8(printableName(cause.toUtf8())));
}

void LeftOutFiles::notify() const
{
    if (isEmpty())
        return;
    QString text = m_first;
    if (m_count == 2)
        text += u' ' + CommandText::tr("Another file is left out too.");
    else if (m_count > 2)
        text += u' ' + CommandText::tr("%1 other files are left out too.").arg(m_count - 1);
    showUserNotification(QStringLiteral("Quillbay"), text);
}
