// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceBuilder.h"

#include "platform/views/Box.h"
#include "platform/views/Button.h"
#include "platform/views/Label.h"

#include <QRect>

using Cause = InterfaceError::Cause;

namespace {

std::optional<LabelAlignment> alignmentOf(const QString &flags)
{
    LabelAlignment alignment = LabelAlignment::Left;
    for (const QStringView flag : QStringView(flags).split(u'|')) {
        if (flag == u"Qt::AlignRight" || flag == u"Qt::AlignTrailing")
            alignment = LabelAlignment::Right;
        else if (flag == u"Qt::AlignHCenter" || flag == u"Qt::AlignCenter")
            alignment = LabelAlignment::Center;
        else if (flag != u"Qt::AlignLeft" && flag != u"Qt::AlignLeading" && flag != u"Qt::AlignVCenter")
            return std::nullopt;
    }
    return alignment;
}

std::optional<bool> applyToLabel(const InterfaceProperty &property, Label &label)
{
    if (property.name == u"text" && property.kind == u"string") {
        label.setStringValue(property.value.toString());
        return true;
    }
    if (property.name != u"alignment")
        return std::nullopt;
    const std::optional<LabelAlignment> alignment = alignmentOf(property.value.toString());
    if (alignment)
        label.setAlignment(*alignment);
    return alignment.has_value();
}

std::optional<bool> applyToButton(const InterfaceProperty &property, Button &button)
{
    if (property.name == u"text" && property.kind == u"string") {
        button.setTitle(property.value.toString());
        return true;
    }
    if (property.name == u"icon" && property.kind == u"iconset") {
        button.setIconName(property.value.toString());
        return !button.iconName().isEmpty();
    }
    if (property.name == u"enabled" && property.kind == u"bool") {
        button.setEnabled(property.value.toBool());
        return true;
    }
    return std::nullopt;
}

std::optional<bool> applyToBox(const InterfaceProperty &property, Box &box)
{
    if (property.name == u"frameShadow")
        return true;
    if (property.name != u"frameShape" && property.name != u"orientation")
        return std::nullopt;
    const QString value = property.value.toString();
    if (value == u"QFrame::HLine" || value == u"QFrame::VLine")
        box.setKind(Box::Kind::Separator);
    return true;
}

} // namespace

InterfaceBuilder::InterfaceBuilder(
    std::vector<InterfaceWidget> widgets, const QString &file, const InterfaceMakers &makers)
    : m_widgets(std::move(widgets))
    , m_makers(makers)
{
    m_file.m_file = file;
}

bool InterfaceBuilder::fail(Cause cause, qint64 line, const QString &detail)
{
    m_error = InterfaceError{cause, m_file.m_file, line, detail};
    return false;
}

Result<InterfaceFile, InterfaceError> InterfaceBuilder::build()
{
    for (const InterfaceWidget &widget : m_widgets) {
        if (!makeView(widget))
            return *m_error;
    }
    m_file.m_rootView = m_views.front();
    m_file.m_rootLine = m_widgets.front().line;
    return std::move(m_file);
}

bool InterfaceBuilder::makeView(const InterfaceWidget &widget)
{
    const std::shared_ptr<View> view = m_makers.make(widget.className);
    if (!view)
        return fail(Cause::UnknownClass, widget.line, widget.className);
    if (!widget.name.isEmpty() && m_file.m_places.contains(widget.name))
        return fail(Cause::DuplicateName, widget.line, widget.name);
    view->setIdentifier(widget.name);

    InterfaceFile::Place entry{view, widget.line};
    bool hasGeometry = false;
    for (const InterfaceProperty &property : widget.properties) {
        if (property.name == u"geometry" && property.kind == u"rect") {
            setFrame(*view, property.value.toRect(), widget.parent);
            hasGeometry = true;
        } else if (!apply(property, *view, entry)) {
            return false;
        }
    }
    if (!hasGeometry)
        return fail(Cause::BadValue, widget.line, QStringLiteral("geometry"));
    if (widget.parent)
        m_views[*widget.parent]->addSubview(view);
    m_views.push_back(view);
    if (!widget.name.isEmpty())
        m_file.m_places.insert(widget.name, std::move(entry));
    return true;
}

void InterfaceBuilder::setFrame(View &view, const QRect &geometry, std::optional<size_t> parent) const
{
    if (!parent) {
        view.setFrameSize(geometry.size());
        return;
    }
    const View &superview = *m_views[*parent];
    const double fromTop = geometry.y();
    const double y =
        superview.isFlipped() ? fromTop : superview.frame().height() - fromTop - geometry.height();
    view.setFrame({double(geometry.x()), y, double(geometry.width()), double(geometry.height())});
}

bool InterfaceBuilder::apply(const InterfaceProperty &property, View &view, InterfaceFile::Place &entry)
{
    std::optional<bool> isApplied = applyToAnyView(property, view);
    if (!isApplied)
        isApplied = applyToClass(property, view);
    if (isApplied)
        return *isApplied || fail(Cause::BadValue, property.line, property.name);
    // What has no name of Qt's but a plain value is for the owner of the file.
    const bool isPlain = property.value.metaType() != QMetaType::fromType<QRect>() && property.kind != u"enum"
        && property.kind != u"set" && property.kind != u"iconset";
    if (!isPlain)
        return fail(Cause::UnsupportedProperty, property.line, property.name);
    entry.properties.insert(property.name, property.value);
    return true;
}

std::optional<bool> InterfaceBuilder::applyToAnyView(const InterfaceProperty &property, View &view)
{
    if (property.name == u"tag" && property.kind != u"number" && property.kind != u"longLong")
        return false;
    if (property.name == u"tag")
        view.setTag(property.value.toLongLong());
    else if (property.name == u"visible" && property.kind == u"bool")
        view.setHidden(!property.value.toBool());
    else if (property.name == u"accessibleName" && property.kind == u"string")
        view.setAccessibleName(property.value.toString());
    else if (property.name == u"toolTip" && property.kind == u"string")
        view.setToolTip(property.value.toString());
    else
        return std::nullopt;
    return true;
}

std::optional<bool> InterfaceBuilder::applyToClass(const InterfaceProperty &property, View &view)
{
    if (auto *const label = dynamic_cast<Label *>(&view))
        return applyToLabel(property, *label);
    if (auto *const button = dynamic_cast<Button *>(&view))
        return applyToButton(property, *button);
    if (auto *const box = dynamic_cast<Box *>(&view))
        return applyToBox(property, *box);
    return std::nullopt;
}
