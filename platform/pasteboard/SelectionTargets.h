// SPDX-License-Identifier: MIT
// SelectionTargets knows the names under which X clients offer the forms of a selection: MIME types and those
// of ICCCM 2.6.2. Thread: any. Used inside this folder only.
#pragma once

#include "platform/pasteboard/Selection.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QList>

#include <optional>

namespace SelectionTargets {

/// Of the offered targets those to ask for: of each group the first that gives something, the richest being
/// first. offered is absent where the owner does not tell.
QList<QByteArrayList> wanted(SelectionContent content, const std::optional<QByteArrayList> &offered);

/// A form of a pasteboard: its MIME type and its bytes.
struct Form {
    QString type;
    QByteArray bytes;
};

/// What an owner gave for a target. type: the property's, which tells the encoding of a TEXT. Absent where
/// that is an encoding that nothing reads.
std::optional<Form> form(const QByteArray &target, const QByteArray &type, QByteArray bytes);

} // namespace SelectionTargets
