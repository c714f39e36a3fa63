// SPDX-License-Identifier: MIT
// Real workers on kernels that lack a part of the sandbox.
#include "counting_service/broker/WorkerPool.h"
#include "tests/counting_service/CountingServiceTest.h"

#include <optional>

namespace {

class OlderKernelTest : public QuillbayTest {
protected:
    /// The answer of a worker on a kernel without a part. missing: as for older_kernel; null for this kernel.
    static CountJob::Outcome countWithout(const char *missing, const QByteArray &document)
    {
        const QByteArray service =
            QFile::encodeName(productProgram(QStringLiteral("quillbay-counting-service")));
        WorkerProgram program{.path = service, .arguments = {"--worker"}};
        if (missing)
            program = {.path = QFile::encodeName(testProgram(QStringLiteral("older_kernel"))),
                .arguments = {missing, service, "--worker"}};
        WorkerPool pool(program, 1);
        std::optional<CountJob::Outcome> outcome;
        pool.add({1, DocumentKind::Rtfd, SealedMemory::copyOf(document).value(), rules(),
            [&outcome](const CountJob::Outcome &answer) { outcome = answer; }});
        EXPECT_TRUE(waitUntil([&outcome] { return outcome.has_value(); }));
        return *outcome;
    }

    static RulesSnapshot rules()
    {
        RulesSnapshot rules;
        rules.localeName = "en_US.UTF-8";
        rules.page = {
            .paperName = std::nullopt, .paperSize = {612, 792}, .leftMargin = 72, .rightMargin = 72};
        return rules;
    }

    const QByteArray m_document =
        flatRtfd(QStringLiteral("Some words, 言葉, слова, كلمات, शब्द. ").repeated(100));
    const RecordingLogSink m_log;
};

} // namespace

TEST_F(OlderKernelTest, WithoutLandlockAWorkerCountsTheSameAndTheLogWarnsOnce)
{
    const CountJob::Outcome whole = countWithout(nullptr, m_document);
    EXPECT_THAT(m_log.messages(LogLevel::Notice), ::testing::IsEmpty());
    const CountJob::Outcome outcome = countWithout("landlock", m_document);
    ASSERT_TRUE(outcome.hasValue());
    EXPECT_EQ(outcome.value(), whole.value());
    EXPECT_GT(outcome.value().numberOfLines, 10U);
    const QStringList warnings = m_log.messages(LogLevel::Notice);
    EXPECT_EQ(warnings.filter(QStringLiteral("no Landlock in this kernel")).size(), 1);
}

TEST_F(OlderKernelTest, WithoutAFilterOfSystemCallsNothingIsReadAndTheLogSaysWhy)
{
    for (const char *missing : {"seccomp", "both"}) {
        const CountJob::Outcome outcome = countWithout(missing, m_document);
        ASSERT_FALSE(outcome.hasValue()) << missing;
        EXPECT_EQ(outcome.error(), DocumentError(DocumentError::Cause::NoSandbox, DocumentKind::Rtfd))
            << missing;
        EXPECT_EQ(causeText(outcome.error()),
            QStringLiteral("cannot be read safely, as the system refuses the filter of system calls; "
                           "allow seccomp in the kernel or container"));
    }
    const QStringList errors = m_log.messages(LogLevel::Error);
    EXPECT_EQ(errors.filter(QStringLiteral("no system call filter in this kernel")).size(), 2);
}
