// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfGraphics.h"

qint32 RtfGraphics::add(const QString &storedName, qint32 fileNumber)
{
    m_graphics.push_back({storedName, fileNumber});
    return static_cast<qint32>(m_graphics.size()) - 1;
}

const RtfGraphics::Stored &RtfGraphics::findStored(const QString &name)
{
    const auto found = m_stored.constFind(name);
    if (found != m_stored.cend())
        return *found;
    Stored stored{m_source ? m_source(name) : nullptr, nullptr};
    if (stored.attachment)
        stored.contents = m_contents.insert(stored.attachment->contents)->constData();
    return *m_stored.insert(name, stored);
}

std::shared_ptr<const Attachment> RtfGraphics::attachment(qint32 graphic, qint32 fileNumber)
{
    const Graphic &named = m_graphics[static_cast<size_t>(graphic)];
    const Stored &stored = findStored(named.storedName);
    if (!stored.attachment)
        return nullptr;
    const QString *exactName = m_exactValues.fileName(named.fileNumber != 0 ? named.fileNumber : fileNumber);
    const QString name = exactName ? *exactName : stored.attachment->fileName;
    std::shared_ptr<const Attachment> &attachment = m_attachments[{name, stored.contents}];
    if (!attachment) {
        attachment = name == stored.attachment->fileName
            ? stored.attachment
            : std::make_shared<const Attachment>(Attachment{name, stored.attachment->contents});
    }
    return attachment;
}
