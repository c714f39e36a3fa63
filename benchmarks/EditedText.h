// SPDX-License-Identifier: MIT
// EditedText is the text of a writer who saves after each word: a file's text or made-up prose, cut or
// repeated to a size, and one word more with every edit, each time in another paragraph.
// Thread: any; a value.
#pragma once

#include <QByteArray>
#include <QString>

class EditedText {
public:
    /// path: of a text in UTF-8; empty: made-up words, no paragraph of which comes twice. size: in bytes.
    /// Ends the program if the file cannot be read.
    EditedText(const QString &path, qsizetype size);

    void edit();
    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }
    /// Ends the program if the text cannot be written. Puts a new file under the name.
    void saveAs(const QString &path) const;

private:
    QByteArray m_bytes;
    quint32 m_random = 1;
};
