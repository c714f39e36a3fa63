// SPDX-License-Identifier: MIT
#include "desk/why/WhyPage.h"

#include "platform/system/FileURL.h"
#include "presentation/WaitNotice.h"
#include "presentation/WordCounterViewController.h"
#include "text_statistics/MeasuringSurface.h"
#include "ui_WhyPage.h"

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QPointer>
#include <QShortcut>

#include <algorithm>

namespace {

constexpr int countColumn = 1;

/// By Statistic.
constexpr std::array<const char *, statisticCount> statisticNames{QT_TRANSLATE_NOOP("WhyPage", "Words"),
    QT_TRANSLATE_NOOP("WhyPage", "Characters"),
    QT_TRANSLATE_NOOP("WhyPage", "Characters including white space"),
    QT_TRANSLATE_NOOP("WhyPage", "Sentences"), QT_TRANSLATE_NOOP("WhyPage", "Lines on the page"),
    QT_TRANSLATE_NOOP("WhyPage", "Hard line breaks"), QT_TRANSLATE_NOOP("WhyPage", "Paragraphs"),
    QT_TRANSLATE_NOOP("WhyPage", "Indented paragraphs")};

} // namespace

WhyPage::WhyPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::WhyPage>())
    , m_counter(std::make_shared<WordCounterViewController>())
{
    m_ui->setupUi(this);
    fillCountList();
    m_silence.setSingleShot(true);
    m_silence.setInterval(WaitNotice::delay);
    connect(&m_silence, &QTimer::timeout, this,
        [this] { showState(tr("The counting service does not answer. Is Quillbay installed completely?")); });

    connect(m_ui->openButton, &QPushButton::clicked, this, &WhyPage::chooseFile);
    connect(m_ui->pasteButton, &QPushButton::clicked, this, &WhyPage::paste);
    connect(m_ui->textView, &WhyTextView::pasteRequested, this, &WhyPage::paste);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, [this] {
        m_source.cancel();
        showReading({});
    });
    connect(&m_source, &TextSource::finished, this, &WhyPage::takeText);
    connect(&m_source, &TextSource::failed, this, [this](const QString &problem) {
        showReading({});
        showState(problem);
    });

    connect(m_ui->previousButton, &QPushButton::clicked, this, [this] { walk(-1); });
    connect(m_ui->nextButton, &QPushButton::clicked, this, [this] { walk(1); });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this, [this] { walk(1); });
    connect(
        new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, this, [this] { walk(-1); });
    auto *const pasteShortcut = new QShortcut(QKeySequence::Paste, this);
    pasteShortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(pasteShortcut, &QShortcut::activated, this, &WhyPage::paste);
    connect(m_ui->textView, &WhyTextView::clicked, this, &WhyPage::goTo);
    showReading({});
}

WhyPage::~WhyPage() = default;

void WhyPage::fillCountList()
{
    QTreeWidget &list = *m_ui->countList;
    for (const char *const name : statisticNames) {
        auto *const row = new QTreeWidgetItem(&list, {tr(name)});
        row->setTextAlignment(countColumn, Qt::AlignRight | Qt::AlignVCenter);
    }
    list.setCurrentItem(list.topLevelItem(0));
    list.header()->setStretchLastSection(false);
    list.header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    list.header()->setSectionResizeMode(countColumn, QHeaderView::Stretch);
    fitCountList();
    // A click on the row that is current already goes on to the next item.
    const auto current = std::make_shared<QTreeWidgetItem *>(list.currentItem());
    connect(&list, &QTreeWidget::currentItemChanged, this, [this] {
        m_isWalkWanted = false;
        findMarks();
    });
    connect(&list, &QTreeWidget::itemClicked, this, [this, current](QTreeWidgetItem *row) {
        if (std::exchange(*current, row) == row)
            walk(1);
        else
            m_isWalkWanted = true;
    });
    connect(&list, &QTreeWidget::itemActivated, this, [this] { walk(1); });
}

void WhyPage::fitCountList()
{
    constexpr int padding = 24; // pixels beside the texts of both columns
    QTreeWidget &list = *m_ui->countList;
    const QFontMetrics metrics = list.fontMetrics();
    int nameWidth = 0;
    for (int row = 0; row < list.topLevelItemCount(); ++row)
        nameWidth = std::max(nameWidth, metrics.horizontalAdvance(list.topLevelItem(row)->text(0)));
    const int numberWidth = metrics.horizontalAdvance(QStringLiteral("000,000,000"));
    list.setFixedWidth(nameWidth + numberWidth + padding + 2 * list.frameWidth());
}

void WhyPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitCountList();
}

Statistic WhyPage::statistic() const
{
    return static_cast<Statistic>(m_ui->countList->currentIndex().row());
}

void WhyPage::openFile(const QUrl &file)
{
    m_source.readFile(file);
    showReading(tr("Reading %1 …").arg(lastPathComponent(file)));
}

void WhyPage::chooseFile()
{
    const QUrl file =
        QFileDialog::getOpenFileUrl(this, tr("Open a Text"), {}, {}, nullptr, {}, {QStringLiteral("file")});
    if (!file.isEmpty())
        openFile(file);
}

void WhyPage::paste()
{
    const QMimeData *const contents = QGuiApplication::clipboard()->mimeData();
    if (!contents || !TextSource::canRead(*contents)) {
        showState(tr("There is no text on the clipboard."));
        return;
    }
    m_source.read(*contents);
    showReading(tr("Reading the clipboard …"));
}

void WhyPage::dragEnterEvent(QDragEnterEvent *event)
{
    if (TextSource::canRead(*event->mimeData()))
        event->acceptProposedAction();
}

void WhyPage::dropEvent(QDropEvent *event)
{
    m_source.read(*event->mimeData());
    showReading(tr("Reading what was dropped …"));
    event->acceptProposedAction();
}

void WhyPage::showReading(const QString &text)
{
    const bool isReading = m_source.isReading();
    m_ui->progressBar->setVisible(isReading);
    m_ui->cancelButton->setVisible(isReading);
    showState(isReading ? text : QString());
}

void WhyPage::showState(const QString &text)
{
    m_ui->stateLabel->setText(text);
    m_ui->stateLabel->setVisible(!text.isEmpty());
    if (text.isEmpty())
        return;
    QAccessibleEvent alert(m_ui->stateLabel, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void WhyPage::takeText(const AttributedString &text, const QString &name)
{
    showReading({});
    m_text = text;
    m_ui->sourceLabel->setText(name.isEmpty() ? tr("Pasted text") : name);
    m_ui->sourceLabel->setToolTip(name.toHtmlEscaped()); // a long name is cut
    m_ui->textView->showText(ShownText(text.string()));
    followRules();
}

void WhyPage::followRules()
{
    if (!m_text)
        return;
    count();
    findMarks();
}

void WhyPage::count()
{
    m_counter->stopAsyncOperation(); // a count under other rules, or of another text
    showCounts(false);
    m_silence.start();
    m_counter->asyncUpdateStatsWithAttributedString(*m_text, [page = QPointer<WhyPage>(this)] {
        if (page)
            page->showCounts(true);
    });
}

void WhyPage::showCounts(bool areKnown)
{
    if (areKnown)
        m_silence.stop();
    const QBYWordCounterStats stats = m_counter->wordCounter()->statsRepresentation();
    for (const StatisticRow &row : statisticTable) {
        QTreeWidgetItem &item = *m_ui->countList->topLevelItem(static_cast<int>(row.statistic));
        item.setText(countColumn, areKnown ? locale().toString(stats.*row.count) : QStringLiteral("…"));
    }
}

void WhyPage::findMarks()
{
    m_current.reset();
    m_ui->reasonLabel->clear();
    m_marking.reset();
    m_ui->textView->showItems(std::make_shared<const FoundItems>(), {});
    if (!m_text)
        return;
    CountingRules rules = currentCountingRules();
    rules.text.fixLocale();
    const ExplainedText explained{*m_text, rules.text, MeasuringSurface::shared().columnWidthOn(rules.page)};
    m_marking.emplace(QStringLiteral("com.quillbay.desk.marking"),
        [explained, length = m_ui->textView->shownText().length(), wanted = statistic()](
            const std::stop_token &stop) {
            return std::make_shared<const FoundItems>(findItems(explained, length, wanted, stop));
        });
    m_marking->passResultTo(
        [this, explained](const std::shared_ptr<const FoundItems> &items) { showMarks(items, explained); });
}

void WhyPage::showMarks(const std::shared_ptr<const FoundItems> &items, const ExplainedText &explained)
{
    m_marking.reset();
    const WhyTextView &view = *m_ui->textView;
    m_ui->textView->showItems(items, explained.rules);
    const bool isWhole = view.shownText().length() == m_text->length() && items->isComplete();
    if (!isWhole)
        showState(tr("The text is too long to be shown and marked to its end. The counts are of all of it."));
    if (std::exchange(m_isWalkWanted, false))
        walk(1);
}

void WhyPage::walk(int step)
{
    if (m_marking) {
        m_isWalkWanted = true;
        return;
    }
    const FoundItems &items = m_ui->textView->items();
    const auto count = static_cast<qsizetype>(items.size());
    const bool wantsAll = !m_ui->notCountedCheckBox->isChecked();
    // From where the user is, if they have not come by walking.
    qsizetype index =
        static_cast<qsizetype>(items.firstFrom(m_ui->textView->position())) - (step > 0 ? 1 : 0);
    if (m_current)
        index = static_cast<qsizetype>(*m_current);
    for (index += step; index >= 0 && index < count; index += step) {
        if (wantsAll || !items.at(static_cast<std::size_t>(index)).isCounted()) {
            goTo(static_cast<std::size_t>(index));
            return;
        }
    }
    m_ui->reasonLabel->setText(step > 0 ? tr("There are no more of them after this place.")
                                        : tr("There are no more of them before this place."));
}

void WhyPage::goTo(std::size_t index)
{
    m_current = index;
    m_ui->textView->select(index);
    const FoundItems &items = m_ui->textView->items();
    const QString place =
        tr("Item %1 of %2 (%3 of them counted):")
            .arg(locale().toString(quint64{index + 1}), locale().toString(quint64{items.size()}),
                locale().toString(quint64{items.countedSize()}));
    m_ui->reasonLabel->setText(place + u' ' + m_ui->textView->sentenceOn(index));
    QAccessibleEvent alert(m_ui->reasonLabel, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
