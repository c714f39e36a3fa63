// SPDX-License-Identifier: MIT
// The command on kernels that lack a part of the sandbox in which documents are read.
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/harness/QuillbayTest.h"

namespace {

class OlderKernelCommandTest : public QuillbayTest {
protected:
    /// Counts files on a kernel without a part; missing: as for older_kernel.
    static ChildProcess::Outcome countWithout(const char *missing, const QByteArrayList &files)
    {
        const QByteArray command = QFile::encodeName(productProgram(QStringLiteral("quillbay")));
        return ChildProcess(testProgram(QStringLiteral("older_kernel")))
            .run(QByteArrayList{missing, command, "count", "--tsv"} + files);
    }

    const QByteArray m_pages = writeFileOfBytes("pages.pdf", PdfWriter{{"four words on pages"}}.bytes());
    const QByteArray m_letter = writeFileOfBytes("letter.txt", "three more words");
};

} // namespace

TEST_F(OlderKernelCommandTest, WithoutLandlockDocumentsAreCounted)
{
    const ChildProcess::Outcome outcome = countWithout("landlock", {m_pages});
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.constData();
    EXPECT_TRUE(outcome.output.contains(m_pages + "\t4\t")) << outcome.output.constData();
}

TEST_F(OlderKernelCommandTest, WithoutAFilterOfSystemCallsADocumentIsReportedAndPlainTextIsCounted)
{
    for (const char *missing : {"seccomp", "both"}) {
        const ChildProcess::Outcome outcome = countWithout(missing, {m_pages, m_letter});
        EXPECT_EQ(outcome.exitStatus, 1) << missing;
        EXPECT_EQ(outcome.errors,
            "quillbay: " + m_pages
                + ": cannot be read safely, as the system refuses the filter of system calls; "
                  "allow seccomp in the kernel or container\n")
            << missing;
        EXPECT_TRUE(outcome.output.contains(m_letter + "\t3\t")) << outcome.output.constData();
    }
}
