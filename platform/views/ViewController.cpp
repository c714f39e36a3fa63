// SPDX-License-Identifier: MIT
#include "platform/views/ViewController.h"

const std::shared_ptr<View> &ViewController::view()
{
    if (!m_view) {
        loadView();
        viewDidLoad();
    }
    return m_view;
}
