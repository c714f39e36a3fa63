// SPDX-License-Identifier: MIT
// Whether every text that the command prints goes through the translation. The documents have no letters.
#include "tests/harness/QuillbayTest.h"
#include "tests/translations/MarkedTexts.h"

#include <QFile>
#include <QRegularExpression>

namespace {

class CommandTexts : public QuillbayTest {
protected:
    static ChildProcess::Outcome run(const QByteArrayList &words, const QByteArray &input = "1. 2\n\n\t3")
    {
        return ChildProcess(testProgram(QStringLiteral("quillbay_with_marked_texts"))).run(words, input);
    }

    /// Fails if the command prints letters outside of the marks. data: patterns of what is never translated.
    static void expectMarked(const QByteArrayList &words, const QStringList &data = {})
    {
        const ChildProcess::Outcome outcome = run(words);
        const QString printed = QString::fromUtf8(outcome.output + outcome.errors);
        EXPECT_TRUE(printed.contains(u'⟦')) << words.join(' ').toStdString();
        QString rest = printed;
        for (const QString &pattern : data + QStringList{QStringLiteral("\\bquillbay\\b")})
            rest.remove(QRegularExpression(pattern));
        rest = MarkedTexts::unmarkedPartOf(rest);
        EXPECT_FALSE(MarkedTexts::hasUnmarkedLetters(rest))
            << words.join(' ').toStdString() << ": " << rest.simplified().toStdString() << "\nin\n"
            << printed.toStdString();
    }

    static QByteArray file(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromUtf8(name), contents));
    }
    static QString pathPattern() { return QStringLiteral("/[^ :]*/"); }
};

} // namespace

TEST_F(CommandTexts, OfCountsAreTranslated)
{
    const QByteArray one = file("1.2", "1. 2\n");
    const QByteArray other = file("3.4", "\x01\x02\x03");
    expectMarked({"count"});
    expectMarked({"count", one, one}, {pathPattern()});
    expectMarked({"count", one, other, "/5"}, {pathPattern()});
    expectMarked({"count", "/"});
    expectMarked({"count", "--explain-rules"},
        {QStringLiteral("en_US"), QStringLiteral("A4"), pathPattern(),
            QStringLiteral("[A-Za-z0-9-]+\\.(t1|ttf|otf)")});
}

TEST_F(CommandTexts, OfExplanationsAreTranslated)
{
    expectMarked({"explain"});
    expectMarked({"explain", "--words", "--sentences", "--paragraphs", "--indents"});
    expectMarked({"explain", "--sentences", "--not-counted"});
}

TEST_F(CommandTexts, OfWrongUsageAreTranslated)
{
    expectMarked({});
    expectMarked({"6"});
    expectMarked({"help", "6"});
    expectMarked({"help", "6", "7"});
    expectMarked({"count", "--8"});
    expectMarked({"count", "--files-from"});
    expectMarked({"count", "--json", "--tsv"});
    expectMarked({"count", "--files-from", "-", "-"});
    expectMarked({"count", "--service", "--explain-rules"});
    expectMarked({"text", "1", "2"});
    expectMarked({"watch"});
    expectMarked({"watch", "--clipboard", "1"});
    expectMarked({"selection", "1"});
    expectMarked({"preferences", "--json", "--reset"});
    expectMarked({"preferences", "--reset"});
    expectMarked({"preferences", "--reset-all", "9"});
    expectMarked({"preferences", "9"});
    expectMarked({"preferences", "9", "9", "9"});
}

TEST_F(CommandTexts, OfRefusedPreferencesAreTranslated)
{
    expectMarked({"preferences", "paper", "9"}, {QStringLiteral("\\bpaper\\b")});
    expectMarked({"preferences", "left-margin", "9"}, {QStringLiteral("left-margin")});
    expectMarked({"preferences", "left-margin", "?"}, {QStringLiteral("left-margin")});
    expectMarked({"preferences", "show-lines", "?"}, {QStringLiteral("show-lines")});
    expectMarked({"preferences", "minimum-sentences", "?"}, {QStringLiteral("minimum-sentences")});
}

TEST_F(CommandTexts, OfWindowsThatCannotOpenAreTranslated)
{
    expectMarked({"selection"});
    expectMarked({"selection", "--clipboard"});
    expectMarked({"text"});
    expectMarked({"watch", "/5"});
    expectMarked({"watch", file("1.2", "1")});
}

TEST_F(CommandTexts, OfTheHelpAreTranslated)
{
    // What is typed: options, names, placeholders and examples.
    const QStringList typed{QStringLiteral("(?m)^  \\S[^⟦⟧\\n]*$"), QStringLiteral("--?[a-z-]+"),
        QStringLiteral("\\b[A-Z]+\\b"), QStringLiteral("(?m)^  [a-z-]+(, [a-z-]+)*"),
        QStringLiteral("\\b(count|doctor|explain|extract|help|preferences|selection|text|watch)\\b")};
    expectMarked({"help"}, typed);
    for (const char *const command :
        {"count", "doctor", "explain", "extract", "preferences", "selection", "text", "watch"})
        expectMarked({command, "--help"}, typed);
}

TEST_F(CommandTexts, OfTheDoctorAreTranslated)
{
    expectMarked({"doctor"}, {QStringLiteral("(?m)^[a-z]+ +[a-z-]+:")}); // identifiers
}
