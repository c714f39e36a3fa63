// SPDX-License-Identifier: MIT
#include "presentation/PanelHost.h"

#include "platform/views/InterfaceFile.h"
#include "presentation/WordCounterViewController.h"

#include <algorithm>
#include <vector>

namespace {

constexpr double labelMargin = 10; // points

} // namespace

void PanelHost::fillPlace(
    const InterfaceFile &file, const QString &placeName, BaseWordCounterViewController &panel)
{
    const auto place = file.outlet<View>(placeName);
    View *const superview = place->superview();
    if (!superview)
        qFatal("The place of a statistics panel must be a subview.");
    const std::vector<std::shared_ptr<View>> views = superview->subviews();
    superview->addSubview(panel.view());
    for (auto view = std::ranges::find(views, place) + 1; view != views.end(); ++view)
        superview->addSubview(*view); // above the panel again
    panel.view()->setFrame(place->frame());
    place->removeFromSuperview();
    const auto policy = file.integerProperty(placeName, QStringLiteral("labelPositionPolicy"));
    if (policy)
        panel.setLabelPositionPolicy(static_cast<WordCounterLabelPositionPolicy>(*policy));
}

double PanelHost::fittingWidth(const BaseWordCounterViewController &panel, double width)
{
    double fitting = width;
    for (const std::shared_ptr<Label> &label : panel.allTextfieldsForLayout()) {
        if (label->frame().width() >= width && !label->isHidden())
            fitting = label->frame().width() + labelMargin;
    }
    return fitting;
}

void PanelHost::useShortStyle(WordCounterViewController &panel)
{
    panel.wordCounter()->setFormattedStringStyle(WordCounterModel::shortStyle);
}

void PanelHost::setUpWindow(Window &window, WordCounterViewController &panel, const QObject &context,
    const std::function<void()> &closeRequested)
{
    window.setMovableByBackground(true);
    window.setClosesOnRequest(false);
    QObject::connect(&window, &Window::closeRequested, &context, closeRequested);
    panel.serve(window);
}
