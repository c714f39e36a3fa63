// SPDX-License-Identifier: MIT
#include "presentation/PanelPlace.h"

#include "platform/views/InterfaceFile.h"
#include "presentation/BaseWordCounterViewController.h"

#include <algorithm>
#include <vector>

void PanelPlace::fill(
    const InterfaceFile &file, const QString &placeName, BaseWordCounterViewController &panel)
{
    const auto place = file.outlet<View>(placeName);
    View *const superview = place->superview();
    if (!superview)
        qFatal("The place of a statistics panel is a view in another view.");
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
