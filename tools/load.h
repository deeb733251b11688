#pragma once

// Reading a configuration through the factory as a host does, with what
// goes wrong turned into problems that name their place.

#include <memory>
#include <string>

#include "kazparser.h"
#include "problems.h"

namespace kazcfg {

struct Loaded {
    std::unique_ptr<kaz::kazparser::INodeCfg> root;  // null, or partial after a reader error
    Problems problems;                               // the errors of loading
};

// The innermost message of an exception chain: the one that says why.
std::wstring innermostMessage(const kazexception::IKAZException& chain);

// The reader's reports become errors at their line and column; each element
// the builder could not turn into a node becomes an error at that element.
// `verbose` adds the reader's codes and the exception chain with contexts.
Loaded loadConfiguration(const std::wstring& text, bool verbose);

}  // namespace kazcfg
