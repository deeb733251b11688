#pragma once

// A problem found in a configuration file, and its two printed forms: the
// "FILE:LINE:COLUMN: error|warning: text" lines of compilers, and JSON.

#include <iosfwd>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "kazparser/SourceLocation.h"

namespace kazcfg {

using kaz::kazparser::SourceLocation;

enum class Severity { Error, Warning };

struct Problem {
    Severity severity = Severity::Error;
    std::optional<SourceLocation> where;
    std::string message;
    std::string element;    // the element concerned, if any
    std::string attribute;  // the attribute concerned, if any
};

using Problems = std::vector<Problem>;

Problem errorAt(std::optional<SourceLocation> where, std::string message, std::string element = {},
                std::string attribute = {});
Problem warningAt(std::optional<SourceLocation> where, std::string message,
                  std::string element = {}, std::string attribute = {});

bool hasErrors(const Problems& problems);
// Orders by position; problems without one come first.
void sortByPosition(Problems& problems);
// "FILE:LINE:COLUMN: " or "FILE: " without a position.
std::string placeOf(const std::string& file, const std::optional<SourceLocation>& where);
void printProblems(std::ostream& out, const std::string& file, const Problems& problems);
// Appends each problem as an object: file, line, column, severity, message,
// element and attribute (null when unknown).
void appendJson(nlohmann::json& array, const std::string& file, const Problems& problems);

// A value quoted for a one-line message: control characters shown as
// escapes, long values shortened.
std::string quote(std::wstring_view value);

}  // namespace kazcfg
