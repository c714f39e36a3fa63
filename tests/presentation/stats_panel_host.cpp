// SPDX-License-Identifier: MIT
// A program that shows a statistics panel with made-up counts in a window, like the hosts of the product. Its
// argument is an interface file: a root view with a placeholder for the panel named "statsPanel", whose
// property labelPositionPolicy selects the placement. It prints the identifier of its window, then the frame
// in points for every line of input, and exits at the end of its input.
#include "common_views/QBYWindow.h"
#include "common_views/WindowExtension.h"
#include "platform/views/InterfaceFile.h"
#include "platform/views/widgets/DesktopAppearance.h"
#include "platform/views/widgets/WindowWidget.h"
#include "presentation/BaseWordCounterViewController.h"
#include "text_statistics/WordCounterModel.h"

#include <QApplication>
#include <QFile>
#include <QSocketNotifier>
#include <QWindow>

#include <iostream>
#include <string>
#include <unistd.h>

namespace {

constexpr double margin = 10; // points around the panel
constexpr QBYWordCounterStats madeUpCounts{1234, 5678, 6912, 87, 102, 34, 21, 8};

class PanelHost : public WordCounterViewControllerLayoutDelegate {
public:
    explicit PanelHost(const InterfaceFile &interface)
        : m_window(std::make_shared<QBYWindow>(QRectF(200, 150, 0, 0)))
    {
        const auto place = interface.outlet<View>(QStringLiteral("statsPanel"));
        m_panel.view()->setFrameOrigin({margin, margin});
        place->addSubview(m_panel.view());
        const auto policy =
            interface.integerProperty(QStringLiteral("statsPanel"), QStringLiteral("labelPositionPolicy"));
        m_panel.setLabelPositionPolicy(static_cast<WordCounterLabelPositionPolicy>(policy.value_or(0)));
        fillLabels();
        const QSizeF size = m_panel.view()->frame().size();
        m_window->setFrame(
            {m_window->frame().topLeft(), size.grownBy({margin, margin, margin, margin})}, true, false);
        m_window->setContentView(interface.rootView());
        m_window->setLevel(WindowLevel::Floating);
        m_window->setMovableByBackground(true);
        m_window->setCopyProvider([this] { return statisticsToCopy(); });
        QObject::connect(
            m_window.get(), &Window::textMetricsDidChange, &m_panel, [this] { m_panel.fitLabels(); });
        m_panel.setLayoutDelegate(this);
    }

    void wordCounterViewControllerDidRelayoutLabels() override
    {
        if (m_panel.labelPositionPolicy() == WordCounterLabelPositionPolicySlots)
            return;
        m_panel.adjustViewHeightToFitVisibleLabels();
        const QSizeF panel = m_panel.view()->frame().size();
        QBYExtension::setFrameSize(*m_window, {m_window->frame().width(), panel.height() + 2 * margin}, true);
    }

    [[nodiscard]] const std::shared_ptr<QBYWindow> &window() const { return m_window; }

private:
    void fillLabels()
    {
        WordCounterModel model;
        model.setFormattedStringStyle(1);
        model.updateModelWithPrepopulatedStats(madeUpCounts);
        for (const StatisticRow &row : statisticTable)
            m_panel.textField(row.statistic)->setStringValue(model.formattedString(row.statistic));
    }

    [[nodiscard]] MimeContent statisticsToCopy() const
    {
        QStringList lines;
        for (const std::shared_ptr<Label> &label : m_panel.visibleTextfieldsForLayout())
            lines.append(label->stringValue());
        return {{QStringLiteral("text/plain"), lines.join(u'\n').toUtf8()}};
    }

    BaseWordCounterViewController m_panel;
    std::shared_ptr<QBYWindow> m_window;
};

void printFrame(const Window &window)
{
    const QRectF frame = window.frame();
    std::cout << frame.x() << ' ' << frame.y() << ' ' << frame.width() << ' ' << frame.height() << '\n'
              << std::flush;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QApplication application(argumentCount, arguments);
    const DesktopAppearance appearance;
    const PanelHost host(InterfaceFile::load(QFile::decodeName(arguments[1])));
    const WindowWidget widget(host.window());
    host.window()->orderFront();
    std::cout << widget.winId() << '\n' << std::flush;
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &widget, [&host] {
        std::string line;
        if (std::getline(std::cin, line))
            printFrame(*host.window());
        else
            QCoreApplication::quit();
    });
    return QApplication::exec();
}
