// SPDX-License-Identifier: MIT
// CommandTest is the fixture of tests that run the real quillbay command.
// Thread: main.  Owner: the test.
#pragma once

#include "tests/harness/QuillbayTest.h"

#include <QFile>
#include <QFileInfo>

class CommandTest : public QuillbayTest {
protected:
    static ChildProcess::Outcome quillbay(const QByteArrayList &words, const QByteArray &input = {})
    {
        return ChildProcess(productProgram(QStringLiteral("quillbay"))).run(words, input);
    }

    /// Runs "quillbay count" with these words.
    static ChildProcess::Outcome count(const QByteArrayList &words, const QByteArray &input = {})
    {
        return quillbay(QByteArrayList{"count"} + words, input);
    }

    /// Creates a file in the test's folder and returns its path.
    static QByteArray file(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromUtf8(name), contents));
    }

    /// The rows of a table: words separated by blanks, without header.
    static QList<QByteArrayList> tableRows(const QByteArray &output)
    {
        QList<QByteArrayList> rows;
        for (const QByteArray &line : output.trimmed().split('\n').sliced(1))
            rows.append(line.simplified().split(' '));
        return rows;
    }
};
