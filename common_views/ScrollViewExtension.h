// SPDX-License-Identifier: MIT
// What Quillbay adds to every scroll view.
// Thread: main.
#pragma once

class ScrollView;

namespace QBYExtension {

/// Shows the left end of the document's top edge, and moves the scroller to the top. A document that is not
/// flipped and lower than the scroll view ends at a negative scroll position, with its top at the view's top.
/// Without a document only the scroller moves.
void scrollToTop(ScrollView &scrollView);

} // namespace QBYExtension
