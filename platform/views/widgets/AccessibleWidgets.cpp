// SPDX-License-Identifier: MIT
#include "platform/views/widgets/AccessibleWidgets.h"

#include "platform/views/widgets/SpinnerWidget.h"
#include "platform/views/widgets/WindowWidget.h"

#include <QAccessibleWidget>

namespace {

class AccessibleWindow final : public QAccessibleWidget {
public:
    explicit AccessibleWindow(WindowWidget &window)
        : QAccessibleWidget(&window, QAccessible::Window)
        , m_window(window)
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Description ? m_window.representedWindow().accessibleDescription()
                                                : QAccessibleWidget::text(kind);
    }

private:
    const WindowWidget &m_window; // destroyed with this object
};

class AccessibleSpinner final : public QAccessibleWidget {
public:
    explicit AccessibleSpinner(SpinnerWidget &spinner)
        : QAccessibleWidget(&spinner, QAccessible::ProgressBar)
        , m_spinner(spinner)
    {
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (!m_spinner.isTurning())
            state.invisible = 1;
        state.busy = m_spinner.isTurning() ? 1 : 0;
        return state;
    }

private:
    const SpinnerWidget &m_spinner;
};

QAccessibleInterface *makeInterface(const QString & /*className*/, QObject *object)
{
    if (auto *const window = qobject_cast<WindowWidget *>(object))
        return new AccessibleWindow(*window);
    if (auto *const spinner = qobject_cast<SpinnerWidget *>(object))
        return new AccessibleSpinner(*spinner);
    return nullptr;
}

} // namespace

void AccessibleWidgets::install()
{
    QAccessible::installFactory(&makeInterface); // once: Qt knows its factories
}
