// SPDX-License-Identifier: MIT
// RtfGraphics are the attachments that a document names, found once for each name. Those of equal names and
// contents are one object, since to compare large ones over and over takes its time.
// Thread: one.  Owner: the reading of one document.
#pragma once

#include "documents/rtf/RtfExactValues.h"
#include "documents/rtf/RtfReader.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

class RtfGraphics {
public:
    static constexpr qint32 none = -1;

    RtfGraphics(const AttachmentSource &source, const RtfExactValues &exactValues)
        : m_source(source)
        , m_exactValues(exactValues)
    {
    }

    /// fileNumber: of \qbyfile, 0 where there is none.
    qint32 add(const QString &storedName, qint32 fileNumber);

    /// Null where there is none. fileNumber: where the graphic itself was added without.
    std::shared_ptr<const Attachment> attachment(qint32 graphic, qint32 fileNumber);

private:
    struct Graphic {
        QString storedName;
        qint32 fileNumber;
    };
    struct Stored {
        std::shared_ptr<const Attachment> attachment; ///< null where there is none
        const char *contents = nullptr; ///< of the first one with equal contents
    };
    const Stored &stored(const QString &name);

    const AttachmentSource &m_source;
    const RtfExactValues &m_exactValues;
    std::vector<Graphic> m_graphics;
    QHash<QString, Stored> m_stored;
    QSet<QByteArray> m_contents;
    QHash<std::pair<QString, const char *>, std::shared_ptr<const Attachment>> m_attachments; ///< by contents
};
