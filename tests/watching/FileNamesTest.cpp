// SPDX-License-Identifier: MIT
// Documents with unusual names are read, followed and reported.
#include "tests/watching/WatchedFileTest.h"

using ::testing::ElementsAre;
using namespace std::chrono_literals;

namespace {

class FileNamesTest : public WatchedFileTest {
protected:
    std::unique_ptr<WatchTextFileModel> watchURL(const QUrl &url)
    {
        auto model = std::make_unique<WatchTextFileModel>(url, &m_delegate, m_activity, m_clock);
        model->beginWatchingTextFile();
        return model;
    }
    static void rename(const QByteArray &from, const QByteArray &to)
    {
        ASSERT_EQ(::rename(from.constData(), to.constData()), 0);
    }
};

} // namespace

TEST_F(FileNamesTest, ADocumentWithAnyNameIsFollowed)
{
    for (const char *const name : {"caf\xE9.txt", "\xFF\xFE.txt", "-a.txt", "a#b.txt", "a?b.txt", "100%.txt",
             "caf%E9.txt", "a\nb.txt"}) {
        const QByteArray path = writeFileOfBytes(name, "before");
        const auto model = watchURL(fileURLOfPath(path));
        model->forceRead(nullptr);
        writeFileOfBytes(name, "after");
        pass(1s);
        EXPECT_THAT(m_delegate.takeMessages(),
            ElementsAre(QStringLiteral("text before"), QStringLiteral("text after")))
            << name;
    }
}

TEST_F(FileNamesTest, ANewNameThatIsNotUtf8IsFollowedAndReadable)
{
    const QByteArray first = writeFileOfBytes("caf\xE9.txt", "before");
    const QByteArray second = first.chopped(5) + "\xE8.txt";
    const auto model = watchURL(fileURLOfPath(first));
    rename(first, second);
    pass(1s);
    EXPECT_EQ(model->presentedItemURL(), fileURLOfPath(second));
    writeFileOfBytes("caf\xE8.txt", "after");
    pass(1s);
    EXPECT_THAT(m_delegate.takeMessages(),
        ElementsAre(QStringLiteral("renamed to caf\uFFFD.txt"), QStringLiteral("text after")));
}

TEST_F(FileNamesTest, AWordDocumentWithAnyNameIsFound)
{
    const QByteArray path = writeFileOfBytes("caf\xE9.docx", "PK");
    const auto model = watchURL(fileURLOfPath(path));
    EXPECT_TRUE(model->isPresentedItemDocXFile());
    model->forceRead(nullptr);
    EXPECT_THAT(m_delegate.takeMessages(), ElementsAre(QStringLiteral("docx caf\uFFFD.docx")));
}
