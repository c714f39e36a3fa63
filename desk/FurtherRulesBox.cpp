// SPDX-License-Identifier: MIT
#include "desk/FurtherRulesBox.h"

#include "preferences/FurtherPreferences.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

QString textOf(const StandardPage &page)
{
    return page.unit == StandardPage::Unit::Words ? FurtherRulesBox::tr("%L1 words").arg(page.size)
                                                  : FurtherRulesBox::tr("%L1 characters").arg(page.size);
}

/// What a user has typed: its digits, grouped or not, and the unit that its letters begin; without letters,
/// that of the page before. Absent for what is no standard page.
std::optional<StandardPage> pageFrom(const QString &typed, StandardPage::Unit unitBefore)
{
    QString digits;
    QString letters;
    for (const QChar character : typed) {
        if (character.isDigit())
            digits += QString::number(character.digitValue());
        else if (character.isLetter())
            letters += character;
    }
    const auto begins = [&letters](const QString &text) {
        return text.simplified().section(u' ', -1).startsWith(letters, Qt::CaseInsensitive);
    };
    const bool isOfWords = letters.isEmpty() ? unitBefore == StandardPage::Unit::Words
                                             : begins(textOf({1, StandardPage::Unit::Words}));
    if (!letters.isEmpty() && !isOfWords && !begins(textOf({1, StandardPage::Unit::Characters})))
        return std::nullopt;
    return StandardPage::fromText(digits + (isOfWords ? QStringLiteral(" words") : QString()));
}

} // namespace

FurtherRulesBox::FurtherRulesBox(RulesEditor &editor)
    : QGroupBox(tr("Beyond the Eight Numbers"))
    , m_editor(editor)
    , m_rows(new QGridLayout(this))
{
    auto *const note = new QLabel(tr("Shown in the table of documents and in the terminal only."));
    note->setWordWrap(true);
    m_rows->addWidget(note, 0, 0, 1, 4);
    m_rows->setColumnStretch(3, 1);
    addSwitch(tr("Pages of your paper"), Preference::ShowPages, "pagesCheckBox");
    addSwitch(tr("Standard pages"), Preference::ShowStandardPages, "standardPagesCheckBox");
    m_standardPages = addStandardPages();
    addSwitch(tr("Reading time"), Preference::ShowReadingTime, "readingTimeCheckBox");
    m_readingSpeed = addSpeed(Preference::ReadingSpeed, "readingSpeedSpinBox", tr("Reading Speed"));
    addSwitch(tr("Speaking time"), Preference::ShowSpeakingTime, "speakingTimeCheckBox");
    m_speakingSpeed = addSpeed(Preference::SpeakingSpeed, "speakingSpeedSpinBox", tr("Speaking Speed"));
    addSwitch(tr("Characters as a reader sees them"), Preference::ShowGraphemes, "graphemesCheckBox")
        ->setToolTip(
            tr("Counts what looks like one character as one: letters with their accents, and emoji."));
    showValues();
}

QCheckBox *FurtherRulesBox::addSwitch(const QString &text, Preference preference, const char *name)
{
    auto *const checkBox = new QCheckBox(text);
    checkBox->setObjectName(QLatin1StringView(name));
    checkBox->setProperty("preference", QString(editablePreference(preference).name));
    m_rows->addWidget(checkBox, m_rows->rowCount(), 0);
    return checkBox;
}

// Beside the switch that was added last.
void FurtherRulesBox::addField(const QString &name, QWidget &field)
{
    auto *const label = new QLabel(name);
    label->setBuddy(&field);
    m_rows->addWidget(label, m_rows->rowCount() - 1, 1, Qt::AlignRight | Qt::AlignVCenter);
    m_rows->addWidget(&field, m_rows->rowCount() - 1, 2);
}

QSpinBox *FurtherRulesBox::addSpeed(Preference preference, const char *name, const QString &description)
{
    auto *const spinBox = new QSpinBox;
    spinBox->setObjectName(QLatin1StringView(name));
    spinBox->setAccessibleName(description);
    spinBox->setRange(
        static_cast<int>(FurtherPreferences::minSpeed), static_cast<int>(FurtherPreferences::maxSpeed));
    spinBox->setSuffix(tr(" words per minute"));
    spinBox->setKeyboardTracking(false); // while a number is typed, its start is no speed
    connect(spinBox, &QSpinBox::valueChanged, this, [this, preference, description](int number) {
        m_editor.change({{preference, qint64{number}}}, description);
    });
    addField(tr("Speed:"), *spinBox);
    return spinBox;
}

QComboBox *FurtherRulesBox::addStandardPages()
{
    auto *const comboBox = new QComboBox;
    comboBox->setObjectName(QStringLiteral("standardPageComboBox"));
    comboBox->setAccessibleName(tr("Standard Page"));
    comboBox->setToolTip(tr("Choose a size, or type your own. White space counts as characters."));
    comboBox->setEditable(true);
    comboBox->setInsertPolicy(QComboBox::NoInsert);
    for (const StandardPage &page : offeredStandardPages)
        comboBox->addItem(textOf(page));
    const auto change = [this, comboBox] { changeStandardPage(comboBox->currentText()); };
    connect(comboBox, &QComboBox::activated, this, change);
    connect(comboBox->lineEdit(), &QLineEdit::editingFinished, this, change);
    addField(tr("Size:"), *comboBox);
    return comboBox;
}

void FurtherRulesBox::changeStandardPage(const QString &text)
{
    const StandardPage before = FurtherPreferences::standardPage();
    const std::optional<StandardPage> page = pageFrom(text, before.unit);
    if (page && *page != before)
        m_editor.change({{Preference::StandardPageSize, page->text()}}, tr("Standard Page"));
    else
        showValues();
}

void FurtherRulesBox::showValues()
{
    const QSignalBlocker noReading(m_readingSpeed);
    const QSignalBlocker noSpeaking(m_speakingSpeed);
    m_readingSpeed->setValue(static_cast<int>(FurtherPreferences::speed(Preference::ReadingSpeed)));
    m_speakingSpeed->setValue(static_cast<int>(FurtherPreferences::speed(Preference::SpeakingSpeed)));
    const QString page = textOf(FurtherPreferences::standardPage());
    if (m_standardPages->currentText() != page)
        m_standardPages->setEditText(page);
}
