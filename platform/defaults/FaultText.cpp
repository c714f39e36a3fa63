// SPDX-License-Identifier: MIT
#include "platform/defaults/FaultText.h"

#include <QCoreApplication>

namespace {

constexpr const char *context = "platform/defaults";

/// Ours, and those that SQLite has for what users meet; for the translators.
[[maybe_unused]] constexpr const char *reasons[] = {
    QT_TRANSLATE_NOOP("platform/defaults", "it is another program's database"),
    QT_TRANSLATE_NOOP("platform/defaults", "it is not a file"),
    QT_TRANSLATE_NOOP("platform/defaults", "it is too large"),
    QT_TRANSLATE_NOOP("platform/defaults", "its file is being replaced"),
    QT_TRANSLATE_NOOP("platform/defaults", "it is damaged"),
    QT_TRANSLATE_NOOP("platform/defaults", "another process keeps it locked"),
    QT_TRANSLATE_NOOP("platform/defaults", "unable to open database file"),
    QT_TRANSLATE_NOOP("platform/defaults", "attempt to write a readonly database"),
    QT_TRANSLATE_NOOP("platform/defaults", "database or disk is full"),
    QT_TRANSLATE_NOOP("platform/defaults", "disk I/O error"),
    QT_TRANSLATE_NOOP("platform/defaults", "database is locked"),
    QT_TRANSLATE_NOOP("platform/defaults", "file is not a database"),
    QT_TRANSLATE_NOOP("platform/defaults", "database disk image is malformed"),
};

/// One of the reasons, or the description of an errno.
QString translated(const QString &reason)
{
    const QByteArray source = reason.toUtf8();
    const QString text = QCoreApplication::translate(context, source.constData());
    return text == reason ? QCoreApplication::translate("platform/system", source.constData()) : text;
}

} // namespace

QString faultText(const QString &reason)
{
    if (reason.isEmpty())
        return QCoreApplication::translate(context, "unknown reason");
    // SQLite's reason may have the errno behind it in brackets.
    const qsizetype bracket = reason.indexOf(QStringLiteral(" ("));
    if (bracket < 0 || !reason.endsWith(u')'))
        return translated(reason);
    const QString inner = reason.mid(bracket + 2).chopped(1);
    return translated(reason.left(bracket)) + QStringLiteral(" (") + translated(inner) + u')';
}
