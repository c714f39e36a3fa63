// SPDX-License-Identifier: MIT
// MarkedTexts is a language whose texts are those of the source code between marks: "⟦Stop⟧". A text on the
// screen that has letters outside of the marks never went through the translation.
// Thread: main; the texts themselves on any thread.
#pragma once

#include <QCoreApplication>
#include <QTranslator>

class MarkedTexts final : public QTranslator {
public:
    /// Installed as long as it lives.
    MarkedTexts() { QCoreApplication::installTranslator(this); }
    ~MarkedTexts() override { QCoreApplication::removeTranslator(this); }

    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char * /*context*/, const char *sourceText, const char * /*disambiguation*/,
        int n) const override
    {
        QString text = QString::fromUtf8(sourceText);
        if (n >= 0)
            text.replace(QStringLiteral("%n"), QString::number(n));
        return u'⟦' + text + u'⟧';
    }

    /// The text without what is between marks. Marks may be inside each other, where a text is part of
    /// another.
    static QString unmarkedPartOf(const QString &text)
    {
        QString rest;
        int depth = 0;
        for (const QChar character : text) {
            if (character == u'⟦')
                ++depth;
            else if (character == u'⟧')
                --depth;
            else if (depth == 0)
                rest += character;
        }
        return rest;
    }
    static bool hasUnmarkedLetters(const QString &text)
    {
        const QString rest = unmarkedPartOf(text);
        return std::any_of(rest.begin(), rest.end(), [](QChar character) { return character.isLetter(); });
    }
};
