#pragma once

#if defined(_WIN32)
#define IOUTILS_API __declspec(dllexport)
#else
#define IOUTILS_API __attribute__((visibility("default")))
#endif
