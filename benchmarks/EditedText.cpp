// SPDX-License-Identifier: MIT
#include "benchmarks/EditedText.h"

#include <QFile>
#include <QSaveFile>

namespace {

quint32 nextRandom(quint32 &random)
{
    random = random * 1'664'525 + 1'013'904'223;
    return random >> 8;
}

/// Words of one to seven letters, in paragraphs of 24 and sentences of eight.
QByteArray madeUpText(qsizetype size)
{
    QByteArray text;
    quint32 random = 1;
    for (qsizetype word = 1; text.size() < size; ++word) {
        quint32 letters = nextRandom(random);
        for (quint32 length = 1 + (random >> 29); length > 0; --length, letters /= 5)
            text += "etnry"[letters % 5];
        text += "xa"; // a word alone must not be a single letter
        text += word % 24 == 0 ? ".\n" : word % 8 == 0 ? ". " : " ";
    }
    return text;
}

QByteArray textOfFile(const QString &path, qsizetype size)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    const QByteArray text = file.readAll();
    if (text.isEmpty())
        qFatal("%s is empty", qPrintable(path));
    QByteArray repeated = text.repeated(size / text.size() + 1);
    const qsizetype lineEnd = repeated.lastIndexOf('\n', size);
    repeated.truncate(lineEnd < 0 ? size : lineEnd + 1);
    return repeated;
}

} // namespace

EditedText::EditedText(const QString &path, qsizetype size)
    : m_bytes(path.isEmpty() ? madeUpText(size) : textOfFile(path, size))
{
}

void EditedText::edit()
{
    const qsizetype from = nextRandom(m_random) % m_bytes.size();
    m_bytes.insert(m_bytes.indexOf(' ', from) + 1, "again "); // at the start if there is no blank behind
}

void EditedText::saveAs(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(m_bytes) != m_bytes.size() || !file.commit())
        qFatal("cannot save %s", qPrintable(path));
}
