// SPDX-License-Identifier: MIT
#include "platform/text_encoding/StatisticalGuess.h"

#include "platform/text_encoding/EncodingLabels.h"

#include <memory>
#include <type_traits>

#include <uchardet.h>

namespace {

struct Delete {
    void operator()(uchardet_t detector) const { uchardet_delete(detector); }
};

} // namespace

const char *statisticalGuess(QByteArrayView sample)
{
    const std::unique_ptr<std::remove_pointer_t<uchardet_t>, Delete> detector(uchardet_new());
    if (!detector
        || uchardet_handle_data(detector.get(), sample.data(), static_cast<size_t>(sample.size())) != 0)
        return nullptr;
    uchardet_data_end(detector.get());
    return encodingOfLabel(QByteArrayView(uchardet_get_charset(detector.get())));
}
