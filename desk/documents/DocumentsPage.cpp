// SPDX-License-Identifier: MIT
#include "desk/documents/DocumentsPage.h"

#include "desk/documents/FolderFiles.h"
#include "desk/documents/GoalDialog.h"
#include "desk/documents/ProgressBarDelegate.h"
#include "desk/documents/TableCopy.h"
#include "platform/system/FileURL.h"
#include "platform/views/widgets/DocumentChooser.h"
#include "ui_DocumentsPage.h"
#include "watching/FileTypes.h"

#include <QClipboard>
#include <QDropEvent>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QShortcut>

#include <algorithm>

namespace {

QByteArrayList localPaths(const QMimeData &data)
{
    QByteArrayList paths;
    for (const QUrl &url : data.urls()) {
        if (const QByteArray path = pathOfFileURL(url); !path.isEmpty())
            paths.append(path);
    }
    return paths;
}

/// A folder with attachments is one document.
bool isPlainFolder(const QByteArray &path)
{
    return QFileInfo(QFile::decodeName(path)).isDir()
        && !QBYExtension::doesConformToRTFDFileUTI(fileURLOfPath(path));
}

} // namespace

DocumentsPage::DocumentsPage(std::function<void(const QByteArrayList &paths)> watch)
    : m_watch(std::move(watch))
    , m_list(m_activity)
    , m_table(m_list)
    , m_ui(std::make_unique<Ui::DocumentsPage>())
{
    m_ui->setupUi(this);
    m_sorted.setSourceModel(&m_table);
    m_sorted.setSortRole(DocumentTable::sortRole);
    m_sorted.setSortLocaleAware(true);
    m_sorted.setFilterKeyColumn(-1);
    m_sorted.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_ui->documentTable->setModel(&m_sorted);
    m_ui->documentTable->sortByColumn(-1, Qt::AscendingOrder); // the user's own order
    m_ui->documentTable->setItemDelegate(new ProgressBarDelegate(m_ui->documentTable));
    m_ui->documentTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    m_ui->historyCheckBox->setChecked(m_list.keepsHistory());
    makeActions();
    connect(&m_list, &DocumentList::problem, this, [this](const QString &text) {
        m_problem = text;
        showState();
    });
    connect(&m_list, &DocumentList::wasReset, this, [this] {
        fitColumns();
        showState();
    });
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &DocumentsPage::showState);
    connect(&m_list, &DocumentList::changed, &m_refresh, qOverload<>(&QTimer::start));
    connect(m_ui->documentTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &DocumentsPage::showState);
    connect(m_ui->filterEdit, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_sorted.setFilterFixedString(text);
        showState();
    });
    connect(m_ui->historyCheckBox, &QCheckBox::toggled, this,
        [this](bool keeps) { m_list.setKeepsHistory(keeps); });
    connect(m_ui->documentTable->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
        &DocumentsPage::showState);
    m_list.load();
}

DocumentsPage::~DocumentsPage() = default;

void DocumentsPage::makeActions()
{
    connect(m_ui->addButton, &QPushButton::clicked, this, &DocumentsPage::chooseFiles);
    connect(m_ui->addFolderButton, &QPushButton::clicked, this, &DocumentsPage::chooseFolder);
    connect(m_ui->showButton, &QPushButton::clicked, this, [this] {
        QByteArrayList paths;
        for (const int row : selectedRows())
            paths.append(m_list.at(row).path());
        m_watch(paths);
    });
    connect(m_ui->documentTable, &QTableView::activated, m_ui->showButton, &QPushButton::click);
    connect(m_ui->goalButton, &QPushButton::clicked, this, &DocumentsPage::editGoal);
    connect(m_ui->copyButton, &QPushButton::clicked, this, &DocumentsPage::copy);
    connect(m_ui->findButton, &QPushButton::clicked, this, &DocumentsPage::findFile);
    connect(m_ui->removeButton, &QPushButton::clicked, this, &DocumentsPage::remove);
    connect(m_ui->upButton, &QPushButton::clicked, this, [this] { shift(-1); });
    connect(m_ui->downButton, &QPushButton::clicked, this, [this] { shift(1); });
    const std::pair<QKeySequence, QPushButton *> shortcuts[] = {{QKeySequence::Copy, m_ui->copyButton},
        {QKeySequence::Delete, m_ui->removeButton}, {QKeySequence(Qt::ALT | Qt::Key_Up), m_ui->upButton},
        {QKeySequence(Qt::ALT | Qt::Key_Down), m_ui->downButton}};
    for (const auto &[keys, button] : shortcuts) {
        auto *const shortcut = new QShortcut(keys, m_ui->documentTable);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_ui->filterEdit,
        qOverload<>(&QWidget::setFocus));
}

void DocumentsPage::followRules()
{
    m_table.chooseColumns();
    m_list.followRules();
    fitColumns();
}

std::vector<int> DocumentsPage::shownRows() const
{
    std::vector<int> rows;
    for (int i = 0; i < m_sorted.rowCount(); ++i)
        rows.push_back(m_sorted.mapToSource(m_sorted.index(i, 0)).row());
    return rows;
}

std::vector<int> DocumentsPage::selectedRows() const
{
    std::vector<std::pair<int, int>> places;
    for (const QModelIndex &index : m_ui->documentTable->selectionModel()->selectedRows())
        places.emplace_back(index.row(), m_sorted.mapToSource(index).row());
    std::ranges::sort(places);
    std::vector<int> rows;
    rows.reserve(places.size());
    for (const auto &[place, row] : places)
        rows.push_back(row);
    return rows;
}

void DocumentsPage::showState()
{
    const std::vector<int> selected = selectedRows();
    const std::vector<int> shown = shownRows();
    const bool isOne = selected.size() == 1;
    const bool isInUsersOrder = m_sorted.sortColumn() < 0 && m_ui->filterEdit->text().isEmpty();
    m_ui->showButton->setEnabled(!selected.empty());
    m_ui->goalButton->setEnabled(isOne);
    m_ui->copyButton->setEnabled(!shown.empty());
    m_ui->removeButton->setEnabled(!selected.empty());
    m_ui->upButton->setEnabled(isOne && isInUsersOrder && selected.front() > 0);
    m_ui->downButton->setEnabled(isOne && isInUsersOrder && selected.front() + 1 < m_list.size());
    m_ui->findButton->setEnabled(
        isOne && m_list.at(selected.front()).state() == FollowedDocument::State::Missing);
    QString text = m_problem;
    if (text.isEmpty() && m_list.size() == 0)
        text = tr("Drop documents here, or add them: their counts follow every save, and you see what today "
                  "brought. Nothing of their texts is kept.");
    m_ui->stateLabel->setText(text);
    m_ui->stateLabel->setVisible(!text.isEmpty());
    const std::vector<int> &counted = selected.empty() ? shown : selected;
    const QString title = selected.empty() ? tr("All documents (%1)") : tr("Selected documents (%1)");
    m_ui->totalLabel->setVisible(!counted.empty());
    m_ui->totalLabel->setText(title.arg(locale().toString(qulonglong{counted.size()})) + QStringLiteral(" · ")
        + m_table.totalText(counted));
}

void DocumentsPage::fitColumns()
{
    constexpr int maxMeasuredRows = 50;
    constexpr int maxWidthInCharacters = 40;
    QHeaderView &header = *m_ui->documentTable->horizontalHeader();
    header.setResizeContentsPrecision(maxMeasuredRows);
    m_ui->documentTable->resizeColumnsToContents();
    const int max = maxWidthInCharacters * fontMetrics().averageCharWidth();
    for (int i = 0; i < header.count(); ++i)
        header.resizeSection(i, std::min(header.sectionSize(i), max));
}

void DocumentsPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitColumns();
}

void DocumentsPage::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu;
    for (const QPushButton *const button : {m_ui->showButton, m_ui->goalButton, m_ui->copyButton,
             m_ui->upButton, m_ui->downButton, m_ui->findButton, m_ui->removeButton}) {
        QAction *const action = menu.addAction(button->text(), button, &QPushButton::click);
        action->setEnabled(button->isEnabled());
    }
    menu.addAction(tr("&Forget the History"), this, [this] { m_list.forgetHistory(selectedRows()); })
        ->setEnabled(m_ui->removeButton->isEnabled());
    menu.exec(event->globalPos());
}

void DocumentsPage::chooseFiles()
{
    DocumentChooser chooser(QBYExtension::openPanelForTextFilesAllowMultipleSelection(true));
    if (chooser.exec() != QDialog::Accepted)
        return;
    QByteArrayList paths;
    for (const QUrl &url : chooser.chosenUrls())
        paths.append(pathOfFileURL(url));
    m_list.add(paths);
}

void DocumentsPage::chooseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Add a Folder"));
    if (folder.isEmpty())
        return;
    bool isAccepted = false;
    const QString pattern = QInputDialog::getText(this, tr("Add a Folder"),
        tr("Add the files whose names match, in the folders inside it, too:"), QLineEdit::Normal,
        QStringLiteral("*.md *.txt *.odt *.docx"), &isAccepted);
    if (isAccepted && !pattern.trimmed().isEmpty())
        addFolder(folder, pattern);
}

void DocumentsPage::addFolder(const QString &folder, const QString &pattern)
{
    const QByteArrayList paths =
        filesOfFolder(folder, pattern, static_cast<int>(ProgressStore::maxDocuments));
    if (paths.isEmpty())
        QMessageBox::information(
            this, tr("Add a Folder"), tr("No file in %1 matches %2.").arg(folder, pattern));
    else
        m_list.add(paths);
}

void DocumentsPage::editGoal()
{
    const int row = selectedRows().front();
    const FollowedDocument &document = m_list.at(row);
    const QByteArray path = document.path();
    GoalDialog dialog(m_table.index(row, 0).data().toString(), m_list.planOf(document), this);
    if (dialog.exec() == QDialog::Accepted)
        m_list.setPlan(path, dialog.plan());
}

void DocumentsPage::copy()
{
    const std::vector<int> selected = selectedRows();
    QGuiApplication::clipboard()->setMimeData(
        copyOfRows(m_table, selected.empty() ? shownRows() : selected).release());
}

void DocumentsPage::findFile()
{
    const QByteArray path = m_list.at(selectedRows().front()).path();
    OpenPanel panel = QBYExtension::openPanelForTextFiles();
    panel.folder = fileURLOfPath(folderOf(path));
    DocumentChooser chooser(panel);
    if (chooser.exec() == QDialog::Accepted && !chooser.chosenUrls().isEmpty())
        m_list.find(path, pathOfFileURL(chooser.chosenUrls().constFirst()));
}

void DocumentsPage::remove()
{
    const std::vector<int> rows = selectedRows();
    const QByteArrayList paths = m_list.pathsOf(rows);
    const QString question = rows.size() == 1
        ? tr("Remove %1 from the list, and forget its goal and its history?")
              .arg(m_table.index(rows.front(), 0).data().toString())
        : tr("Remove %1 documents from the list, and forget their goals and their history?")
              .arg(locale().toString(qulonglong{rows.size()}));
    QMessageBox box(QMessageBox::Question, tr("Remove Documents"),
        question + u' ' + tr("The files stay where they are."), QMessageBox::Cancel, this);
    const QPushButton *const removal = box.addButton(tr("Remove"), QMessageBox::AcceptRole);
    box.exec();
    if (box.clickedButton() == removal)
        m_list.remove(paths);
}

void DocumentsPage::shift(int step)
{
    const int row = selectedRows().front();
    m_list.shift(row, step);
    select(row + step);
}

void DocumentsPage::select(int row)
{
    m_ui->documentTable->setCurrentIndex(m_sorted.mapFromSource(m_table.index(row, 0)));
}

void DocumentsPage::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localPaths(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void DocumentsPage::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    QByteArrayList files;
    for (const QByteArray &path : localPaths(*event->mimeData())) {
        if (isPlainFolder(path))
            addFolder(QFile::decodeName(path), QStringLiteral("*.md *.txt *.odt *.docx"));
        else
            files.append(path);
    }
    if (!files.isEmpty())
        m_list.add(files);
}
