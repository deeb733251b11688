#include "problems.h"

#include <algorithm>
#include <ostream>

#include "input.h"

namespace kazcfg {

Problem errorAt(std::optional<SourceLocation> where, std::string message, std::string element,
                std::string attribute) {
    return {Severity::Error, where, std::move(message), std::move(element), std::move(attribute)};
}

Problem warningAt(std::optional<SourceLocation> where, std::string message, std::string element,
                  std::string attribute) {
    return {Severity::Warning, where, std::move(message), std::move(element), std::move(attribute)};
}

bool hasErrors(const Problems& problems) {
    return std::any_of(problems.begin(), problems.end(),
                       [](const Problem& p) { return p.severity == Severity::Error; });
}

void sortByPosition(Problems& problems) {
    auto position = [](const Problem& p) {
        return p.where ? std::make_pair(p.where->line, p.where->column) : std::make_pair(0u, 0u);
    };
    std::stable_sort(problems.begin(), problems.end(),
                     [&](const Problem& a, const Problem& b) { return position(a) < position(b); });
}

std::string placeOf(const std::string& file, const std::optional<SourceLocation>& where) {
    if (!where) return file + ": ";
    return file + ":" + std::to_string(where->line) + ":" + std::to_string(where->column) + ": ";
}

static const char* nameOf(Severity severity) {
    return severity == Severity::Error ? "error" : "warning";
}

void printProblems(std::ostream& out, const std::string& file, const Problems& problems) {
    for (const Problem& p : problems)
        out << placeOf(file, p.where) << nameOf(p.severity) << ": " << p.message << '\n';
}

static nlohmann::json nullWhenEmpty(const std::string& text) {
    return text.empty() ? nlohmann::json() : nlohmann::json(text);
}

void appendJson(nlohmann::json& array, const std::string& file, const Problems& problems) {
    for (const Problem& p : problems) {
        array.push_back({{"file", file},
                         {"line", p.where ? nlohmann::json(p.where->line) : nlohmann::json()},
                         {"column", p.where ? nlohmann::json(p.where->column) : nlohmann::json()},
                         {"severity", nameOf(p.severity)},
                         {"message", p.message},
                         {"element", nullWhenEmpty(p.element)},
                         {"attribute", nullWhenEmpty(p.attribute)}});
    }
}

std::string quote(std::wstring_view value) {
    constexpr std::size_t kLongest = 60;
    std::wstring shown;
    for (wchar_t c : value.substr(0, kLongest)) {
        if (c == L'\n')
            shown += L"\\n";
        else if (c == L'\r')
            shown += L"\\r";
        else if (c == L'\t')
            shown += L"\\t";
        else
            shown += c;
    }
    if (value.size() > kLongest) shown += L"...";
    return "\"" + utf8(shown) + "\"";
}

}  // namespace kazcfg
