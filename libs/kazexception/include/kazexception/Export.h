#pragma once

#if defined(_WIN32)
#define KAZEXCEPTION_API __declspec(dllexport)
#else
#define KAZEXCEPTION_API __attribute__((visibility("default")))
#endif
