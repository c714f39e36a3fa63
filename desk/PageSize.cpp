// SPDX-License-Identifier: MIT
#include "desk/PageSize.h"

#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

QSize sizeOfContent(const QScrollArea &page)
{
    const QWidget &content = *page.widget();
    const QSize size = content.sizeHint();
    return {size.width() + page.verticalScrollBar()->sizeHint().width(),
        std::max(size.height(), content.heightForWidth(size.width()))};
}
