// SPDX-License-Identifier: MIT
// RtfGraphics holds the attachments that a document names, and looks each name up once. Attachments with
// equal names and contents are one object, because comparing large contents repeatedly is slow.
// Thread: one.  Owner: RtfInterpreter.
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

    /// Returns the number of the graphic. fileNumber: of \qbyfile; 0 if there is none.
    qint32 add(const QString &storedName, qint32 fileNumber);

    /// Null if no such file is stored. fileNumber: used if the graphic was added without one.
    std::shared_ptr<const Attachment> attachment(qint32 graphic, qint32 fileNumber);

private:
    struct Graphic {
        QString storedName;
        qint32 fileNumber;
    };
    struct Stored {
        std::shared_ptr<const Attachment> attachment; ///< null if no such file is stored
        const char *contents = nullptr; ///< shared by all files with equal contents
    };
    const Stored &findStored(const QString &name);

    const AttachmentSource &m_source;
    const RtfExactValues &m_exactValues;
    std::vector<Graphic> m_graphics;
    QHash<QString, Stored> m_stored;
    QSet<QByteArray> m_contents;
    QHash<std::pair<QString, const char *>, std::shared_ptr<const Attachment>>
        m_attachments; ///< by name and contents
};
