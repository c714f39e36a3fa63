// SPDX-License-Identifier: MIT
#include "translations/Translations.h"

#include "translations/EnglishTexts.h"
#include "translations/UserLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <mutex>

namespace {

QString userLanguage()
{
    return userLanguageAmong({QStringLiteral("de"), QStringLiteral("fr")});
}

/// Finds and loads the texts when the first one is wanted: "quillbay count --json" wants none.
class LazyTranslator final : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }

    QString translate(
        const char *context, const char *sourceText, const char *disambiguation, int n) const override
    {
        if (EnglishTexts::areWanted())
            return {};
        std::call_once(m_once, [this] {
            const QString language = userLanguage();
            if (!language.isEmpty())
                (void)m_texts.load(QStringLiteral(":/translations/quillbay_%1.qm").arg(language));
        });
        return m_texts.translate(context, sourceText, disambiguation, n);
    }

private:
    mutable std::once_flag m_once;
    mutable QTranslator m_texts;
};

} // namespace

void installTranslations()
{
    // Never deleted: other threads may still ask for texts while the program exits.
    static auto &translator = *new LazyTranslator;
    QCoreApplication::installTranslator(&translator);
}

void installQtTranslations()
{
    const QString language = userLanguage();
    static auto &translator = *new QTranslator;
    if (!language.isEmpty()
        && translator.load(
            QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
}
