// SPDX-License-Identifier: MIT
#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>

void QuillbayTest::setLocale(const char *name)
{
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LC_CTYPE", "LC_PAPER", "LANGUAGE"})
        ::unsetenv(variable);
    ::setenv("LANG", name, 1);
    takeLocaleFromEnvironment();
}

void QuillbayTest::takeLocaleFromEnvironment()
{
    if (!std::setlocale(LC_ALL, ""))
        std::setlocale(LC_ALL, "C");
}

QString QuillbayTest::writeFile(const QString &name, const QByteArray &contents)
{
    const QString path = world().root() + QStringLiteral("/files/") + name;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        ADD_FAILURE() << "cannot write " << path.toStdString();
    return path;
}

QByteArray QuillbayTest::writeFileOfBytes(const QByteArray &name, const QByteArray &contents)
{
    const std::filesystem::path path((QFile::encodeName(world().root()) + "/files/" + name).toStdString());
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    if (!file.write(contents.constData(), contents.size()).flush())
        ADD_FAILURE() << "cannot write " << path;
    return QByteArray::fromStdString(path.string());
}

QByteArray QuillbayTest::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot read " << path.toStdString();
        return {};
    }
    return file.readAll();
}

QString corporaFolder()
{
    return QFile::decodeName(qgetenv("QUILLBAY_CORPORA"));
}

bool packagesAreRequired()
{
    return qEnvironmentVariableIsSet("QUILLBAY_REQUIRE_PACKAGES");
}

void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}
