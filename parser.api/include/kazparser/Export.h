#pragma once

#if defined(_WIN32)
#define KAZPARSER_API __declspec(dllexport)
#else
#define KAZPARSER_API __attribute__((visibility("default")))
#endif
