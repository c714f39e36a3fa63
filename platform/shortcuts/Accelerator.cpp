// SPDX-License-Identifier: MIT
#include "platform/shortcuts/Accelerator.h"

#include <QHash>

namespace {

struct Modifier {
    const char *name;
    Qt::Modifier modifier;
};

/// The first name of each is written, in this order, as GTK does.
constexpr Modifier modifiers[] = {{"Shift", Qt::SHIFT}, {"Primary", Qt::CTRL}, {"Control", Qt::CTRL},
    {"Ctrl", Qt::CTRL}, {"Ctl", Qt::CTRL}, {"Alt", Qt::ALT}, {"Mod1", Qt::ALT}, {"Super", Qt::META},
    {"Mod4", Qt::META}, {"Meta", Qt::META}};

struct KeyName {
    const char *gtk;
    const char *qt;
};

/// Keys that GTK names otherwise than Qt does in its portable texts. Letters, digits and F1 to F35 are alike.
constexpr KeyName keyNames[] = {{"space", "Space"}, {"Return", "Return"}, {"Page_Up", "PgUp"},
    {"Page_Down", "PgDown"}, {"Delete", "Del"}, {"Insert", "Ins"}, {"Escape", "Esc"},
    {"BackSpace", "Backspace"}, {"Home", "Home"}, {"End", "End"}, {"Left", "Left"}, {"Right", "Right"},
    {"Up", "Up"}, {"Down", "Down"}, {"Tab", "Tab"}, {"Print", "Print"}, {"Pause", "Pause"}, {"Menu", "Menu"},
    {"comma", ","}, {"period", "."}, {"minus", "-"}, {"plus", "+"}, {"slash", "/"}, {"backslash", "\\"},
    {"semicolon", ";"}, {"apostrophe", "'"}, {"equal", "="}, {"grave", "`"}, {"bracketleft", "["},
    {"bracketright", "]"}, {"numbersign", "#"}};

bool isNamedAlike(const QString &key)
{
    const bool isCharacter = key.size() == 1 && key[0].isLetterOrNumber();
    bool isNumber = false;
    const int number = key.startsWith(u'F', Qt::CaseInsensitive) ? key.mid(1).toInt(&isNumber) : 0;
    return isCharacter || (isNumber && number >= 1 && number <= 35);
}

QString gtkName(const QString &qtName)
{
    for (const KeyName &name : keyNames) {
        if (qtName == QLatin1String(name.qt))
            return QString::fromLatin1(name.gtk);
    }
    if (!isNamedAlike(qtName))
        return {};
    return qtName.size() == 1 ? qtName.toLower() : qtName;
}

QString qtName(const QString &gtkName)
{
    for (const KeyName &name : keyNames) {
        if (gtkName.compare(QLatin1String(name.gtk), Qt::CaseInsensitive) == 0)
            return QString::fromLatin1(name.qt);
    }
    return isNamedAlike(gtkName) ? gtkName.toUpper() : QString();
}

} // namespace

QString acceleratorOf(const QKeySequence &keys)
{
    if (keys.isEmpty())
        return {};
    const QString name = gtkName(QKeySequence(keys[0].key()).toString(QKeySequence::PortableText));
    if (name.isEmpty())
        return {};
    QString accelerator;
    Qt::KeyboardModifiers left = keys[0].keyboardModifiers();
    for (const Modifier &modifier : modifiers) {
        const auto flag = Qt::KeyboardModifier(static_cast<int>(modifier.modifier));
        if (left.testFlag(flag))
            accelerator += u'<' + QLatin1String(modifier.name) + u'>';
        left.setFlag(flag, false);
    }
    return accelerator + name;
}

QKeySequence keysOfAccelerator(const QString &accelerator)
{
    int combination = 0;
    qsizetype at = 0;
    while (at < accelerator.size() && accelerator[at] == u'<') {
        const qsizetype end = accelerator.indexOf(u'>', at);
        if (end < 0)
            return {};
        const QString name = accelerator.mid(at + 1, end - at - 1);
        int flag = 0;
        for (const Modifier &modifier : modifiers) {
            if (name.compare(QLatin1String(modifier.name), Qt::CaseInsensitive) == 0)
                flag = modifier.modifier;
        }
        if (flag == 0)
            return {};
        combination |= flag;
        at = end + 1;
    }
    const QString key = qtName(accelerator.mid(at));
    if (key.isEmpty())
        return {};
    const QKeySequence named(key, QKeySequence::PortableText);
    return named.isEmpty() ? QKeySequence() : QKeySequence(combination | static_cast<int>(named[0].key()));
}
