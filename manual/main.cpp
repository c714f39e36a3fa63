// SPDX-License-Identifier: MIT
// manual_generator FOLDER VERSION DATE [LANGUAGE TRANSLATION]…: writes the man pages and the shells'
// completions of all programs, during the build. In FOLDER they lie as in the share folder of an
// installation. Man pages are written in English and in each LANGUAGE, such as "de", with the texts of the
// file TRANSLATION.
#include "manual/Completions.h"
#include "manual/ManText.h"
#include "manual/ManualPages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTranslator>

#include <cstdio>

namespace {

bool writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (QDir().mkpath(path.section(u'/', 0, -2)) && file.open(QFile::WriteOnly | QFile::Truncate)
        && file.write(contents) == contents.size() && file.flush())
        return true;
    std::fprintf(stderr, "%s: cannot be written: %s\n", qPrintable(path), qPrintable(file.errorString()));
    return false;
}

/// folder: of one language.
bool writeManPages(const QString &folder, const ManualRelease &release)
{
    bool isComplete = true;
    for (const ManualPage *const page : manualPages()) {
        const QString section = QString::number(page->section);
        isComplete &= writeFile(
            folder + QStringLiteral("/man%1/%2.%1").arg(section, QString::fromLatin1(page->pageName())),
            manText(*page, release));
    }
    return isComplete;
}

bool writeTranslatedManPages(const QString &folder, const QString &translation, const ManualRelease &release)
{
    QTranslator translator;
    if (!translator.load(translation)) {
        std::fprintf(stderr, "%s: is no translation\n", qPrintable(translation));
        return false;
    }
    QCoreApplication::installTranslator(&translator);
    const bool isComplete = writeManPages(folder, release);
    QCoreApplication::removeTranslator(&translator);
    return isComplete;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount < 4 || argumentCount % 2 != 0) {
        std::fputs("usage: manual_generator FOLDER VERSION DATE [LANGUAGE TRANSLATION]…\n", stderr);
        return 2;
    }
    const QCoreApplication application(argumentCount, arguments);
    const QString folder = QFile::decodeName(arguments[1]) + u'/';
    const ManualRelease release{.version = arguments[2], .date = arguments[3]};
    bool isComplete = writeManPages(folder + QStringLiteral("man"), release);
    for (int i = 4; i < argumentCount; i += 2) {
        const QString language = QString::fromLatin1(arguments[i]);
        isComplete &= writeTranslatedManPages(
            folder + QStringLiteral("man/") + language, QFile::decodeName(arguments[i + 1]), release);
    }
    for (const CompletedProgram &program : completedPrograms()) {
        const QString name = QString::fromLatin1(program.page.program);
        isComplete &= writeFile(
            folder + QStringLiteral("bash-completion/completions/") + name, bashCompletion(program));
        isComplete &=
            writeFile(folder + QStringLiteral("zsh/site-functions/_") + name, zshCompletion(program));
        isComplete &= writeFile(
            folder + QStringLiteral("fish/vendor_completions.d/%1.fish").arg(name), fishCompletion(program));
    }
    return isComplete ? 0 : 1;
}
