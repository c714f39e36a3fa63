// SPDX-License-Identifier: MIT
#include "tests/translations/ShownTexts.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QMetaProperty>
#include <QWidget>

namespace {

class Collector {
public:
    void addObject(const QObject &object)
    {
        for (const char *const property :
            {"windowTitle", "windowIconText", "text", "iconText", "title", "toolTip", "statusTip",
                "whatsThis", "accessibleName", "accessibleDescription", "placeholderText", "prefix", "suffix",
                "specialValueText", "informativeText", "detailedText"}) {
            // What is in a text field belongs to the user.
            const bool isContent = object.inherits("QLineEdit") && qstrcmp(property, "text") == 0;
            if (!isContent)
                add(object.property(property).toString(), object, property);
        }
    }
    void addItems(const QAbstractItemView &view)
    {
        const QAbstractItemModel *const model = view.model();
        if (!model || view.inherits("QFileDialogTreeView") || view.inherits("QFileDialogListView")
            || view.inherits("QSidebar"))
            return; // the user's files
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 0; column < model->columnCount(); ++column)
                add(model->index(row, column).data().toString(), view, "an item");
        }
        for (int column = 0; column < model->columnCount(); ++column) {
            if (view.inherits("QTreeView"))
                add(model->headerData(column, Qt::Horizontal).toString(), view, "a header");
        }
    }
    void addAccessible(QWidget &widget)
    {
        QAccessibleInterface *const element = QAccessible::queryAccessibleInterface(&widget);
        if (!element)
            return;
        for (const QAccessible::Text kind : {QAccessible::Name, QAccessible::Description, QAccessible::Help})
            add(element->text(kind), widget, "for screen readers");
    }
    [[nodiscard]] std::vector<ShownText> texts() const { return m_texts; }

private:
    void add(const QString &text, const QObject &object, const char *property)
    {
        if (text.isEmpty())
            return;
        m_texts.push_back({text,
            QStringLiteral("%1 %2, %3")
                .arg(QString::fromLatin1(object.metaObject()->className()), object.objectName(),
                    QString::fromLatin1(property))});
    }

    std::vector<ShownText> m_texts;
};

} // namespace

std::vector<ShownText> shownTexts()
{
    Collector collector;
    for (QWidget *const widget : QApplication::allWidgets()) {
        collector.addObject(*widget);
        collector.addAccessible(*widget);
        for (const QAction *const action : widget->actions())
            collector.addObject(*action);
        if (const auto *const view = qobject_cast<QAbstractItemView *>(widget))
            collector.addItems(*view);
    }
    return collector.texts();
}
