// SPDX-License-Identifier: MIT
// InterfaceBuilder makes views of the widgets that an InterfaceReader has read.
// Thread: main.  Owner: InterfaceFile; used once.
#pragma once

#include "platform/views/InterfaceFile.h"
#include "platform/views/InterfaceReader.h"

class InterfaceBuilder {
public:
    /// widgets: not empty. makers: must outlive the builder.
    InterfaceBuilder(
        std::vector<InterfaceWidget> widgets, const QString &file, const InterfaceMakers &makers);

    [[nodiscard]] Result<InterfaceFile, InterfaceError> build();

private:
    bool makeView(const InterfaceWidget &widget);
    bool apply(const InterfaceProperty &property, View &view, InterfaceFile::Place &entry);
    /// Whether the value was one that it may have; absent where the property means nothing to such a view.
    static std::optional<bool> applyToAnyView(const InterfaceProperty &property, View &view);
    static std::optional<bool> applyToClass(const InterfaceProperty &property, View &view);
    void setFrame(View &view, const QRect &geometry, std::optional<size_t> parent) const;

    bool fail(InterfaceError::Cause cause, qint64 line, const QString &detail);

    std::vector<InterfaceWidget> m_widgets;
    std::vector<std::shared_ptr<View>> m_views; // as m_widgets
    const InterfaceMakers &m_makers;
    InterfaceFile m_file;
    std::optional<InterfaceError> m_error;
};
