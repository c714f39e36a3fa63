// SPDX-License-Identifier: MIT
#include "tests/platform/text_layout/FontWorld.h"

#include "tests/harness/TestHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

QString installedFont(const QString &fileName)
{
    static const QStringList folders{QStringLiteral("/usr/share/fonts/opentype/urw-base35"),
        QStringLiteral("/usr/share/fonts/type1/urw-base35"),
        QStringLiteral("/usr/share/fonts/truetype/dejavu"), QStringLiteral("/usr/share/fonts/truetype/noto"),
        QStringLiteral("/usr/share/fonts/opentype/noto"),
        QStringLiteral("/usr/share/fonts/truetype/liberation2")};
    for (const QString &folder : folders) {
        QString path = folder + u'/' + fileName;
        if (QFile::exists(path))
            return path;
    }
    ADD_FAILURE() << "the font " << fileName.toStdString() << " is not installed";
    return {};
}

void useOnlyFonts(const QStringList &fileNames)
{
    const QString folder = TestHome::instance().root() + QStringLiteral("/only-fonts");
    QDir(folder).removeRecursively();
    QDir().mkpath(folder + QStringLiteral("/files"));
    for (const QString &name : fileNames) {
        // Copies, not links: fontconfig would find a link under its target's folder.
        QFile::copy(installedFont(name), folder + QStringLiteral("/files/") + name);
    }
    QFile configuration(folder + QStringLiteral("/fonts.conf"));
    if (!configuration.open(QIODevice::WriteOnly))
        ADD_FAILURE() << "cannot write the font configuration";
    configuration.write(
        QStringLiteral("<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"
                       "<fontconfig><dir>%1/files</dir><cachedir>%1/cache</cachedir></fontconfig>\n")
            .arg(folder)
            .toUtf8());
    qputenv("FONTCONFIG_FILE", QFile::encodeName(configuration.fileName()));
}
