// SPDX-License-Identifier: MIT
// manual_generator FOLDER VERSION DATE: writes the man pages and the shells' completions of all programs,
// during the build. In FOLDER they lie as in the share folder of an installation.
#include "manual/Completions.h"
#include "manual/ManText.h"
#include "manual/ManualPages.h"

#include <QDir>
#include <QFile>

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

} // namespace

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 4) {
        std::fputs("usage: manual_generator FOLDER VERSION DATE\n", stderr);
        return 2;
    }
    const QString folder = QFile::decodeName(arguments[1]) + u'/';
    const ManualRelease release{.version = arguments[2], .date = arguments[3]};
    bool isComplete = true;
    for (const ManualPage *const page : manualPages()) {
        const QString section = QString::number(page->section);
        isComplete &= writeFile(
            folder + QStringLiteral("man/man%1/%2.%1").arg(section, QString::fromLatin1(page->pageName())),
            manText(*page, release));
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
