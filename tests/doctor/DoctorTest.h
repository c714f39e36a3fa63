// SPDX-License-Identifier: MIT
// DoctorTest is the fixture of tests that run "quillbay doctor" where something is really broken.
// Thread: main.  Owner: the test.
#pragma once

#include "tests/command/CommandTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

class DoctorTest : public CommandTest {
protected:
    struct Report {
        int exitStatus = -1;
        QString severity;
        std::map<QString, QJsonObject> findings; ///< by the name of the check

        /// "broken: There is …"
        [[nodiscard]] std::string text(const char *check) const { return part(check, "text"); }
        [[nodiscard]] std::string remedy(const char *check) const { return part(check, "remedy"); }

    private:
        [[nodiscard]] std::string part(const char *check, const char *name) const
        {
            const auto found = findings.find(QString::fromLatin1(check));
            if (found == findings.end())
                return "no such check";
            const QJsonObject &finding = found->second;
            return (finding[u"severity"].toString() + QStringLiteral(": ")
                + finding[QLatin1StringView(name)].toString())
                .toStdString();
        }
    };

    static Report examine() { return examine(ChildProcess(productProgram(QStringLiteral("quillbay"))), {}); }
    /// words: before "doctor", for a program that runs the command.
    static Report examine(ChildProcess &&program, const QByteArrayList &words)
    {
        const ChildProcess::Outcome outcome = program.run(words + QByteArrayList{"doctor", "--json"});
        EXPECT_EQ(outcome.output.count('\n'), 1) << outcome.errors.constData();
        const QJsonObject object = QJsonDocument::fromJson(outcome.output).object();
        Report report{outcome.exitStatus, object[u"severity"].toString(), {}};
        for (const QJsonValue finding : object[u"findings"].toArray())
            report.findings.emplace(finding[u"check"].toString(), finding.toObject());
        return report;
    }

    /// Runs the command through a program, such as older_kernel.
    static Report examineThrough(const QString &program, QByteArrayList words)
    {
        words.append(QFile::encodeName(productProgram(QStringLiteral("quillbay"))));
        return examine(ChildProcess(program), words);
    }
};
