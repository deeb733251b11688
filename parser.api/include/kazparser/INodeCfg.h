#pragma once

#include <string>

#include "kazparser/Export.h"
#include "memobject/MemObject.h"
#include "tableobj/IXmlWriter.h"

namespace kaz::kazparser {

using IXmlWriter = tableobj::IXmlWriter;

// One configuration element. Every node kind implements this interface; a
// node owns its children and deletes them with itself.
class KAZPARSER_API INodeCfg : public virtual MemObject {
public:
    // The kind of a node. The values are fixed.
    enum NodeType {
        Param = 0,
        ExtParam = 1,
        ExtParams = 2,
        DataCollector = 3,
        DataModifier = 4,
        Presenter = 5,
        UseRefPresentationElement = 6,
        UseFixedPresentationElement = 7,
        Features = 8,
        Feature = 9,
        ParamSets = 10,
        ParamSet = 11,
        UsePresenter = 12,
        UseDataCollector = 13,
        UseDataModifiers = 14,
        XValue = 15,
        UseData = 16,  // also language strings
        UseExpression = 17,
        UseEngine = 18,
        UseRefData = 19,
        SelectTables = 20,
        InputConfig = 21,
        OutputConfig = 22,
        PresentationElement = 23,
        PresentationElements = 24,
        PresentationGroup = 25,
        XNode = 26,
        ExtraValuesConfig = 27,
        SampleResults = 28,
        SampleFixedResult = 29,
        SampleRefResult = 30,
    };

    // The element name, which is also the tag that toXml writes.
    virtual const std::wstring& getName() const = 0;
    virtual INodeCfg* getParent() const = 0;
    // The child at `index` (still owned by this node); an index not below
    // getChildCount() raises an out-of-range IKAZException*.
    virtual INodeCfg* getChild(unsigned int index) const = 0;
    // Deletes every child.
    virtual void deleteChildren() = 0;
    // A deep copy. Its children have the copy as parent; the copy itself
    // reports the same parent as this node until the caller re-parents it.
    virtual INodeCfg* clone() const = 0;
    // The node's XML text, on one line. The reference stays valid until the
    // next toXml() on this node or its destruction.
    virtual const std::wstring& toXml() const = 0;
    // Writes the same text in pieces: start tag, each child, end tag.
    // Answers the result of the last write.
    virtual bool writeXml(IXmlWriter& out) const = 0;
    // Stores the parent pointer; nothing else.
    virtual void setParent(INodeCfg* parent) = 0;
    // Attaches a child of any kind; answers whether it was taken.
    virtual bool setChild(INodeCfg* child) = 0;
    virtual NodeType getNodeType() const = 0;
    virtual bool isValid() const = 0;
    virtual unsigned int getChildCount() const = 0;
};

}  // namespace kaz::kazparser
