// SPDX-License-Identifier: MIT
// ShownLanguage shows the texts of this process in one of the languages that Quillbay is translated into,
// whatever the locale.
// Thread: main.
#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <gtest/gtest.h>

class ShownLanguage {
public:
    /// As long as this lives. language: as "de"; "en" for the texts of the source code.
    explicit ShownLanguage(const QString &language)
    {
        if (language == u"en")
            return;
        EXPECT_TRUE(m_texts.load(QStringLiteral(":/translations/quillbay_%1.qm").arg(language)));
        EXPECT_TRUE(m_textsOfQt.load(
            QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
        QCoreApplication::installTranslator(&m_texts);
        QCoreApplication::installTranslator(&m_textsOfQt);
    }
    ~ShownLanguage()
    {
        QCoreApplication::removeTranslator(&m_textsOfQt);
        QCoreApplication::removeTranslator(&m_texts);
    }
    ShownLanguage(const ShownLanguage &) = delete;
    ShownLanguage &operator=(const ShownLanguage &) = delete;

private:
    QTranslator m_texts;
    QTranslator m_textsOfQt;
};
