// SPDX-License-Identifier: MIT
#include "command/DoctorReport.h"

#include "command/FileNames.h"

#include <QDir>

namespace {

constexpr qsizetype lineLength = 80; // characters
constexpr qsizetype indent = 9; // the width of the first column

/// The text without the path of the home folder and without control characters.
QString publicText(QString text)
{
    const QString home = QDir::homePath();
    if (home.size() > 1) // not "/"
        text.replace(home + u'/', QStringLiteral("~/"));
    return QString::fromUtf8(printableName(text.toUtf8()));
}

/// Breaks a text between words.
QStringList linesOf(const QString &text)
{
    QStringList lines{QString()};
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        QString &line = lines.last();
        if (line.isEmpty())
            line = word;
        else if (indent + line.size() + 1 + word.size() <= lineLength)
            line += u' ' + word;
        else
            lines.append(word);
    }
    return lines;
}

} // namespace

int exitStatusOf(Severity severity)
{
    switch (severity) {
    case Severity::Good:
    case Severity::Note:
        return 0;
    case Severity::Limited:
        return 1;
    case Severity::Broken:
        break;
    }
    return 3; // 2 stands for wrong usage
}

const char *nameOf(Severity severity)
{
    switch (severity) {
    case Severity::Good:
        return "ok";
    case Severity::Note:
        return "note";
    case Severity::Limited:
        return "limited";
    case Severity::Broken:
        break;
    }
    return "broken";
}

QByteArray textOfFinding(const Check &check, const Finding &finding)
{
    const QString name = QString::fromLatin1(check.name) + QStringLiteral(": ");
    QStringList lines = linesOf(name + publicText(finding.text));
    if (!finding.remedy.isEmpty())
        lines += linesOf(publicText(finding.remedy));
    QByteArray text = QByteArray(nameOf(finding.severity)).leftJustified(indent);
    text += lines.takeFirst().toUtf8() + '\n';
    for (const QString &line : lines)
        text += QByteArray(indent, ' ') + line.toUtf8() + '\n';
    return text;
}

QByteArray summaryOf(Severity worst)
{
    QString text = Doctor::tr("Everything works.");
    if (worst == Severity::Limited)
        text = Doctor::tr("Quillbay works, with the limitations above.");
    else if (worst == Severity::Broken)
        text = Doctor::tr("Something that Quillbay needs does not work; see above.");
    return '\n' + text.toUtf8() + '\n';
}

QByteArray jsonOfFinding(const Check &check, const Finding &finding)
{
    return "{\"check\":\"" + QByteArray(check.name) + "\",\"severity\":\"" + nameOf(finding.severity)
        + "\",\"text\":" + jsonName(publicText(finding.text).toUtf8())
        + ",\"remedy\":" + jsonName(publicText(finding.remedy).toUtf8()) + '}';
}

QByteArray jsonOfExamination(Severity worst, const QByteArrayList &findings)
{
    return QByteArray("{\"severity\":\"") + nameOf(worst) + "\",\"findings\":[" + findings.join(',') + "]}\n";
}
