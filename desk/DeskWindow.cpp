// SPDX-License-Identifier: MIT
#include "desk/DeskWindow.h"

#include "desk/PaperPage.h"
#include "desk/RulesPage.h"
#include "desk/ShortcutPage.h"
#include "desk/WatchFiles.h"
#include "desk/documents/DocumentsPage.h"
#include "desk/why/WhyPage.h"
#include "platform/defaults/UserDefaults.h"
#include "ui_DeskWindow.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QMessageBox>
#include <QScreen>

namespace {

/// What the window remembers of itself. Not a preference: it concerns no count.
UserDefaults &rememberedState()
{
    static auto &state = *new UserDefaults(QStringLiteral("com.quillbay.Desk"));
    return state;
}

QString geometryKey()
{
    return QStringLiteral("Geometry");
}

QString pageKey()
{
    return QStringLiteral("Page");
}

/// The command lies beside this program.
ShortcutCommand countSelectionCommand()
{
    return {.title = DeskWindow::tr("Count Selected Text"),
        .words = {QCoreApplication::applicationDirPath() + QStringLiteral("/quillbay"),
            QStringLiteral("selection")},
        .desktopFile = QStringLiteral("com.quillbay.Quillbay.desktop"),
        .desktopAction = QStringLiteral("CountSelectedText")};
}

} // namespace

DeskWindow::DeskWindow(const QString &speechLaunchPath)
    : m_editor(m_papers)
    , m_ui(std::make_unique<Ui::DeskWindow>())
{
    m_ui->setupUi(this);
    makeActions();
    connect(
        m_ui->pageList, &QListWidget::currentRowChanged, m_ui->pageStack, &QStackedWidget::setCurrentIndex);
    auto *const documentsPage = new DocumentsPage(startWatchCommand);
    addPage(*documentsPage, tr("Documents"));
    addPage(*new RulesPage(m_editor, *m_ui->restoreDefaultsAction, speechLaunchPath), tr("Rules"));
    addPage(*new PaperPage(m_editor, m_papers), tr("Page"));
    m_whyPage = new WhyPage;
    addPage(*m_whyPage, tr("Why"));
    const ShortcutCommand command = countSelectionCommand();
    addPage(*new ShortcutPage(shortcutOfCurrentDesktop(command), command), tr("Shortcut"));
    connect(&m_editor, &RulesEditor::changed, documentsPage, &DocumentsPage::followRules);
    connect(&m_editor, &RulesEditor::changed, m_whyPage, &WhyPage::followRules);
    connect(&m_editor, &RulesEditor::failed, this, [this](const QString &file) {
        setNotice(tr("%1: cannot be written, so the change is not stored. Check the permissions and the "
                     "free space of its folder.")
                      .arg(file));
    });
    connect(&m_editor, &RulesEditor::stored, this, [this] { setNotice({}); });
    restoreState();
}

DeskWindow::~DeskWindow() = default;

void DeskWindow::makeActions()
{
    QUndoStack &steps = m_editor.undoStack();
    QAction *const undo = steps.createUndoAction(this);
    undo->setObjectName(QStringLiteral("undoAction"));
    undo->setShortcuts(QKeySequence::Undo);
    QAction *const redo = steps.createRedoAction(this);
    redo->setShortcuts(QKeySequence::Redo);
    // Qt would put the step behind the word in every language.
    const auto nameUndo = [undo](const QString &step) {
        undo->setText(step.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(step));
    };
    const auto nameRedo = [redo](const QString &step) {
        redo->setText(step.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(step));
    };
    connect(&steps, &QUndoStack::undoTextChanged, undo, nameUndo);
    connect(&steps, &QUndoStack::redoTextChanged, redo, nameRedo);
    nameUndo({});
    nameRedo({});
    m_ui->editMenu->insertActions(m_ui->editMenu->actions().constFirst(), {undo, redo});
    connect(m_ui->restoreDefaultsAction, &QAction::triggered, &m_editor, &RulesEditor::restoreDefaults);
    // Both close the only window, and with it the program.
    m_ui->quitAction->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Q), QKeySequence(Qt::CTRL | Qt::Key_W)});
    connect(m_ui->quitAction, &QAction::triggered, this, &QWidget::close);
    connect(m_ui->aboutAction, &QAction::triggered, this, [this] {
        QMessageBox::about(this, tr("About Quillbay"),
            tr("Quillbay %1 counts text for people who write.").arg(QCoreApplication::applicationVersion()));
    });
}

void DeskWindow::addPage(QWidget &page, const QString &title)
{
    page.setAccessibleName(title);
    m_ui->pageStack->addWidget(&page);
    m_ui->pageList->addItem(title);
    if (m_ui->pageList->currentRow() < 0)
        m_ui->pageList->setCurrentRow(0);
    fitPageList();
}

void DeskWindow::openFiles(const QList<QUrl> &files)
{
    if (files.isEmpty())
        return;
    m_ui->pageList->setCurrentRow(m_ui->pageStack->indexOf(m_whyPage));
    if (files.constFirst().isLocalFile())
        m_whyPage->openFile(files.constFirst());
    else
        setNotice(tr("%1: is not a file of this computer; copy it here first.")
                      .arg(files.constFirst().toDisplayString()));
}

void DeskWindow::setNotice(const QString &text)
{
    m_ui->noticeLabel->setText(text);
    m_ui->noticeLabel->setVisible(!text.isEmpty());
    if (text.isEmpty())
        return;
    QAccessibleEvent alert(m_ui->noticeLabel, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void DeskWindow::fitPageList()
{
    constexpr int padding = 16; // pixels beside the longest title
    m_ui->pageList->setFixedWidth(
        m_ui->pageList->sizeHintForColumn(0) + 2 * m_ui->pageList->frameWidth() + padding);
}

void DeskWindow::restoreState()
{
    const auto geometry = rememberedState().objectForKey(geometryKey());
    const QString *const text = geometry ? std::get_if<QString>(&*geometry) : nullptr;
    if (!text || !restoreGeometry(QByteArray::fromBase64(text->toLatin1())))
        // Once it is shown, the style makes it a little higher.
        resize((sizeHint() + QSize(0, fontMetrics().height())).boundedTo(screen()->availableSize() * 0.9));
    const auto page = static_cast<int>(rememberedState().integerForKey(pageKey()));
    if (page > 0 && page < m_ui->pageList->count())
        m_ui->pageList->setCurrentRow(page);
}

void DeskWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
        fitPageList();
        break;
    case QEvent::ActivationChange:
        if (isActiveWindow())
            m_papers.refresh(); // the user may have set up a printer meanwhile
        break;
    default:
        break;
    }
}

void DeskWindow::closeEvent(QCloseEvent *event)
{
    rememberedState().setObjects({{geometryKey(), QString::fromLatin1(saveGeometry().toBase64())},
        {pageKey(), qint64{m_ui->pageList->currentRow()}}});
    QMainWindow::closeEvent(event);
}
