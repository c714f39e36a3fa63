// SPDX-License-Identifier: MIT
// SelectionTargets maps the names of the forms that X clients offer, MIME types and those of ICCCM 2.6.2, to
// the forms of a pasteboard. Used inside this folder only.
// Thread: any.
#pragma once

#include "platform/pasteboard/Selection.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QList>

#include <optional>

namespace SelectionTargets {

/// The targets to request, in groups: of each group the first that provides something, in order of richness.
/// offered: absent if the owner does not list its targets.
QList<QByteArrayList> targetsToRequest(
    SelectionContent content, const std::optional<QByteArrayList> &offered);

/// A form of a pasteboard: its MIME type and its bytes.
struct Form {
    QString type;
    QByteArray bytes;
};

/// The form for a target. type: of the property; the encoding of a TEXT. Absent for an unsupported encoding.
std::optional<Form> makeForm(const QByteArray &target, const QByteArray &type, QByteArray bytes);

/// The targets under which a form of that MIME type is offered.
QByteArrayList targetsToOffer(const QString &type);

} // namespace SelectionTargets
