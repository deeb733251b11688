#pragma once

#include <cmath>
#include <string>
#include <string_view>
#include <type_traits>

#include "tableobj/IElement.h"

namespace tableobj {

// Text forms of the four value types, shared by scalars and columns.
std::wstring valueText(bool value);
std::wstring valueText(int value);
std::wstring valueText(double value);
std::wstring valueText(const std::wstring& value);

// Appends a value as element content: flags and numbers as valueText
// writes them (they hold no markup characters), strings escaped.
void appendContent(std::wstring& out, bool value);
void appendContent(std::wstring& out, int value);
void appendContent(std::wstring& out, double value);
void appendContent(std::wstring& out, const std::wstring& value);

// The datatype text of a scalar type; empty for other types.
std::wstring_view datatypeName(IElement::ElementType type);

// Reads a value written by valueText; lenient, never throws.
template <class T>
T parseValue(const std::wstring& text);
template <>
bool parseValue<bool>(const std::wstring& text);
template <>
int parseValue<int>(const std::wstring& text);
template <>
double parseValue<double>(const std::wstring& text);
template <>
std::wstring parseValue<std::wstring>(const std::wstring& text);

// Value equality in which NaN equals NaN, so that a written NaN reads back equal.
template <class T>
bool sameValue(const T& a, const T& b) {
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(a) && std::isnan(b)) return true;
    }
    return a == b;
}

}  // namespace tableobj
