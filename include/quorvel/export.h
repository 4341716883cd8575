#pragma once

/// Marks what a library offers: QUORVEL_API in `quorvel`, QUORVEL_PLATFORM_API in what platforms
/// share, QUORVEL_HEADLESS_API and QUORVEL_QT_API in the platforms. All else stays hidden in shared
/// libraries. QUORVEL_STATIC is defined for those who link static ones; the CMake targets and
/// pkg-config see to it.
#if defined(QUORVEL_STATIC)
#define QUORVEL_OFFERED
#define QUORVEL_TAKEN
#elif defined(_WIN32)
#define QUORVEL_OFFERED __declspec(dllexport)
#define QUORVEL_TAKEN __declspec(dllimport)
#else
#define QUORVEL_OFFERED __attribute__((visibility("default")))
#define QUORVEL_TAKEN __attribute__((visibility("default")))
#endif

// CMake defines TARGET_EXPORTS while it compiles a shared library.
#ifdef quorvel_EXPORTS
#define QUORVEL_API QUORVEL_OFFERED
#else
#define QUORVEL_API QUORVEL_TAKEN
#endif

#ifdef quorvel_platform_common_EXPORTS
#define QUORVEL_PLATFORM_API QUORVEL_OFFERED
#else
#define QUORVEL_PLATFORM_API QUORVEL_TAKEN
#endif

#ifdef quorvel_headless_EXPORTS
#define QUORVEL_HEADLESS_API QUORVEL_OFFERED
#else
#define QUORVEL_HEADLESS_API QUORVEL_TAKEN
#endif

#ifdef quorvel_qt_EXPORTS
#define QUORVEL_QT_API QUORVEL_OFFERED
#else
#define QUORVEL_QT_API QUORVEL_TAKEN
#endif
