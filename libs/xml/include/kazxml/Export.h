#pragma once

#if defined(_WIN32)
#define KAZXML_API __declspec(dllexport)
#else
#define KAZXML_API __attribute__((visibility("default")))
#endif
