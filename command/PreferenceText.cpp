// SPDX-License-Identifier: MIT
#include "command/PreferenceText.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"
#include "platform/printing/PrintSettings.h"
#include "preferences/PrintSettingsExtension.h"
#include "preferences/StandardPage.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

using Parsed = Result<DefaultsValue, QString>;

constexpr int significantDigits = 10; // of a margin; its last bits come from units

QByteArray numberText(double number)
{
    return QByteArray::number(number, 'g', significantDigits);
}

struct ValueText {
    bool isJson;

    QByteArray operator()(bool isOn) const
    {
        if (isJson)
            return isOn ? "true" : "false";
        return isOn ? "on" : "off";
    }
    QByteArray operator()(qint64 number) const { return QByteArray::number(number); }
    QByteArray operator()(double inches) const { return numberText(inches) + (isJson ? "" : "in"); }
    QByteArray operator()(const QString &text) const
    {
        return isJson ? jsonName(text.toUtf8()) : printableName(text.toUtf8());
    }
};

QString quoted(const QString &text)
{
    return u'\'' + text + u'\'';
}

Parsed parse(const SwitchAccessors & /*accessors*/, const QString &text)
{
    const QString word = text.toLower();
    for (const char *on : {"on", "yes", "true", "1"}) {
        if (word == QLatin1StringView(on))
            return DefaultsValue(true);
    }
    for (const char *off : {"off", "no", "false", "0"}) {
        if (word == QLatin1StringView(off))
            return DefaultsValue(false);
    }
    return CommandText::tr("%1 is neither on nor off; use one of them").arg(quoted(text));
}

Parsed parse(const NumberAccessors &accessors, const QString &text)
{
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (isNumber && number >= accessors.min && number <= accessors.max)
        return DefaultsValue(number);
    return CommandText::tr("%1 is not a number from %2 to %3; use one")
        .arg(quoted(text), QString::number(accessors.min), QString::number(accessors.max));
}

Parsed parse(const StandardPageAccessors & /*accessors*/, const QString &text)
{
    if (const std::optional<StandardPage> page = StandardPage::fromText(text))
        return DefaultsValue(page->text());
    return CommandText::tr("%1 is no standard page; use one such as '1800 characters' or '250 words'")
        .arg(quoted(text));
}

/// Points.
QSizeF sizeOfPage()
{
    PrintSettings &settings = PrintSettings::shared();
    const std::optional<QBYPaper> paper = QBYExtension::currentPaperObject(settings);
    return paper ? paper->paperSize() : settings.paperSize();
}

Parsed parse(const MarginAccessors &accessors, const QString &text)
{
    static const QRegularExpression length(
        QStringLiteral("^(\\d{1,9}(?:[.,]\\d{0,15})?|[.,]\\d{1,15})\\s*(in|mm|cm|pt|\")?$"));
    const QRegularExpressionMatch match = length.match(text.trimmed());
    if (!match.hasMatch())
        return CommandText::tr("%1 is not a length; use one such as 1in, 25.4mm, 2.5cm or 72pt")
            .arg(quoted(text));
    double inches = match.captured(1).replace(u',', u'.').toDouble();
    const QString unit = match.captured(2);
    if (unit == QStringLiteral("mm"))
        inches /= millimetresPerInch;
    else if (unit == QStringLiteral("cm"))
        inches /= millimetresPerInch / 10;
    else if (unit == QStringLiteral("pt"))
        inches /= pointsPerInch;
    const QSizeF page = sizeOfPage();
    const double side = accessors.isVertical ? page.height() : page.width();
    const double max = maxMargin(side, accessors.getOpposite());
    constexpr double tolerance = 1e-6; // the maximum itself, as it is printed
    if (inches <= max + tolerance)
        return DefaultsValue(inches);
    return CommandText::tr("%1 leaves no column on the page; use at most %2in")
        .arg(quoted(text), QString::number(max, 'g', 4));
}

QString namesOf(const std::vector<Paper> &papers)
{
    QStringList names;
    for (const Paper &paper : papers) {
        if (paper.ppdName)
            names.append(*paper.ppdName);
    }
    return names.join(QStringLiteral(", "));
}

std::optional<QBYPaper> paperNamed(
    const std::vector<Paper> &papers, const QString &name, Qt::CaseSensitivity sensitivity)
{
    for (const Paper &paper : papers) {
        if (paper.ppdName && paper.ppdName->compare(name, sensitivity) == 0)
            return QBYPaper(paper);
    }
    return std::nullopt;
}

Parsed parse(const PaperAccessors & /*accessors*/, const QString &text)
{
    const PrinterAnswer printer = PrintSettings::shared().printer();
    std::optional<QBYPaper> paper = paperNamed(printer.papers, text, Qt::CaseSensitive);
    if (!paper)
        paper = paperNamed(printer.papers, text, Qt::CaseInsensitive);
    if (!paper) {
        const QString problem = printer.state == PrinterState::Answering
            ? CommandText::tr("%1 is no paper of your printer; use one of %2")
            : CommandText::tr("%1 is no common paper, and no printer answers; use one of %2");
        return problem.arg(quoted(text), namesOf(printer.papers));
    }
    const auto marginOf = [](Preference preference) {
        return std::get<MarginAccessors>(editablePreference(preference).accessors).get();
    };
    const double left = marginOf(Preference::LeftMargin);
    const double right = marginOf(Preference::RightMargin);
    if (!leaveColumn(left, right, paper->paperSize().width())) {
        return CommandText::tr("the margins of %1in and %2in leave no column on %3; make them smaller first")
            .arg(QString::number(left), QString::number(right), *paper->paperName());
    }
    return DefaultsValue(*paper->paperName());
}

} // namespace

QByteArray printableValue(const EditablePreference &preference)
{
    const std::optional<DefaultsValue> value = valueOf(preference);
    return value ? std::visit(ValueText{false}, *value) : "unset";
}

QByteArray jsonValue(const EditablePreference &preference)
{
    const std::optional<DefaultsValue> value = valueOf(preference);
    return value ? std::visit(ValueText{true}, *value) : "null";
}

Result<DefaultsValue, QString> parseValue(const EditablePreference &preference, const QString &text)
{
    return std::visit([&](const auto &accessors) { return parse(accessors, text); }, preference.accessors);
}
