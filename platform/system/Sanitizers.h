// SPDX-License-Identifier: MIT
// Sanitizers says whether the program is built with the address or the thread sanitizer, which reserve
// terabytes of address space and make system calls of their own.
// Thread: any.
#pragma once

#ifdef __has_feature // Clang
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define QUILLBAY_SANITIZED
#endif
#elif defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define QUILLBAY_SANITIZED
#endif

#ifdef QUILLBAY_SANITIZED
inline constexpr bool isSanitized = true;
#else
inline constexpr bool isSanitized = false;
#endif
