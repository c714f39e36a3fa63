// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/writer/OfficeDocuments.h"

#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {

QString program()
{
    return QStandardPaths::findExecutable(QStringLiteral("soffice"));
}

} // namespace

bool OfficeDocuments::areConvertible()
{
    return !program().isEmpty();
}

QByteArray OfficeDocuments::convert(const QByteArray &document, const char *from, const char *to)
{
    const QString folder = TestHome::instance().root() + QStringLiteral("/office/");
    QDir().mkpath(folder);
    QFile source(folder + QStringLiteral("document.") + QString::fromLatin1(from));
    if (!source.open(QIODevice::WriteOnly) || source.write(document) != document.size())
        ADD_FAILURE() << "cannot write " << source.fileName().toStdString();
    source.close();

    const QByteArray target = QFile::encodeName(folder) + "convert";
    ChildProcess office(program());
    QByteArrayList arguments{"--headless", "--convert-to", to, "--outdir", target};
    if (qstrcmp(from, "html") == 0) // without a filter, a web page can only become another web page
        arguments += "--infilter=HTML (StarWriter)";
    const ChildProcess::Outcome outcome = office.run(arguments << QFile::encodeName(source.fileName()));
    QFile result(QFile::decodeName(target) + QStringLiteral("/document.")
        + QString::fromLatin1(to).section(QLatin1Char(':'), 0, 0));
    if (!result.open(QIODevice::ReadOnly))
        ADD_FAILURE() << "not convert: " << outcome.output.constData() << outcome.errors.constData();
    return result.readAll();
}
