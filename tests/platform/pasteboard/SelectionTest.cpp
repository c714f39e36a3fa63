// SPDX-License-Identifier: MIT
// Selections of owners that follow the protocol.
#include "tests/platform/pasteboard/SelectionTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QProcess>
#include <QWindow>

#include <functional>

using ::testing::ElementsAre;
using Cause = SelectionFailure::Cause;

namespace {

const QString utf8Type = QStringLiteral("text/plain;charset=utf-8");

QByteArray utf16(const QString &text, const QByteArray &mark)
{
    return mark + QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
}

/// Offers what fill() puts into the data. Qt takes a selection at the time of the last event that it has
/// seen, which the server refuses where another program has owned it since: the titles of the window make
/// newer events.
void provide(QClipboard::Mode mode, const std::function<void(QMimeData &)> &fill)
{
    QWindow window;
    window.create();
    EXPECT_TRUE(waitUntil([&, attempt = 0]() mutable {
        window.setTitle(QString::number(++attempt));
        auto *const data = new QMimeData; // the clipboard takes ownership
        fill(*data);
        QGuiApplication::clipboard()->setMimeData(data, mode);
        return mode == QClipboard::Selection ? QGuiApplication::clipboard()->ownsSelection()
                                             : QGuiApplication::clipboard()->ownsClipboard();
    }));
}

} // namespace

TEST_F(SelectionTest, AMissingSelectionIsReported)
{
    EXPECT_EQ(failureOf(read()), Cause::NothingSelected);
    EXPECT_EQ(failureOf(read(SelectionName::Clipboard)), Cause::NothingSelected);
}

TEST_F(SelectionTest, TheRichestFormComesWithThePlainText)
{
    const SelectionOwner owner("PRIMARY",
        {{"STRING", "plain"}, {"text/html", "<b>bold</b>"}, {"UTF8_STRING", "plain"},
            {"text/rtf", "{\\rtf1 rich}"}, {"text/plain;charset=utf-8", "plain"}});
    EXPECT_EQ(formsOf(read()),
        (Pasteboard::Forms{{QStringLiteral("text/rtf"), "{\\rtf1 rich}"}, {utf8Type, "plain"}}));
}

TEST_F(SelectionTest, PrimaryAndClipboardAreSeparate)
{
    const SelectionOwner selected("PRIMARY", {{"UTF8_STRING", "selected"}});
    const SelectionOwner copied("CLIPBOARD", {{"UTF8_STRING", "copied"}});
    EXPECT_EQ(formsOf(read()), (Pasteboard::Forms{{utf8Type, "selected"}}));
    EXPECT_EQ(formsOf(read(SelectionName::Clipboard)), (Pasteboard::Forms{{utf8Type, "copied"}}));
}

TEST_F(SelectionTest, ARefusedOrEmptyFormIsSkipped)
{
    const SelectionOwner owner("PRIMARY",
        {{"text/rtf", SelectionOwner::refused()}, {"text/richtext", ""}, {"text/html", "<p>One"},
            {"UTF8_STRING", ""}, {"STRING", "caf\xe9"}});
    const Result<Pasteboard, SelectionFailure> pasteboard = read();
    EXPECT_EQ(formsOf(pasteboard),
        (Pasteboard::Forms{{QStringLiteral("text/html"), "<p>One"},
            {QStringLiteral("text/plain;charset=iso-8859-1"), "caf\xe9"}}));
    EXPECT_EQ(textOf(pasteboard), QStringLiteral("One"));
}

TEST_F(SelectionTest, TwentyMegabytesInPiecesArriveComplete)
{
    const QByteArray contents = manyLines(20 << 20);
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", contents}});
    EXPECT_EQ(formsOf(read()), (Pasteboard::Forms{{utf8Type, contents}}));
}

TEST_F(SelectionTest, ThreeMegabytesInOnePropertyArriveComplete)
{
    const QByteArray contents = manyLines((3 << 20) + 1);
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", contents}}, "at-once");
    EXPECT_EQ(formsOf(read()), (Pasteboard::Forms{{utf8Type, contents}}));
}

TEST_F(SelectionTest, HtmlInUtf16IsReadWithAMarkAndWithout)
{
    const QString page =
        QStringLiteral("<html><body><p>Caf\u00e9 \u201cBlau\u201d, 1\u202f\u20ac</p></body></html>");
    for (const QByteArray &mark : {QByteArray("\xff\xfe"), QByteArray()}) {
        const SelectionOwner owner("PRIMARY", {{"text/html", utf16(page, mark)}, {"UTF8_STRING", "plain"}});
        EXPECT_EQ(textOf(read()), QStringLiteral("Caf\u00e9 \u201cBlau\u201d, 1\u202f\u20ac"));
    }
}

TEST_F(SelectionTest, AShortPieceOfHtmlInUtf16IsReadTheSame)
{
    for (const QByteArray &mark : {QByteArray("\xff\xfe"), QByteArray()}) {
        const SelectionOwner owner(
            "PRIMARY", {{"text/html", utf16(QStringLiteral("<b>One</b> \u03c0"), mark)}});
        EXPECT_EQ(textOf(read()), QStringLiteral("One \u03c0"));
    }
}

TEST_F(SelectionTest, AListOfFilesComesAlone)
{
    const SelectionOwner owner("PRIMARY",
        {{"UTF8_STRING", "/tmp/a"}, {"text/uri-list", "file:///tmp/a\r\n"},
            {"x-special/gnome-copied-files", "copy\nfile:///tmp/a"}});
    const auto pasteboard = read(SelectionName::Primary, SelectionContent::Files);
    ASSERT_TRUE(pasteboard);
    EXPECT_EQ(pasteboard.value().forms().size(), 1U);
    EXPECT_THAT(pasteboard.value().readFileURLs(), ElementsAre(QUrl(QStringLiteral("file:///tmp/a"))));
}

TEST_F(SelectionTest, TheTypeOfATextIsItsEncoding)
{
    const SelectionOwner owner("PRIMARY", {{"TEXT", "\xcf\x80"}}, "UTF8_STRING");
    EXPECT_EQ(textOf(read()), QStringLiteral("\u03c0"));
}

TEST_F(SelectionTest, AQtProgramProvidesEveryForm)
{
    provide(QClipboard::Selection, [](QMimeData &data) {
        data.setData(QStringLiteral("text/rtf"), "{\\rtf1\\ansi rich}");
        data.setHtml(QStringLiteral("<p>page"));
        data.setText(QStringLiteral("plain \u03c0"));
    });
    EXPECT_EQ(formsOf(read()),
        (Pasteboard::Forms{
            {QStringLiteral("text/rtf"), "{\\rtf1\\ansi rich}"}, {utf8Type, "plain \xcf\x80"}}));
    QGuiApplication::clipboard()->clear(QClipboard::Selection);
}

TEST_F(SelectionTest, LargeHtmlOfAQtProgramArrivesComplete)
{
    const QString page = QString::fromLatin1("<pre>" + manyLines(2 << 20));
    provide(QClipboard::Clipboard, [&page](QMimeData &data) { data.setHtml(page); });
    const auto forms = formsOf(read(SelectionName::Clipboard));
    ASSERT_EQ(forms.size(), 1U);
    EXPECT_EQ(forms.begin()->second, page.toUtf8());
    QGuiApplication::clipboard()->clear(QClipboard::Clipboard);
}

TEST_F(SelectionTest, XclipAndXselProvideWhatTheyRead)
{
    const std::vector<std::pair<QString, QStringList>> programs{
        {QStringLiteral(XCLIP),
            {QStringLiteral("-quiet"), QStringLiteral("-selection"), QStringLiteral("primary")}},
        {QStringLiteral(XSEL),
            {QStringLiteral("--nodetach"), QStringLiteral("--input"), QStringLiteral("--primary")}},
    };
    const QByteArray contents = "caf\xc3\xa9 " + manyLines(1 << 20);
    const QString file = writeFile(QStringLiteral("contents"), contents);
    for (const auto &[program, words] : programs) {
        QProcess process;
        process.setStandardInputFile(file);
        process.start(program, words);
        EXPECT_TRUE(waitUntil([&] {
            return formsOf(read()) == Pasteboard::Forms{{utf8Type, contents}};
        })) << program.toStdString();
        process.kill();
        process.waitForFinished();
    }
}
