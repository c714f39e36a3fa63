// SPDX-License-Identifier: MIT
// LogArgument is one value that a log message mentions, with the decision whether readers of the log may see
// it. Thread: any; a value.
#pragma once

#include <QString>

#include <concepts>
#include <utility>

/// Text is private unless it is wrapped in publicly(): it may be a file name or a piece of a document.
/// Numbers and truth values are public, as they name nobody.
class LogArgument {
public:
    LogArgument(QString text)
        : m_text(std::move(text))
        , m_isPublic(false)
    {
    }
    LogArgument(bool value)
        : m_text(value ? QStringLiteral("true") : QStringLiteral("false"))
    {
    }
    template <std::integral Integer>
    LogArgument(Integer value)
        : m_text(QString::number(value))
    {
    }
    LogArgument(double value)
        : m_text(QString::number(value))
    {
    }

    static LogArgument publicly(const QString &text);

    /// What the log shows: the text of a public argument, "<private>" for a private one.
    [[nodiscard]] QString redacted() const;

private:
    QString m_text;
    bool m_isPublic = true;
};

inline LogArgument publicly(const QString &text)
{
    return LogArgument::publicly(text);
}
