// SPDX-License-Identifier: MIT
#include "platform/logging/LogArgument.h"

LogArgument LogArgument::publicly(const QString &text)
{
    LogArgument argument(text);
    argument.m_isPublic = true;
    return argument;
}

QString LogArgument::redacted() const
{
    return m_isPublic ? m_text : QStringLiteral("<private>");
}
