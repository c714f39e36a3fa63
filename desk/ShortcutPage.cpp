// SPDX-License-Identifier: MIT
#include "desk/ShortcutPage.h"

#include "desk/ControlText.h"
#include "platform/shortcuts/Accelerator.h"
#include "platform/shortcuts/SettingsProgram.h"
#include "ui_ShortcutPage.h"

#include <QEvent>
#include <QSignalBlocker>

#include <utility>

namespace {

/// W for words; free in every desktop's default settings.
QKeySequence suggestedKeys()
{
    return {Qt::META | Qt::SHIFT | Qt::Key_W};
}

QString nameOf(const QKeySequence &keys)
{
    return keys.toString(QKeySequence::NativeText);
}

/// Keys that write a character would be lost for writing.
bool canBeShortcut(const QKeySequence &keys)
{
    const bool isFunctionKey = keys[0].key() >= Qt::Key_F1 && keys[0].key() <= Qt::Key_F35;
    const bool hasModifier =
        (keys[0].keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    return !acceleratorOf(keys).isEmpty() && (isFunctionKey || hasModifier);
}

} // namespace

ShortcutPage::ShortcutPage(std::shared_ptr<DesktopShortcut> shortcut, const ShortcutCommand &command)
    : m_shortcut(std::move(shortcut))
    , m_ui(std::make_unique<Ui::ShortcutPage>())
{
    m_ui->setupUi(this);
    const QKeySequence longest(Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::META | Qt::Key_PageDown);
    m_ui->keysEdit->setMinimumWidth(fontMetrics().horizontalAdvance(nameOf(longest)));
    m_ui->keysEdit->setKeySequence(suggestedKeys());
    m_ui->commandEdit->setText(commandLineOf(command.words));
    m_ui->switchWidget->setVisible(m_shortcut != nullptr);
    m_ui->byHandWidget->setVisible(m_shortcut == nullptr);
    connect(m_ui->switchCheckBox, &QCheckBox::toggled, this, &ShortcutPage::switchOnOrOff);
    connect(m_ui->keysEdit, &QKeySequenceEdit::editingFinished, this, &ShortcutPage::changeKeys);
}

ShortcutPage::~ShortcutPage() = default;

QSize ShortcutPage::sizeHint() const
{
    return sizeOfContent(*this);
}

bool ShortcutPage::event(QEvent *event)
{
    if (event->type() == QEvent::Show || (event->type() == QEvent::WindowActivate && isVisible()))
        refresh();
    return QScrollArea::event(event);
}

void ShortcutPage::switchOnOrOff(bool isOn)
{
    if (isOn)
        bind(m_ui->keysEdit->keySequence());
    else
        ask([](DesktopShortcut &shortcut) -> Answer {
            return {.failure = shortcut.unbind().value_or(QString())};
        });
}

void ShortcutPage::changeKeys()
{
    // A desktop has shortcuts of one chord.
    const QKeySequence keys(m_ui->keysEdit->keySequence()[0]);
    const QSignalBlocker blocker(m_ui->keysEdit);
    m_ui->keysEdit->setKeySequence(keys);
    if (m_ui->switchCheckBox->isChecked() && keys != m_boundKeys)
        bind(keys);
}

void ShortcutPage::bind(const QKeySequence &keys)
{
    if (!canBeShortcut(keys)) {
        show({.keys = m_boundKeys}, {});
        m_ui->stateLabel->setText(
            tr("Click the keys, then press Ctrl, Alt or Meta together with another key."));
        return;
    }
    change(
        [keys](DesktopShortcut &shortcut) -> Answer {
            if (QString user = shortcut.userOf(keys); !user.isEmpty())
                return {.user = std::move(user)};
            return {.failure = shortcut.bind(keys).value_or(QString())};
        },
        keys);
}

void ShortcutPage::change(std::function<Answer(DesktopShortcut &)> function, const QKeySequence &wanted)
{
    m_ui->switchWidget->setEnabled(false);
    ask(std::move(function), wanted);
}

void ShortcutPage::refresh()
{
    // The click that activates the window may be one on the switch, so that it stays enabled.
    if (m_ui->switchWidget->isEnabled())
        ask([](DesktopShortcut &) { return Answer(); });
}

void ShortcutPage::ask(std::function<Answer(DesktopShortcut &)> function, const QKeySequence &wanted)
{
    if (!m_shortcut)
        return;
    m_work.emplace(QStringLiteral("shortcuts"),
        [shortcut = m_shortcut, function = std::move(function)](const std::stop_token &) {
            Answer answer = function(*shortcut);
            const Result<QKeySequence, QString> keys = shortcut->keys();
            if (keys)
                answer.keys = keys.value();
            else if (answer.failure.isEmpty())
                answer.failure = keys.error();
            return answer;
        });
    m_work->passResultTo([this, wanted](const Answer &answer) { show(answer, wanted); });
}

void ShortcutPage::show(const Answer &answer, const QKeySequence &wanted)
{
    m_boundKeys = answer.keys;
    m_ui->switchWidget->setEnabled(true);
    {
        const QSignalBlocker blocker(m_ui->switchCheckBox);
        m_ui->switchCheckBox->setChecked(!answer.keys.isEmpty());
    }
    const QSignalBlocker blocker(m_ui->keysEdit);
    if (!answer.keys.isEmpty())
        m_ui->keysEdit->setKeySequence(answer.keys);
    if (!answer.failure.isEmpty())
        m_ui->stateLabel->setText(
            tr("The settings of %1 cannot be used: %2.").arg(m_shortcut->desktop(), answer.failure));
    else if (!answer.user.isEmpty())
        m_ui->stateLabel->setText(tr("%1 is used for “%2” in %3, so it was not changed. Choose other keys.")
                                      .arg(nameOf(wanted), answer.user, m_shortcut->desktop()));
    else if (answer.keys.isEmpty())
        m_ui->stateLabel->setText(tr("No keys count the selected text."));
    else
        m_ui->stateLabel->setText(tr("Select text anywhere and press %1.").arg(nameOf(answer.keys)));
}
