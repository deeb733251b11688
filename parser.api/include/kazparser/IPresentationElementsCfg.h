#pragma once

#include "kazparser/INodeCfgCollection.h"
#include "kazparser/IUsePresentationElementCfg.h"

namespace kaz::kazparser {

// The entries of a presentation group ("PresentationElements"): fixed and
// file references to presentation elements, in document order. setChild
// appends, so a node that is no entry raises "Invalid argument".
class KAZPARSER_API IPresentationElementsCfg : public INodeCfgCollection {
public:
    // Turns every file reference into a fixed reference holding the element
    // read from its file, with the same attributes and a copy of its
    // extension parameters; answers the count. A relative file name is
    // taken relative to the root directory. A file that cannot be read or
    // parsed raises the factory's error; that entry stays as it was, and
    // the entries resolved before it stay resolved. An entry whose file
    // holds no presentation element stays as it was.
    virtual unsigned int resolveReferences() = 0;
};

}  // namespace kaz::kazparser
