// SPDX-License-Identifier: MIT
// InterfaceFile makes the tree of views that a form of Qt Designer (.ui, version 4) describes, without
// widgets. Interface files are compiled into the program: anything unsupported in one is an error in the
// program.
// Thread: main.  Owner: whatever loads the file; shares the ownership of its views.
#pragma once

#include "platform/system/Result.h"
#include "platform/views/View.h"

#include <QHash>

#include <optional>

class InterfaceFile {
public:
    /// path: of a resource, such as ":/interface_files/Panel.ui". Aborts the process, with the error message,
    /// if the file cannot be used.
    static InterfaceFile load(const QString &path);
    /// file: the file's name in the error message, such as "Panel.ui:12: unsupported widget class QSlider".
    ///
    /// Geometries become frames: a pixel of Designer is a point, and y counts from the bottom. The root view
    /// is at the origin. Layouts are unsupported: every widget needs a geometry. All views accept visible,
    /// accessibleName, toolTip and tag; labels accept text and alignment (horizontal), buttons text, icon (by
    /// theme name) and enabled, lines orientation. All other numbers are available by integerProperty().
    static Result<InterfaceFile, QString> parse(const QByteArray &contents, const QString &file);

    [[nodiscard]] const std::shared_ptr<View> &rootView() const { return m_rootView; }

    /// The view with that object name. Aborts the process if there is none, or one of another class.
    template <typename ViewClass = View>
    [[nodiscard]] std::shared_ptr<ViewClass> outlet(const QString &name) const
    {
        auto view = std::dynamic_pointer_cast<ViewClass>(m_outlets.value(name));
        if (!view)
            failForOutlet(name);
        return view;
    }

    /// A number that the file gives the view with that object name; absent if it does not.
    [[nodiscard]] std::optional<qint64> integerProperty(const QString &viewName, const QString &name) const;

private:
    class Reader;

    [[noreturn]] void failForOutlet(const QString &name) const;

    QString m_file;
    std::shared_ptr<View> m_rootView;
    QHash<QString, std::shared_ptr<View>> m_outlets; // by object name
};
