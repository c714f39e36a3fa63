// SPDX-License-Identifier: MIT
#include "common_views/ScrollViewExtension.h"

#include "platform/views/ScrollView.h"

void QBYExtension::scrollToTop(ScrollView &scrollView)
{
    scrollView.setVerticalScrollerValue(0);
    const View *const document = scrollView.documentView();
    if (!document)
        return;
    const double top =
        document->isFlipped() ? 0 : document->frame().height() - scrollView.contentSize().height();
    scrollView.contentView().scrollToPoint({0, top});
}
