// Platform types of the engine's Linux build: fixed-width integers, 16-bit TCHAR, TEXT literals.
#pragma once

#include <cstddef>
#include <cstdint>

typedef std::uint8_t uint8;
typedef std::uint16_t uint16;
typedef std::uint32_t uint32;
typedef std::uint64_t uint64;
typedef std::int8_t int8;
typedef std::int16_t int16;
typedef std::int32_t int32;
typedef std::int64_t int64;

typedef char ANSICHAR;
typedef char16_t WIDECHAR;
typedef char8_t UTF8CHAR;
typedef char16_t UTF16CHAR;
typedef char32_t UTF32CHAR;
typedef WIDECHAR TCHAR;

typedef std::size_t SIZE_T;
typedef std::ptrdiff_t SSIZE_T;
typedef std::uintptr_t UPTRINT;
typedef std::intptr_t PTRINT;

#define PLATFORM_LINUX 1
#define PLATFORM_WINDOWS 0
#define PLATFORM_MAC 0
#define PLATFORM_TCHAR_IS_CHAR16 1
#define PLATFORM_LITTLE_ENDIAN 1

#define TEXT_PASTE(x) u ## x
#define TEXT(x) TEXT_PASTE(x)

// The platform's own line break, as text files and pretty printers write it.
#if PLATFORM_WINDOWS
#define LINE_TERMINATOR TEXT("\r\n")
#define LINE_TERMINATOR_ANSI "\r\n"
#else
#define LINE_TERMINATOR TEXT("\n")
#define LINE_TERMINATOR_ANSI "\n"
#endif

#define FORCEINLINE inline __attribute__((always_inline))
#define FORCENOINLINE __attribute__((noinline))
#define UE_NODISCARD [[nodiscard]]
#define LIKELY(x) __builtin_expect(!!(x), 1)
#define UNLIKELY(x) __builtin_expect(!!(x), 0)
#define PREPROCESSOR_JOIN_INNER(a, b) a##b
#define PREPROCESSOR_JOIN(a, b) PREPROCESSOR_JOIN_INNER(a, b)
#define UE_ARRAY_COUNT(Array) (sizeof(Array) / sizeof((Array)[0]))

#define WITH_EDITOR 0
#define WITH_EDITORONLY_DATA 1
#define UE_BUILD_SHIPPING 0

#ifndef CORE_API
#define CORE_API
#endif

enum { INDEX_NONE = -1 };
