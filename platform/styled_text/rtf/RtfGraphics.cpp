// SPDX-License-Identifier: MIT
#include "platform/styled_text/rtf/RtfGraphics.h"

qint32 RtfGraphics::add(const QString &storedName, qint32 fileNumber)
{
    m_graphics.push_back({storedName, fileNumber});
    return static_cast<qint32>(m_graphics.size()) - 1;
}

std::shared_ptr<const Attachment> RtfGraphics::stored(const QString &name)
{
    const auto found = m_stored.constFind(name);
    if (found != m_stored.cend())
        return *found;
    std::shared_ptr<const Attachment> attachment = m_source ? m_source(name) : nullptr;
    m_stored.insert(name, attachment);
    return attachment;
}

std::shared_ptr<const Attachment> RtfGraphics::attachment(qint32 graphic, qint32 fileNumber)
{
    const Graphic &named = m_graphics[static_cast<size_t>(graphic)];
    std::shared_ptr<const Attachment> attachment = stored(named.storedName);
    const QString *ownName = m_exactValues.fileName(named.fileNumber != 0 ? named.fileNumber : fileNumber);
    if (!attachment || !ownName || *ownName == attachment->fileName)
        return attachment;
    std::shared_ptr<const Attachment> &renamed = m_renamed[{named.storedName, *ownName}];
    if (!renamed)
        renamed = std::make_shared<const Attachment>(Attachment{*ownName, attachment->contents});
    return renamed;
}
