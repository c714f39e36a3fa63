// SPDX-License-Identifier: MIT
// LineFragment is one laid-out line: which part of the text it holds and where it stands in its column.
// Thread: any; a value.
#pragma once

#include <QtGlobal>

struct LineFragment {
    qsizetype start; ///< UTF-16 code units from the start of the text
    qsizetype length; ///< with the blanks that hang at the end and the line end
    double left; ///< points from the column's left edge to what is used of the line
    double width; ///< points used, without the blanks at the end
    double height; ///< points
};
