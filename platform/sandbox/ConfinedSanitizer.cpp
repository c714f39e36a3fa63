// SPDX-License-Identifier: MIT
#include "platform/sandbox/ConfinedSanitizer.h"

#include "platform/system/Sanitizers.h"

#ifdef QUILLBAY_SANITIZED

#include <sanitizer/common_interface_defs.h>
#include <sanitizer/lsan_interface.h>

#include <unistd.h>

namespace {

bool isConfined = false;

} // namespace

// The sanitizer asks the program by this name.
extern "C" int __lsan_is_turned_off() // NOLINT(bugprone-reserved-identifier)
{
    return isConfined ? 1 : 0;
}

void prepareSanitizerForConfinement()
{
    isConfined = true;
    // The interface takes the number of a descriptor for a pointer.
    __sanitizer_set_report_fd(reinterpret_cast<void *>(STDERR_FILENO)); // NOLINT(performance-no-int-to-ptr)
}

#else

void prepareSanitizerForConfinement() { }

#endif
