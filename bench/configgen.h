#pragma once

#include <cstddef>
#include <string>

// Configurations for the benchmarks, made the same way on every run.
namespace kazbench {

// A presentation group of fixed element references, each with extension
// parameters, features, extra values, an input stage (collector with typed
// parameters, a table and sample results, a modifier) and an output stage
// (table selection, presenter), with non-ASCII text; about `bytes` bytes
// of UTF-8.
std::wstring presentationGroup(std::size_t bytes);
// One presentation element of the same shape, about 4 KB.
std::wstring presentationElement();

std::string utf8(const std::wstring& text);

}  // namespace kazbench
