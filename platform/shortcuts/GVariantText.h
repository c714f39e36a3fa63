// SPDX-License-Identifier: MIT
// The text form of the values that gsettings prints and takes, as far as shortcuts need it: strings and lists
// of strings.
// Thread: any.
#pragma once

#include <QString>
#include <QStringList>

/// All strings in the value, with what the quotes hide; a single string is a list of one.
QStringList stringsInGVariant(const QString &text);

QString gvariantOf(const QString &string);
QString gvariantOf(const QStringList &strings);
