// SPDX-License-Identifier: MIT
// ProgressBarDelegate draws how far a goal is as a bar behind the text.
// Thread: main.  Owner: the table, as a Qt child.
#pragma once

#include <QStyledItemDelegate>

class ProgressBarDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(
        QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
