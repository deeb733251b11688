#pragma once

#if defined(_WIN32)
#define TABLEOBJ_API __declspec(dllexport)
#else
#define TABLEOBJ_API __attribute__((visibility("default")))
#endif
